#include <UI/Kit/ZSliderButton.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QRect OnScreen(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

/// A button in the middle of a window, another widget before it, and the parts to look at.
struct Scene
{
    explicit Scene(const QPoint& place = QPoint(300, 300))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(button);
        window.move(place);
        window.show();
        other->setFocus();
    }

    void click() const { QTest::mouseClick(stack->currentWidget(), Qt::LeftButton); }
    bool isChecked() const { return static_cast<QToolButton*>(stack->currentWidget())->isChecked(); }

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

private Q_SLOTS:
    void pagesFollowTheLevel()
    {
        ZSliderButton button;
        auto* stack = button.findChild<QStackedWidget*>();
        auto* slider = button.findChild<QSlider*>("slider");
        QCOMPARE(stack->currentWidget()->property("styleTag").toString(), QString("ZSliderButton4"));
        QCOMPARE(stack->property("styleTag").toString(), QString("ZSliderButtonMain"));
        QSignalSpy changed(&button, &ZSliderButton::valueChanged);
        const QVector<QVector<int>> rows{{1, 1, 1},   {24, 24, 1},   {25, 25, 2},   {74, 74, 3}, {75, 75, 4},
                                         {49, 49, 2}, {100, 100, 2}, {150, 100, 2}, {-3, 0, 0},  {-3, 0, 0}};
        for (const QVector<int>& row : rows) {
            InRow(QString::number(row[0]));
            button.setValue(row[0]);
            QCOMPARE(changed.takeFirst(), QVariantList{row[1]});
            QVERIFY(changed.isEmpty());
            QCOMPARE(slider->value(), row[1]);
            QCOMPARE(stack->currentIndex(), row[2]);
        }
        slider->setValue(30);
        QCOMPARE(changed, QList<QVariantList>{{30}});
        QCOMPARE(stack->currentIndex(), 2);
    }

    void togglesToZeroAndBack()
    {
        QPointer<ZSliderButton> button = new ZSliderButton;
        QStringList events;
        connect(button, &ZSliderButton::valueChanged, this, [&](int value) { events += QString::number(value); });
        connect(button, &ZSliderButton::toggled, this, [&](bool on) { events += on ? "on" : "off"; });
        button->toggle(true);
        button->setValue(60);
        button->toggle();
        button->toggle();
        QCOMPARE(events, QStringList({"0", "on", "60", "0", "off", "60", "on"}));
        connect(button, &ZSliderButton::valueChanged, this, [&] { delete button; });
        button->toggle();
        QCOMPARE(events.mid(7), QStringList("0"));
    }

    void opensAboveTheButtonUntilTheFocusGoes()
    {
        for (const bool onTop : {false, true, false}) {
            Scene scene;
            scene.button->setOnTop(true);
            scene.button->setOnTop(onTop);
            QCOMPARE(scene.frame->windowType(), onTop ? Qt::SplashScreen : Qt::Popup);
            QCOMPARE(scene.frame->parentWidget(), onTop ? nullptr : scene.button.data());
            QVERIFY(QTest::qWaitForWindowActive(&scene.window));
            scene.button->setSliderHeight(90);
            scene.click();
            QVERIFY(scene.frame->isVisible());
            QTRY_VERIFY(scene.slider->hasFocus() && scene.isChecked());
            QCOMPARE(OnScreen(scene.frame),
                     QRect(OnScreen(scene.button).topLeft() - QPoint(0, 90), QSize(scene.button->width(), 90)));
            onTop ? scene.window.activateWindow() : void(scene.frame->close());
            QTRY_VERIFY(!scene.frame->isVisible() && !scene.isChecked());
            QTRY_VERIFY(scene.other->hasFocus());

            // Whatever happens to the button while it is open.
            for (const QString what : {"other window", "hidden", "disabled"}) {
                InRow(what);
                scene.click();
                QTRY_VERIFY(scene.isChecked());
                if (what == "other window")
                    scene.button->setOnTop(!onTop);
                else
                    scene.button->setProperty(what == "hidden" ? "visible" : "enabled", false);
                QTRY_VERIFY(!scene.frame->isVisible() && !scene.isChecked());
                scene.button->setOnTop(onTop);
                scene.button->setEnabled(true);
                scene.button->show();
                QCOMPARE(scene.frame->windowType(), onTop ? Qt::SplashScreen : Qt::Popup);
            }
            scene.click();
            QTRY_VERIFY(scene.isChecked());
            delete scene.button;
            QVERIFY(!scene.frame && !scene.slider);
        }
    }

    // The press that closes the slider is not one that opens it again.
    void aSecondClickClosesIt()
    {
        Scene scene;
        QVERIFY(QTest::qWaitForWindowActive(&scene.window));
        for (const bool open : {true, false, true}) {
            Support::Click(OnScreen(scene.button).center());
            QTRY_COMPARE(scene.frame->isVisible(), open);
            QTRY_VERIFY(!static_cast<QToolButton*>(scene.stack->currentWidget())->isDown());
            QCOMPARE(scene.frame->isVisible(), open);
        }
    }

    void staysOnTheScreen()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        for (const QPoint place : {screen.topLeft(), screen.bottomRight() - QPoint(20, 40)}) {
            Scene scene(place);
            QVERIFY(QTest::qWaitForWindowActive(&scene.window));
            for (const int height : {120, screen.height(), -5, INT_MAX, INT_MIN}) {
                scene.button->setSliderHeight(height);
                scene.click();
                QVERIFY(scene.frame->isVisible());
                QVERIFY(screen.contains(scene.frame->geometry()));
                QVERIFY(height > 120 || !scene.frame->geometry().intersects(OnScreen(scene.button)));
                scene.frame->hide();
            }
        }
    }

    void worksByKeyboardAndWheel()
    {
        Scene scene;
        QVERIFY(QTest::qWaitForWindowActive(&scene.window));
        const auto turn = [&] {
            QWheelEvent event({5, 5}, OnScreen(scene.button).topLeft(), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(scene.button, &event);
            return event.isAccepted();
        };
        QVERIFY(!turn());
        QTest::keyClick(scene.other, Qt::Key_Tab);
        QVERIFY(scene.button->hasFocus());
        QSignalSpy changed(scene.button.data(), &ZSliderButton::valueChanged);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_End, Qt::Key_End, Qt::Key_Home})
            QTest::keyClick(scene.button, key);
        QCOMPARE(changed, QList<QVariantList>({{1}, {11}, {10}, {100}, {0}}));
        QVERIFY(turn());
        QVERIFY(scene.button->value() > 0);

        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
            QTest::keyClick(scene.button, key);
            QTRY_VERIFY(scene.slider->hasFocus());
            QTest::keyClick(scene.slider, Qt::Key_Home);
            QCOMPARE(scene.button->value(), 0);
            QTest::keyClick(scene.slider, key == Qt::Key_Space ? Qt::Key_Escape : Qt::Key_Return);
            QVERIFY(!scene.frame->isVisible());
            QTRY_VERIFY(scene.button->hasFocus());
        }

        // The button that shows looks focused when it is.
        scene.window.setStyleSheet(
            "QToolButton { border: none; background: black } QToolButton:focus { background: red }");
        const auto color = [&] { return scene.button->grab().toImage().pixelColor(1, 1); };
        QCOMPARE(color(), QColor(Qt::red));
        scene.other->setFocus();
        QCOMPARE(color(), QColor(Qt::black));

        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(scene.button);
        QCOMPARE(accessible->role(), QAccessible::Slider);
        QCOMPARE(accessible->childCount(), 0);
        QVERIFY(!accessible->text(QAccessible::Name).isEmpty());
        accessible->valueInterface()->setCurrentValue(42);
        QCOMPARE(scene.button->value(), 42);
        QCOMPARE(accessible->text(QAccessible::Value), QString("42"));
        QCOMPARE(accessible->valueInterface()->maximumValue(), QVariant(100));
    }
};

VX_TEST_MAIN(tst_ZSliderButton)
#include "tst_ZSliderButton.moc"
