#include <UI/Kit/ZSliderButton.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QFrame>
#include <QLineEdit>
#include <QScreen>
#include <QSlider>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>
#endif

namespace {

/// A button in an active window, below another widget with the focus.
struct Fixture
{
    explicit Fixture(bool onTop = false, const QPoint& place = QPoint(300, 300))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(button);
        button->setOnTop(onTop);
        window.move(place);
        other->setFocus();
        Support::ShowActive(window);
    }

    // Else the window system activates the window after the last pop-up has closed, which may close the next one.
    void open()
    {
        Support::ShowActive(window);
        QTest::mouseClick(level(), Qt::LeftButton);
        QTRY_VERIFY(slider->hasFocus());
        QVERIFY(level()->isChecked());
    }

    QToolButton* level() const { return static_cast<QToolButton*>(stack->currentWidget()); }

    QWidget window;
    QLineEdit* other = new QLineEdit;
    QPointer<ZSliderButton> button = new ZSliderButton;
    QStackedWidget* stack = button->findChild<QStackedWidget*>();
    QPointer<QFrame> frame = button->findChild<QFrame*>("sliderFrame");
    QPointer<QSlider> slider = button->findChild<QSlider*>("slider");
};

} // namespace

class tst_ZSliderButton : public Support::TestCase
{
    Q_OBJECT

    static QRect OnScreen(const QWidget* widget) { return {widget->mapToGlobal(QPoint(0, 0)), widget->size()}; }

private Q_SLOTS:
    void levelStepFollowsTheValue()
    {
        ZSliderButton button;
        auto* stack = button.findChild<QStackedWidget*>();
        auto* slider = button.findChild<QSlider*>("slider");
        QCOMPARE(stack->currentWidget()->property("styleTag"), QVariant("ZSliderButton4"));
        QSignalSpy changed(&button, &ZSliderButton::valueChanged);
        const auto pageAt = [&](int value) {
            button.setValue(value);
            return stack->currentIndex();
        };
        slider->setValue(49);
        QCOMPARE(stack->currentIndex(), 2);
        QCOMPARE(pageAt(150), 2); // the maximum keeps the step
        QCOMPARE(slider->value(), 100);
        QCOMPARE(pageAt(24), 1);
        QCOMPARE(pageAt(75), 4);
        QCOMPARE(pageAt(-3), 0);
        button.setValue(0);
        QCOMPARE(changed, QList<QVariantList>({{49}, {100}, {24}, {75}, {0}, {0}}));
    }

    void toggleRestoresTheSavedLevel()
    {
        QPointer<ZSliderButton> button = new ZSliderButton;
        QStringList events;
        connect(button, &ZSliderButton::valueChanged, this, [&](int value) { events += QString::number(value); });
        connect(button, &ZSliderButton::toggled, this, [&](bool on) { events += on ? "on" : "off"; });
        button->toggle(true);
        button->setValue(60);
        button->toggle();
        button->toggle();
        connect(button, &ZSliderButton::valueChanged, this, [&] { delete button; });
        button->toggle();
        QCOMPARE(events.join(' '), QString("0 on 60 0 off 60 on 0"));
    }

    void popUpOpensAboveTheButton_data()
    {
        QTest::addColumn<bool>("onTop");
        QTest::newRow("pop-up") << false;
        QTest::newRow("top-level window") << true;
    }

