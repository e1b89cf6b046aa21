#include <UI/Kit/ZRuntimeStylesheetEditor.h>
#include <UI/Kit/ZWindowChrome.h>
#include <UI/Widgets/CustomTitleBar.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#if defined(Q_OS_WIN)
#include <QtCore/qt_windows.h>
#endif

using Zelkor::Vx::UI::CustomTitleBar;

namespace {

constexpr QRect PLACE(300, 300, 400, 300);

// A frameless window with chrome, filled by a button.
class Frameless : public QWidget
{
public:
    Frameless() : QWidget(nullptr, Qt::Window)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(button);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        setWindowFlag(Qt::FramelessWindowHint);
        setGeometry(PLACE);
    }

    void ShowAndWait()
    {
        Support::ShowActive(*this);
        // Until this move, the window manager may still report the initial position.
        move(PLACE.topLeft() + QPoint(1, 1));
        QTRY_COMPARE(pos(), PLACE.topLeft() + QPoint(1, 1));
        setGeometry(PLACE);
        QTRY_COMPARE(geometry(), PLACE);
    }

    QToolButton* button = new QToolButton;
    QPointer<ZWindowChrome> chrome = new ZWindowChrome(this);
};

// With a title bar that contains a button of the application.
class Titled : public Frameless
{
public:
    Titled()
    {
        bar->AddWidget(tool);
        bar->setStyleSheet("QToolButton { border: none; min-width: 40px; min-height: 40px }");
        chrome->setTitleBar(bar);
    }

    QToolButton* Button(const char* name) const { return findChild<QToolButton*>(name); }

    CustomTitleBar* bar = new CustomTitleBar(this);
    QToolButton* tool = new QToolButton;
};

QPoint CentreOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

// The window system may see the press one pixel later.
bool IsNear(const QRect& rect, const QRect& other)
{
    const QPoint first = rect.topLeft() - other.topLeft();
    const QPoint last = rect.bottomRight() - other.bottomRight();
    return qMax(first.manhattanLength(), last.manhattanLength()) <= 2;
}

void DoubleClick(const QPoint& global)
{
    Support::Click(global);
    Support::Click(global);
}

QMenu* OpenMenu(QWidget* part)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, part->rect().center(), CentreOf(part));
    QCoreApplication::sendEvent(part, &event);
    return part->window()->findChild<QMenu*>("windowMenu");
}

} // namespace

