#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZDoubleSlider.h>
#include <UI/Kit/ZDoubleSpinBox.h>
#include <UI/Kit/ZSpinBox.h>

#include <Support/EventSpy.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QWindow>

#include <limits>

constexpr double INF = std::numeric_limits<double>::infinity();

class tst_KitFields : public Support::TestCase
{
    Q_OBJECT

private:
    // How many wheel events the field leaves to its window. Sent as by the window system; a touch pad tells pixels.
    static int PassedOn(QWidget* field, int notches, int pixels = 0)
    {
        int count = 0;
        QWidget* window = field->window();
        const Support::EventSpy watch(window, [&](QEvent::Type type, QEvent*) { count += type == QEvent::Wheel; });
        const QPoint place = field->pos() + QPoint(2, 2);
        QWheelEvent event(place, window->mapToGlobal(place), QPoint(0, pixels), QPoint(0, 120 * notches), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window->windowHandle(), &event);
        return count;
    }

private Q_SLOTS:
    void wheelOnlyInFocus()
    {
        for (QWidget* field : QWidgetList{new ZCustomSlider, new ZSpinBox, new ZDoubleSpinBox}) {
            InRow(field->metaObject()->className());
            QWidget window;
            field->setParent(&window);
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            const auto value = [&] { return field->property("value").toDouble(); };
            QCOMPARE(PassedOn(field, 1), 0);
            const double before = value();
            QVERIFY(before > 0);
            window.setFocus();
            field->setProperty("editableInFocus", true);
            QCOMPARE(PassedOn(field, 1), 1);
            QVERIFY(!field->hasFocus() && value() == before);
            field->setFocus();
            QCOMPARE(PassedOn(field, 1), 0);
            QVERIFY(value() > before);
        }
    }

    void comboBoxCanLeaveTheWheel()
    {
        QWidget window;
        ZComboBox combo(&window);
        combo.addItems({"a", "b", "c"});
        window.show();
        for (const bool isEnabled : {false, true}) {
            combo.setMouseWheelEnabled(isEnabled);
            isEnabled ? window.setFocus() : combo.setFocus();
            QCOMPARE(PassedOn(&combo, -1), isEnabled ? 0 : 1);
            QCOMPARE(combo.currentIndex(), isEnabled ? 1 : 0);
        }
        QVERIFY(!combo.hasFocus());
    }

