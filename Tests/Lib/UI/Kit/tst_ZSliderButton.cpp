#include <UI/Kit/ZSliderButton.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>
#endif

namespace {

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

    static QRect OnScreen(const QWidget* widget) { return {widget->mapToGlobal(QPoint(0, 0)), widget->size()}; }

private Q_SLOTS:
    void pagesFollowTheLevel()
    {
        ZSliderButton button;
        auto* stack = button.findChild<QStackedWidget*>();
        auto* slider = button.findChild<QSlider*>("slider");
        QCOMPARE(stack->currentWidget()->property("styleTag"), QVariant("ZSliderButton4"));
        QSignalSpy changed(&button, &ZSliderButton::valueChanged);
        const QVector<QVector<int>> rows{{1, 1, 1},   {24, 24, 1},   {25, 25, 2},   {74, 74, 3}, {75, 75, 4},
                                         {49, 49, 2}, {100, 100, 2}, {150, 100, 2}, {-3, 0, 0},  {-3, 0, 0}};
        for (const QVector<int>& row : rows) {
            InRow(QString::number(row[0]));
            button.setValue(row[0]);
            QCOMPARE(changed, QList<QVariantList>{{row[1]}});
            QCOMPARE(QPoint(slider->value(), stack->currentIndex()), QPoint(row[1], row[2]));
            changed.clear();
        }
        slider->setValue(30);
        QVERIFY(changed == QList<QVariantList>{{30}} && stack->currentIndex() == 2);
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
        connect(button, &ZSliderButton::valueChanged, this, [&] { delete button; });
        button->toggle();
        QCOMPARE(events.join(' '), QString("0 on 60 0 off 60 on 0"));
    }

    void opensAboveTheButtonUntilTheFocusGoes()
    {
        for (const bool onTop : {false, true, false}) {
            Scene scene;
            scene.button->setOnTop(!onTop);
            scene.button->setOnTop(onTop);
            QCOMPARE(scene.frame->windowType(), onTop ? Qt::SplashScreen : Qt::Popup);
            QVERIFY(QTest::qWaitForWindowActive(&scene.window));
            scene.button->setSliderHeight(90);
            scene.click();
            QTRY_VERIFY(scene.slider->hasFocus() && scene.isChecked());
            QCOMPARE(OnScreen(scene.frame),
                     QRect(OnScreen(scene.button).topLeft() - QPoint(0, 90), QSize(scene.button->width(), 90)));
            onTop ? scene.window.activateWindow() : void(scene.frame->close());
            QTRY_VERIFY(!scene.frame->isVisible() && !scene.isChecked());
            QTRY_VERIFY(scene.other->hasFocus());

            // Whatever happens to the button while it is open.
            for (const char* what : {"onTop", "visible", "enabled"}) {
                InRow(what);
                scene.click();
                QTRY_VERIFY(scene.isChecked());
                const QVariant before = scene.button->property(what);
                scene.button->setProperty(what, !before.toBool());
                QTRY_VERIFY(!scene.frame->isVisible() && !scene.isChecked());
                scene.button->setProperty(what, before);
            }
            scene.click();
            QTRY_VERIFY(scene.isChecked());
            delete scene.button;
            QVERIFY(!scene.frame && !scene.slider);
        }
    }

#if defined(Q_OS_WIN)
    // Only here have pop-ups a shadow of their own.
    void shadowGoesAndStaysAway()
    {
        Scene scene;
        const auto hasShadow = [&] {
            return bool(GetClassLongW(reinterpret_cast<HWND>(scene.frame->winId()), GCL_STYLE) & CS_DROPSHADOW);
        };
        QVERIFY(hasShadow());
        for (const bool on : {true, false, true}) {
            const bool before = hasShadow();
            scene.button->setShadow(on);
            QCOMPARE(hasShadow(), before && on);
        }
    }
#endif

    void aSecondClickClosesIt_data()
    {
        QTest::addColumn<bool>("onTop");
        QTest::newRow("pop-up") << false;
        QTest::newRow("on top") << true;
    }

    // The press that closes the slider is not one that opens it again.
    void aSecondClickClosesIt()
    {
        QFETCH(bool, onTop);
        Scene scene;
        scene.button->setOnTop(onTop);
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
        QVERIFY(!Support::TurnWheel(scene.button, {0, 120}));
        QTest::keyClick(scene.other, Qt::Key_Tab);
        QSignalSpy changed(scene.button.data(), &ZSliderButton::valueChanged);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_End, Qt::Key_End, Qt::Key_Home})
            QTest::keyClick(scene.button, key);
        QCOMPARE(changed, QList<QVariantList>({{1}, {11}, {10}, {100}, {0}}));
        QVERIFY(Support::TurnWheel(scene.button, {0, 120}) && scene.button->value() > 0);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
            QTest::keyClick(scene.button, key);
            QTRY_VERIFY(scene.slider->hasFocus());
            QTest::keyClick(scene.slider, Qt::Key_Home);
            QTest::keyClick(scene.slider, key == Qt::Key_Space ? Qt::Key_Escape : Qt::Key_Return);
            QVERIFY(scene.button->value() == 0 && !scene.frame->isVisible());
            QTRY_VERIFY(scene.button->hasFocus());
        }
    }
};

VX_TEST_MAIN(tst_ZSliderButton)
#include "tst_ZSliderButton.moc"