class tst_ZWindowChrome : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void edgeOrCornerResizes_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QRect>("expected");
        QTest::addColumn<bool>("hasNativeChild");
        const QPoint end = QRect(QPoint(0, 0), PLACE.size()).bottomRight();
        const QPoint middle = end / 2;
        const auto add = [](const char* name, const QPoint& from, const QMargins& grown, bool hasNativeChild = false) {
            QTest::newRow(name) << from << PLACE.marginsAdded(grown) << hasNativeChild;
        };
        add("left", QPoint(0, middle.y()), {-20, 0, 0, 0});
        add("right", QPoint(end.x(), middle.y()), {0, 0, 20, 0});
        add("top", QPoint(middle.x(), 0), {0, -10, 0, 0});
        add("bottom", QPoint(middle.x(), end.y() - 5), {0, 0, 0, 10});
        add("top left", QPoint(15, 2), {-20, -10, 0, 0});
        add("top right", QPoint(end.x(), 0), {0, -10, 20, 0});
        add("bottom left", QPoint(0, end.y() - 15), {-20, 0, 0, 10});
        add("bottom right", end, {0, 0, 20, 10});
        add("content next to the edge", QPoint(6, middle.y()), {});
        add("top left of a native child", QPoint(0, 0), {-20, -10, 0, 0}, true);
    }

    void edgeOrCornerResizes()
    {
        QFETCH(QPoint, from);
        QFETCH(QRect, expected);
        QFETCH(bool, hasNativeChild);
        Frameless window;
        // The edges are above widgets that are added later.
        QWidget added(&window);
        added.resize(PLACE.size());
        added.setAttribute(Qt::WA_NativeWindow, hasNativeChild);
        added.raise();
        window.ShowAndWait();
        Support::Drag(PLACE.topLeft() + from, QPoint(20, 10));
        QTRY_VERIFY(IsNear(window.geometry(), expected));
    }

    void hoverWorksAfterResize_data()
    {
        QTest::addColumn<bool>("isInOtherWindow");
        QTest::newRow("in the window") << false;
        QTest::newRow("in another window") << true;
    }
    void hoverWorksAfterResize()
    {
        QFETCH(bool, isInOtherWindow);
        QWidget other;
        QPushButton otherButton(&other);
        other.setGeometry(PLACE.translated(PLACE.width() + 100, 0));
        Support::ShowActive(other);
        Frameless window;
        window.ShowAndWait();
        Support::Drag(PLACE.bottomRight(), QPoint(20, 10));
        QTRY_VERIFY(window.width() > PLACE.width());
        const QWidget* next = isInOtherWindow ? static_cast<QWidget*>(&otherButton) : window.button;
        Support::MovePointer(CentreOf(next));
        QTRY_VERIFY(next->underMouse());
    }

    void fixedHeightIsNotResized()
    {
        Frameless window;
        window.ShowAndWait();
        window.setFixedHeight(PLACE.height());
        Support::Drag(PLACE.bottomRight(), QPoint(20, 10));
        QTRY_VERIFY(IsNear(window.geometry(), PLACE.marginsAdded({0, 0, 20, 0})));
        QSignalSpy clicked(window.button, &QToolButton::clicked);
        Support::Click(QPoint(PLACE.center().x(), PLACE.bottom() - 1));
        QTRY_COMPARE(clicked.size(), 1);
    }

    void childWindowIsResizedWithinItsLimits()
    {
        QWidget desktop;
        Frameless window;
        desktop.setGeometry(100, 100, 800, 800);
        window.setParent(&desktop, Qt::FramelessWindowHint);
        window.setMinimumWidth(390);
        Support::ShowActive(desktop);
        Support::Drag(window.mapToGlobal(QPoint(0, 0)), QPoint(20, 10));
        const QRect expected = PLACE.marginsRemoved({10, 10, 0, 0});
        QTRY_COMPARE(window.geometry().size(), expected.size());
        QCOMPARE(window.geometry().bottomRight(), expected.bottomRight());
        window.showMaximized();
        QCOMPARE(window.geometry(), desktop.rect());
        window.showNormal();
        QCOMPARE(window.geometry().size(), expected.size());
    }

    void doubleClickMaximizesAndRestores()
    {
        Titled window;
        window.ShowAndWait();
        DoubleClick(CentreOf(window.tool));
        DoubleClick(CentreOf(window.bar));
        QTRY_VERIFY(window.isMaximized());
        QTRY_VERIFY(window.width() > PLACE.width());
        QCOMPARE(window.Button("maximizeButton")->accessibleName(), QString("Restore"));
        DoubleClick(CentreOf(window.bar));
        QTRY_COMPARE(window.geometry(), PLACE);
        QCOMPARE(window.Button("maximizeButton")->accessibleName(), QString("Maximise"));
    }

    void outermostRowOfMaximizedWindowIsContent()
    {
        Titled window;
        window.ShowAndWait();
        Support::Click(CentreOf(window.Button("maximizeButton")));
        QTRY_VERIFY(window.isMaximized());
        QTRY_VERIFY(window.width() > PLACE.width());
        const QPoint corner = window.geometry().topRight();
        Support::Click(corner);
        QTRY_VERIFY(!window.isVisible());
    }

    void maximizeButtonIsHovered()
    {
        Titled window;
        window.ShowAndWait();
        const QToolButton* button = window.Button("maximizeButton");
        for (const QWidget* next : {static_cast<QWidget*>(window.bar), static_cast<QWidget*>(window.button)}) {
            Support::MovePointer(CentreOf(button));
            QTRY_VERIFY(button->underMouse());
            Support::MovePointer(CentreOf(next));
            QTRY_VERIFY(!button->underMouse());
        }
    }

    void windowHasNoFrameAndKeepsItsSize()
    {
        Titled window;
        window.ShowAndWait();
        window.hide();
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
        window.ShowAndWait();
        DoubleClick(CentreOf(window.bar));
        QTRY_VERIFY(window.width() > PLACE.width());
        QCOMPARE(window.windowState() & ~Qt::WindowActive, Qt::WindowMaximized);
        QCOMPARE(window.normalGeometry(), PLACE);
        window.showNormal();
        QTRY_COMPARE(window.geometry(), PLACE);
        QCOMPARE(window.frameGeometry(), PLACE);
    }

    void maximizeButtonFollowsFlagsAndSize()
    {
        Titled window;
        window.ShowAndWait();
        const QToolButton* button = window.Button("maximizeButton");
        QVERIFY(button->isVisible());
        window.setFixedSize(PLACE.size() / 2);
        QVERIFY(!button->isVisible());
        window.setWindowFlag(Qt::WindowMaximizeButtonHint, false);
        window.show();
        QVERIFY(!button->isVisible());
    }

    void windowMenuFollowsState()
    {
        Titled window;
        window.ShowAndWait();
        QVERIFY(!OpenMenu(window.tool));
        QMenu* menu = OpenMenu(window.bar->findChild<QLabel*>("titleLabel"));
        QVERIFY(menu);
        QStringList enabled;
        for (const QAction* action : menu->actions()) {
            if (action->isEnabled())
                enabled += action->text();
        }
        QCOMPARE(enabled.join(' '), QString("Minimise Maximise  Close"));
        QTest::keyClick(menu, Qt::Key_Escape);
        QTRY_VERIFY(!window.findChild<QMenu*>("windowMenu"));

        QTest::keyClick(&window, Qt::Key_Space, Qt::AltModifier);
        menu = window.findChild<QMenu*>("windowMenu");
        QVERIFY(menu);
        menu->actions().constLast()->trigger();
        QTRY_VERIFY(!window.isVisible());
    }

    void plainBarMovesTheWindow_data()
    {
        QTest::addColumn<bool>("hasNativeChild");
        QTest::newRow("plain") << false;
        QTest::newRow("beside a native child") << true;
    }
    void plainBarMovesTheWindow()
    {
        QFETCH(bool, hasNativeChild);
        Frameless window;
        window.button->setAttribute(Qt::WA_NativeWindow, hasNativeChild);
        auto* bar = new QFrame;
        (new QVBoxLayout(bar))->addWidget(new QLabel("title"));
        static_cast<QVBoxLayout*>(window.layout())->insertWidget(0, bar);
        window.chrome->setTitleBar(bar);
        window.ShowAndWait();
        Support::Drag(CentreOf(bar), QPoint(50, 30));
        QTRY_VERIFY(IsNear(window.geometry(), PLACE.translated(50, 30)));
        Support::MovePointer(CentreOf(window.button));
        QTRY_VERIFY(window.button->underMouse());
    }

    void partsAreDeletedInAnyOrder()
    {
        auto* window = new Titled;
        window->ShowAndWait();
        connect(window->Button("maximizeButton"), &QToolButton::clicked, window, [window] { delete window; });
        Support::Click(CentreOf(window->Button("maximizeButton")));

        Titled other;
        delete other.chrome;
        QVERIFY(!other.Button("maximizeButton"));
        QVERIFY(!other.findChild<QWidget*>("resizeBorder"));
        ZWindowChrome chrome(&other);
        chrome.setTitleBar(other.bar);
        QVERIFY(other.Button("maximizeButton"));
        delete other.bar;
        QVERIFY(!chrome.titleBar());
        other.ShowAndWait();
        QTest::keyClick(&other, Qt::Key_Space, Qt::AltModifier);
        QVERIFY(!other.findChild<QMenu*>("windowMenu"));
    }

