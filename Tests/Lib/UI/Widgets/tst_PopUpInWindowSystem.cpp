#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QScreen>

using Support::Click;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;

class tst_PopUpInWindowSystem : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickOpensAndClickOutsideCloses()
    {
        // A window without a frame, so that it is where it is put, that has the button in its corner.
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(300, 300, 200, 100);
        ButtonWithPopUpContainer button(&window);
        button.setGeometry(0, 0, 60, 30);
        auto* content = new QWidget;
        content->setFixedSize(150, 90);
        button.AppendWidget(content);
        auto* popUp = button.findChild<QWidget*>("popUpWindow");
        const auto clickButton = [&] { Click(window.mapToGlobal({20, 10})); };
        const auto isOpen = [&] { return popUp->isVisible() && button.isChecked(); };
        const auto isClosed = [&] { return !popUp->isVisible() && !button.isChecked(); };
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        clickButton();
        QTRY_VERIFY(isOpen());
        QVERIFY(QTest::qWaitForWindowExposed(popUp));
        QCOMPARE(popUp->geometry(), QRect(300, 330, 150, 90));
        Click(popUp->mapToGlobal(QPoint(70, 40)));
        QVERIFY(isOpen());
        Click(window.mapToGlobal({190, 10}));
        QTRY_VERIFY(isClosed());

        // Its own button closes it too, and does not open it again at once.
        clickButton();
        QTRY_VERIFY(isOpen());
        clickButton();
        QTRY_VERIFY(isClosed());
        Support::MovePointer(window.mapToGlobal({21, 11}));
        QVERIFY(isClosed());
        clickButton();
        QTRY_VERIFY(isOpen());
        Click(QPoint(5, 5)); // beside every window of ours
        QTRY_VERIFY(isClosed());

        // In each corner of the screen it stays on the screen and off the button.
        const QSize screen = QGuiApplication::primaryScreen()->size();
        const QPoint far(screen.width() - 60, screen.height() - 30);
        window.setFixedSize(60, 30);
        button.SetPopupCanOverlapButton(false);
        for (const QPoint position : {QPoint(0, 0), QPoint(far.x(), 0), QPoint(0, far.y()), far}) {
            window.move(position);
            QTRY_COMPARE(window.pos(), position);
            clickButton();
            QTRY_VERIFY(isOpen());
            QVERIFY(QTest::qWaitForWindowExposed(popUp));
            QCOMPARE(popUp->pos(),
                     QPoint(position.x() ? screen.width() - 1 - 150 : 0, position.y() ? position.y() - 90 : 30));
            Click(QPoint(screen.width() / 2, screen.height() / 2));
            QTRY_VERIFY(isClosed());
        }
    }
};

VX_TEST_MAIN(tst_PopUpInWindowSystem)
#include "tst_PopUpInWindowSystem.moc"
