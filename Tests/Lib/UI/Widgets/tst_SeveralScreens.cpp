#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZSliderButton.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/ButtonWithPopUpList.h>
#include <UI/Widgets/ClickSoundComboBox.h>
#include <UI/Widgets/MaskedToolTip.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QDeadlineTimer>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QWindow>

using namespace Zelkor::Vx;
using namespace Zelkor::Vx::UI;

namespace {

// The screens of the server, in the order of its outputs. The left and the upper one have scale factors.
enum ScreenName { PRIMARY, LEFT, ABOVE, RIGHT };
constexpr QRect SCREENS[] = {{640, 600, 800, 600}, {0, 700, 320, 240}, {700, 0, 533, 400}, {1440, 700, 640, 480}};
const bool areScaled = qputenv("QT_SCREEN_SCALE_FACTORS", "DUMMY0=1;DUMMY1=2;DUMMY2=1.5;DUMMY3=1") &&
                       qputenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");

// Buttons in corners with other screens beyond.
constexpr QSize BUTTON(60, 40);
constexpr QRect CORNERS[] = {{{640, 600}, BUTTON}, {{260, 900}, BUTTON}, {{700, 360}, BUTTON}};
constexpr QSize POP_UP(100, 80);

void AppendContent(ButtonWithPopUpContainer& button)
{
    auto* content = new QWidget;
    content->setFixedSize(POP_UP);
    button.AppendWidget(content);
}

QWidget* MakeButton(const QByteArray& kind, QWidget* window)
{
    if (kind == "slider") {
        return new ZSliderButton(window);
    } else if (kind == "panel") {
        auto* button = new ButtonWithPopUpContainer(window);
        button->AppendWidget(new QLabel("a text that is wider than the button"));
        return button;
    } else if (kind == "menu") {
        auto* button = new ButtonWithPopUpList(window);
        button->AppendItem("an item that is wider than its button", {});
        return button;
    }
    auto* box =
        kind == "click sounds" ? static_cast<QComboBox*>(new ClickSoundComboBox(window)) : new ZComboBox(window);
    box->addItems({"one", "another item", "an item that is wider than its combo box"});
    return box;
}

// Without the window manager, whose late messages let Qt report old positions.
void ShowAt(QWidget& window, const QRect& place)
{
    window.setWindowFlag(Qt::BypassWindowManagerHint);
    window.setGeometry(place);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.geometry(), place);
}

} // namespace