    void popUpOpensAboveTheButton()
    {
        QFETCH(bool, onTop);
        // Away from the button, where a click soon after the pop-up has closed does not open it again.
        Support::MovePointer({5, 5});
        Fixture fixture(!onTop);
        fixture.button->setOnTop(onTop);
        QCOMPARE(fixture.frame->windowType(), onTop ? Qt::SplashScreen : Qt::Popup);
        fixture.button->setSliderHeight(90);
        fixture.open();
        QCOMPARE(OnScreen(fixture.frame),
                 QRect(OnScreen(fixture.button).topLeft() - QPoint(0, 90), QSize(fixture.button->width(), 90)));
        onTop ? fixture.window.activateWindow() : void(fixture.frame->close());
        QTRY_VERIFY(!fixture.frame->isVisible());
        QTRY_VERIFY(!fixture.level()->isChecked());
        QTRY_VERIFY(fixture.other->hasFocus());

        // These changes of the button close the pop-up.
        for (const char* property : {"onTop", "visible", "enabled"}) {
            fixture.open();
            const QVariant before = fixture.button->property(property);
            fixture.button->setProperty(property, !before.toBool());
            QTRY_VERIFY2(!fixture.frame->isVisible(), property);
            QTRY_VERIFY2(!fixture.level()->isChecked(), property);
            fixture.button->setProperty(property, before);
        }
        fixture.open();
        delete fixture.button;
        QVERIFY(!fixture.frame);
        QVERIFY(!fixture.slider);
    }

#if defined(Q_OS_WIN)
    void removedShadowIsNotRestored()
    {
        Fixture fixture;
        const auto hasShadow = [&] {
            return bool(GetClassLongW(reinterpret_cast<HWND>(fixture.frame->winId()), GCL_STYLE) & CS_DROPSHADOW);
        };
        QVERIFY(hasShadow());
        for (const bool on : {true, false, true}) {
            const bool before = hasShadow();
            fixture.button->setShadow(on);
            QCOMPARE(hasShadow(), before && on);
        }
    }
#endif

    void secondClickClosesThePopUp_data()
    {
        popUpOpensAboveTheButton_data();
    }

    void secondClickClosesThePopUp()
    {
        QFETCH(bool, onTop);
        const Fixture fixture(onTop);
        for (const bool open : {true, false, true}) {
            Support::Click(OnScreen(fixture.button).center());
            QTRY_COMPARE(fixture.frame->isVisible(), open);
            QTRY_VERIFY(!fixture.level()->isDown());
            QTRY_VERIFY(open ? fixture.slider->hasFocus() : fixture.window.isActiveWindow());
            QCOMPARE(fixture.frame->isVisible(), open);
        }
    }

    void popUpOfAnyHeightFitsTheScreen()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        Fixture fixture(false, screen.topLeft());
        for (const int height : {120, INT_MAX, INT_MIN}) {
            fixture.button->setSliderHeight(height);
            fixture.open();
            QVERIFY(screen.contains(fixture.frame->geometry()));
            QVERIFY(height > 120 || !fixture.frame->geometry().intersects(OnScreen(fixture.button)));
            fixture.frame->hide();
        }
    }

    void keysAndWheelChangeTheLevel()
    {
        const Fixture fixture;
        QVERIFY(!Support::TurnWheel(fixture.button, {0, 120}));
        QTest::keyClick(fixture.other, Qt::Key_Tab);
        QSignalSpy changed(fixture.button.data(), &ZSliderButton::valueChanged);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_End, Qt::Key_End, Qt::Key_Home})
            QTest::keyClick(fixture.button, key);
        QCOMPARE(changed, QList<QVariantList>({{1}, {11}, {10}, {100}, {0}}));
        QVERIFY(Support::TurnWheel(fixture.button, {0, 120}));
        QVERIFY(fixture.button->value() > 0);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
            QTest::keyClick(fixture.button, key);
            QTRY_VERIFY(fixture.slider->hasFocus());
            QTest::keyClick(fixture.slider, Qt::Key_Home);
            QTest::keyClick(fixture.slider, key == Qt::Key_Space ? Qt::Key_Escape : Qt::Key_Return);
            QCOMPARE(fixture.button->value(), 0);
            QVERIFY(!fixture.frame->isVisible());
            QTRY_VERIFY(fixture.button->hasFocus());
        }
    }
};

VX_TEST_MAIN(tst_ZSliderButton)
#include "tst_ZSliderButton.moc"
