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

        // In a corner it is on the screen that the button is on, and off the button.
        const QSize screen = QGuiApplication::primaryScreen()->size();
        button.SetPopupCanOverlapButton(false);
        window.setFixedSize(60, 30);
        window.move(screen.width() - 60, screen.height() - 30);
        QTRY_COMPARE(window.y(), screen.height() - 30);
        clickButton();
        QTRY_COMPARE(popUp->pos(), QPoint(screen.width() - 1 - 150, screen.height() - 30 - 90));
    }
};

VX_TEST_MAIN(tst_PopUpInWindowSystem)
#include "tst_PopUpInWindowSystem.moc"
