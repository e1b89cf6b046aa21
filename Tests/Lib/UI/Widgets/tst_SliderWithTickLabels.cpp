#include <UI/Widgets/SliderWithTickLabels.h>

#include <Support/EventSpy.h>
#include <Support/TestCase.h>

#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#include <climits>
#include <memory>

using Zelkor::Vx::SliderWithTickLabels;

namespace {

QRect PartOf(QSlider* slider, int value, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.maximum = slider->maximum();
    option.tickPosition = slider->tickPosition();
    option.upsideDown = slider->isRightToLeft();
    option.direction = Qt::LeftToRight;
    option.sliderPosition = value;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, part, slider);
}

} // namespace

class tst_SliderWithTickLabels : public Support::TestCase
{
    Q_OBJECT

    using Widget = SliderWithTickLabels;
    static QSlider* SliderOf(Widget& widget) { return widget.findChild<QSlider*>("slider"); }
    static QList<QLabel*> LabelsOf(Widget& widget) { return widget.findChildren<QLabel*>(); }

    /// A property of all labels; "-" for one that has none.
    static QStringList Marks(Widget& widget, const char* property)
    {
        QStringList marks;
        for (const QLabel* label : LabelsOf(widget))
            marks.append(label->property(property).isValid() ? label->property(property).toString() : "-");
        return marks;
    }

private Q_SLOTS:
    void itemsAndMarks()
    {
        SliderWithTickLabels widget(nullptr);
        QSignalSpy changed(&widget, &SliderWithTickLabels::CurrentIndexChanged);
        QVERIFY(widget.CurrentText().isEmpty() && widget.FindText(QString()) == -1);
        widget.SetCurrentIndex(5);
        widget.AddItem("Low");
        QCOMPARE(Marks(widget, "Position"), QStringList("Last"));
        widget.AddItems({"High", "Best"});
        QCOMPARE(Marks(widget, "Position"), QStringList({"First", "", "Last"}));
        QVERIFY(widget.FindText("High") == 1 && widget.FindText("high") == -1);
        QCOMPARE(SliderOf(widget)->accessibleName(), QString("Low"));
        QVERIFY(changed.isEmpty());

        // The signal comes before the marks.
        QStringList marksAtSignal;
        connect(&widget, &SliderWithTickLabels::CurrentIndexChanged,
                [&] { marksAtSignal = Marks(widget, "SubStyle"); });
        widget.SetCurrentIndex(1);
        QCOMPARE(marksAtSignal, QStringList({"-", "-", "-"}));
        QCOMPARE(Marks(widget, "SubStyle"), QStringList({"", "Current", ""}));
        QTest::mouseClick(LabelsOf(widget)[2], Qt::LeftButton);
        LabelsOf(widget)[0]->setProperty("SubStyle", "Current");
        QTest::mouseClick(LabelsOf(widget)[2], Qt::LeftButton); // marks again, and that is all
        QCOMPARE(Marks(widget, "SubStyle"), QStringList({"", "", "Current"}));
        for (const int beyond : {7, -3}) {
            widget.SetCurrentIndex(beyond);
            QCOMPARE(Marks(widget, "SubStyle"), QStringList({"", "", ""}));
        }
        SliderOf(widget)->setAccessibleName("Quality");
        QTest::keyClick(SliderOf(widget), Qt::Key_End);
        QCOMPARE(changed, QList<QVariantList>({{1}, {2}, {0}, {2}}));
        QCOMPARE(SliderOf(widget)->accessibleName(), QString("Quality"));
        QCOMPARE(SliderOf(widget)->accessibleDescription(), QString("Best"));
    }

    void itemTextCanBeReplaced()
    {
        SliderWithTickLabels widget(nullptr);
        widget.AddItems({"Low", "High"});
        widget.SetCurrentIndex(1);
        widget.show();
        widget.SetItemText(1, "Extraordinarily high");
        widget.SetItemText(0, "Lowest");
        widget.SetItemText(2, "None");
        QCOMPARE(SliderOf(widget)->accessibleName(), QString("Extraordinarily high"));
        QCOMPARE(widget.FindText("Lowest"), 0);
        QCOMPARE(widget.FindText("None"), -1);
        widget.resize(widget.sizeHint());
        QTRY_VERIFY(LabelsOf(widget)[1]->text().contains("Extraordinarily high"));
        LabelsOf(widget)[1]->setMargin(INT_MAX);
        QTRY_VERIFY(widget.sizeHint().width() > 1000000);
    }

