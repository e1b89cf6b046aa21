#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZDoubleSlider.h>
#include <UI/Kit/ZDoubleSpinBox.h>
#include <UI/Kit/ZSpinBox.h>

#include <Support/EventSpy.h>
#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QWheelEvent>
#include <QWindow>

#include <limits>

constexpr double INF = std::numeric_limits<double>::infinity();

namespace {

/// Rounds typed numbers to its step.
struct SteppedField : ZDoubleSpinBox
{
    explicit SteppedField(bool isTracking)
    {
        setFixupWithStep(true);
        setKeyboardTracking(isTracking);
        setLocale(QLocale::c());
    }

    void type(const QString& number)
    {
        selectAll();
        QTest::keyClicks(this, number);
    }
};

} // namespace

class tst_KitFields : public Support::TestCase
{
    Q_OBJECT

private:
    // Returns how many wheel events reach the window of the field. Events of a touch pad have a pixel delta.
    static int PropagatedWheelEvents(QWidget* field, int notches, int pixels = 0)
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
    void editableInFocusIgnoresTheWheelWithoutFocus_data()
    {
        QTest::addColumn<QWidget*>("field");
        for (QWidget* field : QWidgetList{new ZCustomSlider, new ZSpinBox, new ZDoubleSpinBox})
            QTest::newRow(field->metaObject()->className()) << field;
    }

    void editableInFocusIgnoresTheWheelWithoutFocus()
    {
        QFETCH(QWidget*, field);
        QWidget window;
        field->setParent(&window);
        Support::ShowActive(window);
        QCOMPARE(PropagatedWheelEvents(field, 1), 0);
        const double before = field->property("value").toDouble();
        QVERIFY(before > 0);
        window.setFocus();
        field->setProperty("editableInFocus", true);
        QCOMPARE(PropagatedWheelEvents(field, 1), 1);
        QVERIFY(!field->hasFocus());
        QCOMPARE(field->property("value").toDouble(), before);
        field->setFocus();
        QCOMPARE(PropagatedWheelEvents(field, 1), 0);
        QVERIFY(field->property("value").toDouble() > before);
        // Setting the current value keeps a focus policy of the application.
        field->setFocusPolicy(Qt::WheelFocus);
        field->setProperty("editableInFocus", true);
        QCOMPARE(field->focusPolicy(), Qt::WheelFocus);
    }

    void comboBoxIgnoresTheDisabledWheel()
    {
        ZComboBox combo;
        combo.addItems({"a", "b"});
        for (const bool enabled : {false, true}) {
            combo.setMouseWheelEnabled(enabled);
            QCOMPARE(Support::TurnWheel(&combo, {0, -120}), enabled);
            QCOMPARE(combo.currentIndex(), int(enabled));
        }
        QCOMPARE(combo.focusPolicy(), Qt::StrongFocus);
    }

    void focusedSliderAcceptsScrollingBeyondItsEnd()
    {
        QWidget window;
        ZCustomSlider slider(&window);
        Support::ShowActive(window);
        const auto propagated = [&] {
            QVector<int> counts; // down and up, at the minimum and at the maximum
            for (const int value : {0, 99}) {
                slider.setValue(value);
                counts << PropagatedWheelEvents(&slider, 0, -5) << PropagatedWheelEvents(&slider, 0, 5);
            }
            return counts;
        };
        slider.setEditableInFocus(true);
        window.setFocus();
        QCOMPARE(propagated(), QVector<int>(4, 1));
        slider.setFocus();
        QCOMPARE(propagated(), QVector<int>({0, 1, 1, 0}));
        slider.setEditableInFocus(false);
        QCOMPARE(propagated(), QVector<int>(4, 1));
    }

    void doubleSliderClampsAndRoundsItsValue()
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
        const QMap<double, int> positions{{-INF, -50}, {-2.56, -25}, {-2.46, -24}, {2.44, 24}, {11, 100}, {INF, 100}};
        for (const double value : positions.keys()) {
            slider.setDoubleValue(value);
            QCOMPARE(slider.value(), positions[value]);
            QCOMPARE(changed.last(), QVariantList{positions[value] * 0.1});
        }
        // With a negative multiplier, the minimum of the position is the maximum of the value.
        slider.setMultiplier(-0.5);
        QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(&slider)->valueInterface();
        value->setCurrentValue(-10);
        QCOMPARE(slider.value(), 20);
        QCOMPARE(value->minimumValue(), QVariant(-50.0));
    }

    void typedNumbersAreRoundedToSteps()
    {
        for (const bool isTracking : {true, false}) {
            // The value when editing finishes, in a range up to 10. It was 1.2 before.
            const auto finished = [isTracking](double minimum, double step, const QString& typed) {
                SteppedField field(isTracking);
                field.setRange(minimum, 10);
                field.setSingleStep(step);
                field.setSuffix(" s");
                field.setValue(1.2);
                QVector<double> values;
                connect(&field, &QDoubleSpinBox::editingFinished, &field, [&] { values += field.value(); });
                QSignalSpy changed(&field, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
                field.type(typed + '\r');
                [&] { QCOMPARE(values, QVector<double>{field.value()}); }();
                [&] { QVERIFY(isTracking || changed.size() <= 1); }();
                return field.text();
            };
            QCOMPARE(finished(0, 0.25, "1.3"), QString("1.25 s"));
            QCOMPARE(finished(-3.1, 1, "-2"), QString("-2.10 s")); // steps begin at the minimum
            QCOMPARE(finished(5, 2, "4"), QString("5.00 s"));
            QCOMPARE(finished(-5, 3, "-"), QString("1.20 s"));
            QCOMPARE(finished(0, 0, "1.3"), QString("1.30 s"));
            QCOMPARE(finished(-1e300, 3, "1.3"), QString("1.30 s")); // steps are too small to count
            QCOMPARE(finished(0, 0.125, "0.12"), QString("0.13 s")); // only two decimals
        }
    }

    void onlyTypedNumbersAreRounded()
    {
        for (const bool isTracking : {true, false}) {
            SteppedField field(isTracking);
            field.setSingleStep(0.5);
            field.type("1.3");
            field.setValue(1.8);
            QTest::keyClick(&field, Qt::Key_Return);
            QCOMPARE(field.value(), 1.8);
            field.type("1.3");
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Return})
                QTest::keyClick(&field, key);
            QCOMPARE(field.value(), isTracking ? 1.8 : 2);
        }
    }
};

VX_TEST_MAIN(tst_KitFields)
#include "tst_KitFields.moc"
