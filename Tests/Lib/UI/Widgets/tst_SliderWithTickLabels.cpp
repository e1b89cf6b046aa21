#include <UI/Widgets/SliderWithTickLabels.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QLabel>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

using Zelkor::Vx::SliderWithTickLabels;

namespace {

struct Widget : SliderWithTickLabels
{
    explicit Widget(const QStringList& texts) : SliderWithTickLabels(nullptr) { AddItems(texts); }

    QList<QLabel*> Labels() const { return findChildren<QLabel*>(); }

    QStringList Marks(const char* property) const
    {
        QStringList marks;
        for (const QLabel* label : Labels())
            marks << label->property(property).toString();
        return marks;
    }

    QRect PartOf(int value, QStyle::SubControl part) const
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

    QSlider* slider = findChild<QSlider*>("slider");
};

} // namespace

class tst_SliderWithTickLabels : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labelsAreMarkedAfterTheSignal()
    {
        Widget widget({"Low", "High", "Best"});
        QCOMPARE(widget.Marks("Position"), QStringList({"First", "", "Last"}));
        QSignalSpy changed(&widget, &SliderWithTickLabels::CurrentIndexChanged);
        const auto connection = connect(&widget, &SliderWithTickLabels::CurrentIndexChanged, [&] {
            QCOMPARE(widget.Marks("SubStyle"), QStringList({"", "", ""}));
        });
        widget.SetCurrentIndex(1);
        disconnect(connection);
        QCOMPARE(widget.Marks("SubStyle"), QStringList({"", "Current", ""}));
        QTest::mouseClick(widget.Labels()[2], Qt::LeftButton);
        QCOMPARE(widget.Marks("SubStyle"), QStringList({"", "", "Current"}));
        widget.SetCurrentIndex(-3);
        QCOMPARE(widget.Marks("SubStyle"), QStringList({"", "", ""}));
        QTest::keyClick(widget.slider, Qt::Key_End);
        QCOMPARE(changed, QList<QVariantList>({{1}, {2}, {0}, {2}}));
    }

    void itemsAreFoundByExactText()
    {
        Widget widget({"Low", "High"});
        widget.SetItemText(1, "Extraordinarily high");
        QCOMPARE(widget.FindText("Extraordinarily high"), 1);
        QCOMPARE(widget.FindText("low"), -1);
    }

    void pressOnTheGrooveEmitsTheSignalsOfASlider()
    {
        Widget widget({"a", "b", "c"});
        QStringList log;
        connect(widget.slider, &QSlider::actionTriggered, [&](int action) { log << QString("action %1").arg(action); });
        connect(widget.slider, &QSlider::valueChanged, [&](int value) { log << QString("value %1").arg(value); });
        connect(widget.slider, &QSlider::sliderPressed, [&] { log << "pressed"; });
        connect(&widget, &SliderWithTickLabels::CurrentIndexChanged,
                [&](int index) { log << QString("index %1").arg(index); });
        QTest::mousePress(widget.slider, Qt::LeftButton, {}, widget.PartOf(1, QStyle::SC_SliderGroove).center());
        QCOMPARE(log.join(", "), QString("action 3, value 1, index 1"));
    }

    void labelsAreCentredOverTheirTicks_data() { Support::AddDirectionRows(); }

    void labelsAreCentredOverTheirTicks()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Widget widget({"Low", "A text that is much longer than all of the others", "Best", "x", "y"});
        widget.setLayoutDirection(direction);
        widget.show();
        const auto place = [&](int i) {
            return QStyle::visualRect(direction, widget.rect(), widget.Labels()[i]->geometry());
        };
        for (const int width : {widget.sizeHint().width(), 200}) {
            widget.resize(width, widget.height());
            QCoreApplication::processEvents();
            QCOMPARE(place(0).left(), 0);
            QCOMPARE(place(4).right(), widget.width() - 1);
            for (int i = 1; i < 4; ++i) {
                QVERIFY(place(i).left() > place(i - 1).right());
                const QPoint handle = widget.PartOf(i, QStyle::SC_SliderHandle).center();
                QVERIFY(qAbs(widget.Labels()[i]->geometry().center().x() - handle.x()) <= 2);
            }
            QCOMPARE(widget.Labels()[3]->toolTip(), QString());
            QCOMPARE(widget.Labels()[1]->toolTip().isEmpty(), width != 200);
        }
    }
};

VX_TEST_MAIN(tst_SliderWithTickLabels)
#include "tst_SliderWithTickLabels.moc"