    // As a slider of Qt emits them.
    void pressBesideTheHandleEmitsTheSignalsOfASlider_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QStringList>("signalsInOrder");
        QTest::newRow("page step") << int(Qt::LeftButton) << QStringList{"action 3", "value 1", "index 1"};
        QTest::newRow("to the mouse") << int(Qt::MiddleButton)
                                      << QStringList{"action 7", "value 1", "action 7", "pressed", "index 1"};
    }

    void pressBesideTheHandleEmitsTheSignalsOfASlider()
    {
        QFETCH(int, button);
        SliderWithTickLabels widget(nullptr);
        widget.AddItems({"a", "b", "c"});
        QSlider* slider = SliderOf(widget);
        QStringList heard;
        connect(slider, &QSlider::actionTriggered, [&](int action) { heard << QString("action %1").arg(action); });
        connect(slider, &QSlider::valueChanged, [&](int value) { heard << QString("value %1").arg(value); });
        connect(slider, &QSlider::sliderPressed, [&] { heard << "pressed"; });
        connect(&widget, &SliderWithTickLabels::CurrentIndexChanged,
                [&](int index) { heard << QString("index %1").arg(index); });
        QTest::mousePress(slider, Qt::MouseButton(button), {}, PartOf(slider, 1, QStyle::SC_SliderGroove).center());
        QTEST(heard, "signalsInOrder");
    }

    void labelsStandOverTheirTicks()
    {
        const QString sentence("A text that is much longer than all of the others");
        const std::vector<QStringList> rows{{"Low", sentence, "Best", "x", "y"}, {sentence, "x", "y"}, {"x", sentence}};
        for (int i = 0; i < 2 * int(rows.size()); ++i) {
            const QStringList& texts = rows[i / 2];
            SliderWithTickLabels widget(nullptr);
            widget.setLayoutDirection(i % 2 ? Qt::RightToLeft : Qt::LeftToRight);
            widget.AddItems(texts);
            widget.show();
            for (const int width : {widget.sizeHint().width(), 1200, 500, 200, 60, 1}) {
                InRow(QString("%1, width %2, direction %3").arg(texts.join('|')).arg(width).arg(i % 2));
                widget.resize(width, widget.height());
                QTest::qWait(0);
                int requests = 0;
                const Support::EventSpy watch(widget.findChild<QFrame*>("labelsFrame"),
                                              [&](auto type, auto) { requests += type == QEvent::LayoutRequest; });
                QCoreApplication::processEvents();
                QCOMPARE(requests, 0); // at rest
                checkPlaces(widget, texts);
            }
        }
    }

    void listenersMayDoAnything()
    {
        using Action = std::function<void(SliderWithTickLabels&)>;
        const auto pressGroove = [](SliderWithTickLabels& widget) {
            const QPoint groove = PartOf(SliderOf(widget), 0, QStyle::SC_SliderGroove).center();
            QTest::mousePress(SliderOf(widget), Qt::LeftButton, {}, groove);
        };
        const std::tuple<const char*, const char*, Action> actions[] = {
            {"set", "c", [](auto& widget) { widget.SetCurrentIndex(2); }},
            {"out of range", "c", [](auto& widget) { widget.SetCurrentIndex(9); }},
            {"label", "c", [](auto& widget) { QTest::mousePress(LabelsOf(widget)[2], Qt::LeftButton); }},
            {"groove", "b", pressGroove},
            {"key", "c", [](auto& widget) { QTest::keyPress(SliderOf(widget), Qt::Key_End); }},
        };
        for (const auto& [name, text, act] : actions) {
            InRow(name);
            auto widget = std::make_unique<SliderWithTickLabels>(nullptr);
            widget->AddItems({"a", "b", "c"});
            connect(widget.get(), &SliderWithTickLabels::CurrentIndexChanged, [&] { widget.reset(); });
            act(*widget);
            QVERIFY(!widget);

            SliderWithTickLabels growing(nullptr);
            growing.AddItems({"a", "b", "c"});
            connect(&growing, &SliderWithTickLabels::CurrentIndexChanged, [&] { growing.AddItems({"d", "e"}); });
            act(growing);
            QCOMPARE(growing.CurrentText(), QString(text));
            QCOMPARE(Marks(growing, "Position"), QStringList({"First", "", "", "", "Last"}));
        }
    }

private:
    void checkPlaces(SliderWithTickLabels& widget, const QStringList& texts)
    {
        const QList<QLabel*> labels = LabelsOf(widget);
        const int last = labels.size() - 1;
        const auto place = [&](int i) {
            return QStyle::visualRect(widget.layoutDirection(), widget.rect(), labels[i]->geometry());
        };
        QCOMPARE(place(0).left(), 0);
        QCOMPARE(place(last).right(), widget.width() - 1);
        for (int i = 0; i <= last && widget.width() > 60; ++i) {
            QVERIFY(i == 0 || place(i).left() > place(i - 1).right());
            // A sentence may end early for lack of room, a letter not.
            if (widget.width() >= widget.sizeHint().width() || texts[i].size() == 1)
                QVERIFY2(labels[i]->toolTip().isEmpty(), qPrintable(texts[i]));
            const QRect handle = PartOf(SliderOf(widget), i, QStyle::SC_SliderHandle);
            if (i > 0 && i < last)
                QVERIFY(qAbs(labels[i]->geometry().center().x() - handle.center().x()) <= 2);
        }
    }
};

VX_TEST_MAIN(tst_SliderWithTickLabels)
#include "tst_SliderWithTickLabels.moc"