    void sliderAtItsEndSwallowsScrolling()
    {
        QWidget window;
        ZCustomSlider slider(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        using Counts = QVector<int>; // down and up at three values
        const Counts all(6, 1);
        for (const auto& [inFocus, focused, expected] :
             {std::tuple(true, false, all), {true, true, Counts{0, 1, 1, 1, 1, 0}}, {false, true, all}}) {
            slider.setEditableInFocus(inFocus);
            focused ? slider.setFocus() : window.setFocus();
            Counts passed;
            for (const int value : {0, 50, 99}) {
                slider.setValue(value);
                passed << PassedOn(&slider, 0, -5) << PassedOn(&slider, 0, 5);
            }
            QCOMPARE(passed, expected);
        }
    }

    void doubleSlider()
    {
        ZDoubleSlider slider;
        slider.setRange(-50, 100);
        slider.setValue(25);
        QSignalSpy changed(&slider, &ZDoubleSlider::doubleValueChanged);
        for (const double multiplier : {0.1, 0.1, 0.0, -1e-12, INF, qQNaN()})
            slider.setMultiplier(multiplier);
        slider.setDoubleValue(2.46);
        slider.setDoubleValue(qQNaN());
        QCOMPARE(changed, (QList<QVariantList>{{2.5}, {2.5}}));
        const QVector<QPair<double, int>> rows{{2.44, 24},   {2.46, 25}, {-2.46, -24},  {-2.56, -25}, {11, 100},
                                               {1e300, 100}, {INF, 100}, {-1e300, -50}, {-INF, -50}};
        for (const auto& row : rows) {
            slider.setDoubleValue(row.first);
            QCOMPARE(slider.value(), row.second);
            QCOMPARE(changed.last(), QVariantList{row.second * 0.1});
        }
        // Turned over, the least is the largest.
        slider.setMultiplier(-0.5);
        QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(&slider)->valueInterface();
        value->setCurrentValue(-10);
        QCOMPARE(QVariantList({value->minimumValue(), slider.value(), value->maximumValue()}),
                 QVariantList({-50.0, 20, 25.0}));
    }

    void typedNumbersAreRoundedToSteps()
    {
        struct Row
        {
            double minimum, step;
            const char* typed;
            double expected;
        };
        // Down, up, from the minimum, below zero, last step, the end, below the range, no number, no step, too far,
        // more decimals than are shown.
        for (const Row& row :
             {Row{0, 0.25, "1.3", 1.25}, Row{0, 0.25, "1.4", 1.5}, Row{0.1, 0.5, "2.2", 2.1}, Row{-3.1, 1, "-2", -2.1},
              Row{0, 3, "10", 9}, Row{0, 0.1, "9.99", 10}, Row{5, 2, "4", 5}, Row{-5, 3, "-", 1.2},
              Row{0, 0, "1.3", 1.3}, Row{-1e300, 3, "1.3", 1.3}, Row{0, 0.125, "0.12", 0.13}}) {
            for (const bool tracking : {true, false}) {
                InRow(row.typed);
                ZDoubleSpinBox field;
                field.setFixupWithStep(true);
                field.setKeyboardTracking(tracking);
                field.setLocale(QLocale::c());
                field.setRange(row.minimum, 10);
                field.setSingleStep(row.step);
                field.setSuffix(" s");
                field.setValue(1.2);
                QVector<double> atEnd;
                connect(&field, &QDoubleSpinBox::editingFinished, &field, [&] { atEnd += field.value(); });
                QSignalSpy changed(&field, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
                field.selectAll();
                QTest::keyClicks(&field, row.typed);
                QTest::keyClick(&field, Qt::Key_Return);
                QVERIFY(tracking || changed.size() <= 1);
                QCOMPARE(field.text(), field.textFromValue(row.expected) + " s");
                QCOMPARE(atEnd, QVector<double>{row.expected});
            }
        }
    }

    void onlyTypedNumbersAreRounded_data()
    {
        QTest::addColumn<bool>("isTracking");
        QTest::addColumn<bool>("isStepped");
        QTest::newRow("code sets the value") << true << false;
        QTest::newRow("code sets the value, no tracking") << false << false;
        QTest::newRow("arrow key changes the value") << true << true;
        QTest::newRow("arrow keys there and back") << false << true;
    }

    void onlyTypedNumbersAreRounded()
    {
        QFETCH(bool, isTracking);
        QFETCH(bool, isStepped);
        ZDoubleSpinBox field;
        field.setLocale(QLocale::c());
        field.setFixupWithStep(true);
        field.setKeyboardTracking(isTracking);
        field.setSingleStep(0.5);
        field.selectAll();
        QTest::keyClicks(&field, "1.3");
        if (isStepped) {
            QTest::keyClick(&field, Qt::Key_Up);
            QTest::keyClick(&field, Qt::Key_Up);
            QTest::keyClick(&field, Qt::Key_Down);
        } else {
            field.setValue(1.8);
        }
        const double value = field.value();
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(field.value(), value);
        QCOMPARE(value, isStepped && !isTracking ? 2 : 1.8);
    }

    void unchangedEditableInFocusKeepsTheFocusPolicy()
    {
        for (QWidget* field : QWidgetList{new ZCustomSlider, new ZSpinBox, new ZDoubleSpinBox}) {
            const QScopedPointer<QWidget> owner(field);
            field->setFocusPolicy(Qt::StrongFocus);
            field->setProperty("editableInFocus", false);
            QCOMPARE(field->focusPolicy(), Qt::StrongFocus);
        }
    }
};

VX_TEST_MAIN(tst_KitFields)
#include "tst_KitFields.moc"