#if defined(Q_OS_WIN)
    void styleAndPartsAreKnownToWindows()
    {
        Titled window;
        window.ShowAndWait();
        const auto handle = reinterpret_cast<HWND>(window.winId());
        const auto hit = [&](const QPoint& global) {
            return static_cast<int>(SendMessageW(handle, WM_NCHITTEST, 0, MAKELPARAM(global.x(), global.y())));
        };
        const auto style = [&] {
            return static_cast<int>(GetWindowLongPtrW(handle, GWL_STYLE)) &
                   (WS_CAPTION | WS_THICKFRAME | WS_MAXIMIZEBOX);
        };
        QCOMPARE(hit(CentreOf(window.Button("maximizeButton"))), HTMAXBUTTON);
        QCOMPARE(hit(CentreOf(window.bar)), HTCAPTION);
        QCOMPARE(hit(CentreOf(window.tool)), HTCLIENT);
        QCOMPARE(hit(PLACE.topLeft()), HTTOPLEFT);
        QCOMPARE(style(), WS_CAPTION | WS_THICKFRAME | WS_MAXIMIZEBOX);
        window.setFixedSize(PLACE.size());
        QCOMPARE(hit(PLACE.topLeft()), HTCLIENT);
        QCOMPARE(style(), WS_CAPTION);
    }

    void rightClickOpensTheNativeMenu()
    {
        Titled window;
        window.ShowAndWait();
        QTimer timer;
        connect(&timer, &QTimer::timeout, [] {
            if (const HWND menu = FindWindowW(L"#32768", nullptr))
                PostMessageW(menu, WM_KEYDOWN, 'X', 0); // Maximise
        });
        timer.start(100);
        Support::Drag(CentreOf(window.bar), QPoint(), 3);
        QTRY_VERIFY(window.isMaximized());
    }
#endif

    void secondChromeAndNoWindowAreRefused()
    {
        Frameless window;
        ExpectWarning("the window has one already");
        ZWindowChrome second(&window);
        second.setTitleBar(window.button);
        QVERIFY(!second.titleBar());
        ExpectWarning("no window");
        ZWindowChrome lonely(nullptr);
        lonely.setResizeBorder(9);
        QCOMPARE(lonely.resizeBorder(), 0);
    }

    void styleSheetEditorIsInFrontOfTheWindow()
    {
        QWidget window;
        window.setGeometry(PLACE);
        Support::ShowActive(window);
        ZRuntimeStylesheetEditor editor;
        editor.setGeometry(PLACE);
        Support::ShowActive(editor);
        window.activateWindow();
        window.raise();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(QApplication::topLevelAt(PLACE.center()), &editor);
    }
};

VX_TEST_MAIN(tst_ZWindowChrome)
#include "tst_ZWindowChrome.moc"
