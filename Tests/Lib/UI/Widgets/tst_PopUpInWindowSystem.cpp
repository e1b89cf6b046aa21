#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QScreen>

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace {

// A window without a frame, so that it is where it is put, that is a button in the corner.
struct Scene
{
    explicit Scene(const QPoint& position) : button(new ButtonWithPopUpContainer(&window))
    {
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.setGeometry(QRect(position, QSize(200, 100)));
        button->setGeometry(0, 0, 60, 30);
        auto* content = new QWidget;
        content->setFixedSize(150, 90);
        button->AppendWidget(content);
        popUp = button->findChild<QWidget*>("popUpWindow");
        window.show();
    }

    QPoint At(const QPoint& local) const { return window.mapToGlobal(local); }

    QWidget window;
    ButtonWithPopUpContainer* button;
    QWidget* popUp;
};

} // namespace

class tst_PopUpInWindowSystem : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickOpensAndClickOutsideCloses()
    {
        Scene scene(QPoint(300, 300));
        QVERIFY(QTest::qWaitForWindowActive(&scene.window));
        Support::Click(scene.At({20, 10}));
        QTRY_VERIFY(scene.popUp->isVisible());
        QVERIFY(scene.button->isChecked());
        QVERIFY(QTest::qWaitForWindowExposed(scene.popUp));
        QCOMPARE(scene.popUp->geometry(), QRect(300, 330, 150, 90));

        Support::Click(scene.popUp->mapToGlobal(QPoint(70, 40)));
        QVERIFY(scene.popUp->isVisible());
        Support::Click(scene.At({190, 10}));
        QTRY_VERIFY(!scene.popUp->isVisible());
        QVERIFY(!scene.button->isChecked());

        // Its own button closes it too, and does not open it again at once.
        Support::Click(scene.At({20, 10}));
        QTRY_VERIFY(scene.popUp->isVisible());
        Support::Click(scene.At({20, 10}));
        QTRY_VERIFY(!scene.popUp->isVisible());
        Support::MovePointer(scene.At({21, 11}));
        QVERIFY(!scene.popUp->isVisible() && !scene.button->isChecked());
        Support::Click(scene.At({20, 10}));
        QTRY_VERIFY(scene.popUp->isVisible());

        // Beside every window of ours.
        Support::Click(QPoint(5, 5));
        QTRY_VERIFY(!scene.popUp->isVisible());
        QVERIFY(!scene.button->isChecked());
    }

    void staysOnTheScreen_data()
    {
        QTest::addColumn<QPoint>("corner"); // 0 or 1 of the screen's free width and height
        QTest::newRow("top left") << QPoint(0, 0);
        QTest::newRow("top right") << QPoint(1, 0);
        QTest::newRow("bottom left") << QPoint(0, 1);
        QTest::newRow("bottom right") << QPoint(1, 1);
    }

    void staysOnTheScreen()
    {
        QFETCH(QPoint, corner);
        const QSize screen = QGuiApplication::primaryScreen()->size();
        const QPoint position(corner.x() * (screen.width() - 60), corner.y() * (screen.height() - 30));
        Scene scene(position);
        scene.window.setFixedSize(60, 30);
        QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
        QTRY_COMPARE(scene.window.pos(), position);
        scene.button->SetPopupCanOverlapButton(false);
        Support::Click(scene.At({20, 10}));
        QTRY_VERIFY(scene.popUp->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(scene.popUp));
        QCOMPARE(scene.popUp->pos(),
                 QPoint(corner.x() ? screen.width() - 1 - 150 : 0, corner.y() ? position.y() - 90 : 30));
        Support::Click(QPoint(screen.width() / 2, screen.height() / 2));
        QTRY_VERIFY(!scene.popUp->isVisible());
    }
};

VX_TEST_MAIN(tst_PopUpInWindowSystem)
#include "tst_PopUpInWindowSystem.moc"