class tst_SeveralScreens : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QScreen* screen : QGuiApplication::screens())
            QCOMPARE(screen->geometry(), SCREENS[screen->name().right(1).toInt()]);
        QCOMPARE(QGuiApplication::screens().size(), 4);
        QCOMPARE(QGuiApplication::primaryScreen()->geometry(), SCREENS[PRIMARY]);
        // In Qt 5, these scale factors change the size of text in points.
        QFont font;
        font.setPixelSize(13);
        QApplication::setFont(font);
    }

    void popUpIsPlacedOnTheScreenOfItsButton_data()
    {
        QTest::addColumn<int>("screen");
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("direction");
        for (const int screen : {PRIMARY, LEFT, ABOVE}) {
            for (int i = 0; i < 36; ++i)
                QTest::addRow("screen %d, anchor %d, direction %d", screen, i / 6, i % 6) << screen << i / 6 << i % 6;
        }
    }

    void popUpIsPlacedOnTheScreenOfItsButton()
    {
        QFETCH(int, screen);
        QFETCH(int, anchor);
        QFETCH(int, direction);
        ButtonWithPopUpContainer button;
        button.SetPreferredPopupAnchor(ButtonWithPopUpContainer::PreferredPopupAnchor(anchor));
        button.SetPreferredPopupDirection(ButtonWithPopUpContainer::PreferredPopupDirection(direction));
        AppendContent(button);
        ShowAt(button, CORNERS[screen]);
        button.ShowPopup();
        const QWidget* popUp = QApplication::activePopupWidget();
        QVERIFY(popUp);
        QVERIFY(QTest::qWaitForWindowExposed(popUp->windowHandle()));
        // Until its last configuration arrives, Qt may report the size at its creation.
        QTRY_COMPARE(popUp->size(), POP_UP);
        QVERIFY(SCREENS[screen].contains(popUp->geometry()));
        QVERIFY(popUp->geometry().adjusted(-1, -1, 1, 1).intersects(CORNERS[screen]));
        QCOMPARE(popUp->windowHandle()->screen()->geometry(), SCREENS[screen]);
    }

    void everyKindOfPopUpOpensOnTheScreenOfItsButton_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QRect>("window");
        QTest::addColumn<int>("x"); // of the button in the window
        QTest::addColumn<int>("screen");
        for (const char* kind : {"panel", "menu", "slider", "combo", "click sounds"}) {
            const auto row = [kind](const char* name, const QRect& window, int x, int screen) {
                QTest::addRow("%s, %s", kind, name) << QByteArray(kind) << window << x << screen;
            };
            row("primary", CORNERS[PRIMARY], 0, PRIMARY);
            row("left", CORNERS[LEFT], 0, LEFT);
            row("above", CORNERS[ABOVE], 0, ABOVE);
            row("centre on the primary screen, window on the right", {1300, 720, 400, 40}, 100, PRIMARY);
            row("centre on the right, window on the primary screen", {1200, 720, 300, 40}, 215, RIGHT);
        }
    }

    void everyKindOfPopUpOpensOnTheScreenOfItsButton()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QRect, window);
        QFETCH(int, x);
        QFETCH(int, screen);
        QWidget parent;
        QWidget* button = MakeButton(kind, &parent);
        button->setGeometry(QRect({x, 0}, BUTTON));
        ShowAt(parent, window);
        QRect place;
        QRect shownOn;
        const QDeadlineTimer deadline(3000);
        QTimer timer; // a menu runs an event loop
        connect(&timer, &QTimer::timeout, this, [&] {
            QWidget* popUp = QApplication::activePopupWidget();
            if (!popUp)
                return;
            place = popUp->geometry();
            shownOn = popUp->windowHandle()->screen()->geometry();
            if ((SCREENS[screen].contains(place) && shownOn == SCREENS[screen]) || deadline.hasExpired())
                popUp->close();
        });
        timer.start(10);
        QTest::keyClick(button, kind == "menu" ? Qt::Key_F4 : Qt::Key_Space);
        QTRY_VERIFY(!place.isNull());
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QCOMPARE(shownOn, SCREENS[screen]);
        QVERIFY(SCREENS[screen].contains(place));
        const QRect onScreen(window.topLeft() + QPoint(x, 0), BUTTON);
        QVERIFY(place.adjusted(-1, -1, 1, 1).intersects(onScreen));
    }

    void clickOpensAndClickOutsideCloses()
    {
        ButtonWithPopUpContainer button;
        AppendContent(button);
        ShowAt(button, CORNERS[PRIMARY]);
        const auto clickButton = [&](bool opens) {
            Support::Click(CORNERS[PRIMARY].center());
            QTRY_COMPARE(button.isChecked(), opens);
            QCOMPARE(bool(QApplication::activePopupWidget()), opens);
        };
        clickButton(true);
        Support::Click(QApplication::activePopupWidget()->geometry().center());
        QVERIFY(button.isChecked());
        Support::Click({1200, 1100}); // outside all windows of the process
        QTRY_VERIFY(!button.isChecked());
        clickButton(true);
        clickButton(false); // does not reopen
    }

    void hintOpensAtItsPointOnAnotherScreen()
    {
        QWidget owner;
        ShowAt(owner, CORNERS[ABOVE]);
        MaskedToolTip tip(&owner);
        tip.setWindowFlag(Qt::BypassWindowManagerHint);
        tip.SetText("text");
        const QPoint point = SCREENS[LEFT].center();
        tip.Show(point);
        QVERIFY(QTest::qWaitForWindowExposed(&tip));
        QTRY_COMPARE(tip.pos(), point);
        QCOMPARE(tip.windowHandle()->screen()->geometry(), SCREENS[LEFT]);
    }
};

VX_TEST_MAIN(tst_SeveralScreens)
#include "tst_SeveralScreens.moc"
