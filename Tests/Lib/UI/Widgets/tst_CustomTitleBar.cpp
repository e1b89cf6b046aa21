#include <UI/Widgets/CustomTitleBar.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolButton>
#include <QVBoxLayout>

using Zelkor::Vx::UI::CustomTitleBar;

namespace {

constexpr QPoint WAY(50, 30);

// A window with its title bar and the kinds of content that matter: a label, and a group with another label in it.
class Window : public QDialog
{
public:
    explicit Window(Qt::WindowFlags flags, bool showFirst = false) : QDialog(nullptr, flags)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setMenuBar(new QMenuBar);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        auto* group = new QFrame;
        for (auto [part, name] : {std::pair<QFrame*, const char*>(new QLabel("label"), "label"), {group, "group"}}) {
            part->setObjectName(name);
            layout->addWidget(part);
        }
        auto* nested = new QLabel("nested");
        nested->setObjectName("nested");
        (new QVBoxLayout(group))->addWidget(nested);
        setSizeGripEnabled(true);
        setWindowTitle("<b>A</b> & B");
        move(300, 300);
        if (showFirst) {
            show();
            QVERIFY(QTest::qWaitForWindowActive(this));
        }
        bar = new CustomTitleBar(this);
        bar->setStyleSheet("QLabel { min-height: 30px; min-width: 60px } QToolButton { min-width: 30px }");
    }

    QWidget* Part(const char* name) const { return findChild<QWidget*>(name); }

    // What the window moves by when the pointer drags at the lower left of `part`.
    QPoint DragAt(const QWidget* part, int button = 1) const
    {
        const QPoint origin = pos();
        if (Support::Drag(part->mapToGlobal(part->rect().bottomLeft() + QPoint(3, -3)), WAY, button))
            [&] { QTRY_VERIFY(pos() != origin); }();
        return pos() - origin;
    }

    CustomTitleBar* bar;
};

} // namespace

class tst_CustomTitleBar : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void windowIsRebuilt()
    {
        for (int row = 0; row < 8; ++row) {
            InRow(QString::number(row, 2));
            const bool minimizes = row & 1;
            const bool closes = row & 2;
            Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint;
            flags.setFlag(Qt::WindowMinimizeButtonHint, minimizes).setFlag(Qt::WindowCloseButtonHint, closes);
            Window window(flags, row & 4);
            QCOMPARE(window.isVisible(), bool(row & 4));
            window.show();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
            QWidget* content = window.Part("contentFrame");
            QCOMPARE(window.findChild<QMenuBar*>()->parentWidget(), content);
            QTRY_COMPARE(window.height(), window.bar->height() + content->sizeHint().height());
            QVERIFY(window.childAt(window.rect().bottomRight())->inherits("QSizeGrip"));
            auto* minimize = window.findChild<QToolButton*>("minimizeButton");
            auto* close = window.findChild<QToolButton*>("closeButton");
            QCOMPARE(minimize->isVisible(), minimizes);
            QCOMPARE(close->isVisible(), closes);
            minimize->click();
            QTRY_COMPARE(window.isMinimized(), minimizes);
            close->click();
            QCOMPARE(window.isVisible(), !closes);
        }
    }

    void titleAndIconFollow()
    {
        Window window(Qt::Window);
        const auto* title = window.findChild<QLabel*>("titleLabel");
        const auto icon = [&] { return window.findChild<QLabel*>("iconLabel")->pixmap(Qt::ReturnByValue).toImage(); };
        QPixmap pixmap(64, 64);
        for (const Qt::GlobalColor color : {Qt::red, Qt::blue}) {
            pixmap.fill(color);
            window.setWindowIcon(pixmap);
            QCOMPARE(icon().isNull(), color == Qt::red);
            for (const int size : {16, 0, -3, 24}) {
                window.bar->SetWindowIconSize(size);
                QCOMPARE(icon().width(), qMax(size, 0));
            }
            QCOMPARE(icon().pixelColor(5, 5), QColor(color));
        }
        // However long the title, the window may be as narrow as before.
        const int narrow = window.minimumSizeHint().width();
        for (const QString& text : {QString("<b>A</b> & B"), QString(500, 'W')}) {
            window.setWindowTitle(text);
            QCOMPARE(title->text(), text);
        }
        QCOMPARE(window.minimumSizeHint().width(), narrow);
    }

    void modifiedMarkStandsWhereTheTitleHasIt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("unmodified");
        QTest::addColumn<QString>("modified");
        const auto add = [](const char* row, const QString& text, const QString& unmodified, const QString& modified) {
            QTest::newRow(row) << text << unmodified << modified;
        };
        add("no place", "a * b", "a * b", "a * b");
        add("at the end", "a.txt[*]", "a.txt", "a.txt*");
        add("two places", "[*]a[*] - B", "a - B", "*a* - B");
        add("literal", "a[*][*]", "a[*]", "a[*]");
        add("literal and place", "a[*][*][*]", "a[*]", "a[*]*");
    }

    void modifiedMarkStandsWhereTheTitleHasIt()
    {
        QFETCH(QString, text);
        Window window(Qt::Window);
        const auto* title = window.findChild<QLabel*>("titleLabel");
        window.setWindowTitle(text);
        QTEST(title->text(), "unmodified");
        window.setWindowModified(true);
        QTEST(title->text(), "modified");
        QTEST(window.bar->accessibleName(), "modified");
        window.setWindowModified(false);
        QTEST(title->text(), "unmodified");
    }

    void leftButtonDragsByTheHandles()
    {
        Window window(Qt::Window);
        window.bar->AddWidget(new QLabel("user"));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        // The window manager tells where it first put a window while it still moves it. After this move all agree.
        window.move(310, 310);
        QTRY_COMPARE(window.pos(), QPoint(310, 310));
        for (const char* name : {"CustomTitleBar", "titleLabel", "userWidgetsFrame", "contentFrame", "label"})
            QCOMPARE(window.DragAt(window.Part(name)), WAY);
        QCOMPARE(window.DragAt(window.Part("label"), 3), QPoint());
        for (const char* name : {"closeButton", "group", "nested"})
            QCOMPARE(window.DragAt(window.Part(name)), QPoint());
        delete window.bar;
        QCoreApplication::processEvents();
        QCOMPARE(window.DragAt(window.Part("label")), WAY);
    }

    void servesItsWindowUnderAnotherParent()
    {
        std::unique_ptr<CustomTitleBar> bar;
        {
            Window window(Qt::Window);
            bar.reset(window.bar);
            bar->setParent(nullptr);
            window.setWindowTitle("new[*]");
            window.setWindowModified(true);
            QCOMPARE(bar->findChild<QLabel*>("titleLabel")->text(), QString("new*"));
        }
        bar->SetWindowIconSize(16);
    }

    void widgetsThatItCannotHoldAreIgnored()
    {
        Window window(Qt::Window);
        for (QWidget* widget : {static_cast<QWidget*>(nullptr), window.Part("userWidgetsFrame"),
                                static_cast<QWidget*>(window.bar), static_cast<QWidget*>(&window)})
            window.bar->AddWidget(widget);
        QCOMPARE(window.bar->parentWidget(), &window);
    }

    void tabVisitsTheBarAsItStands()
    {
        Window window(Qt::Window);
        auto* first = new QToolButton;
        auto* group = new QFrame;
        auto* second = new QToolButton(group);
        new QLabel(group);
        window.bar->AddWidget(first);
        window.bar->AddWidget(group);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.Part("label")->setFocusPolicy(Qt::TabFocus);
        window.Part("label")->setFocus();
        for (QWidget* next : {static_cast<QWidget*>(first), static_cast<QWidget*>(second),
                              window.Part("minimizeButton"), window.Part("closeButton")}) {
            QTest::keyClick(&window, Qt::Key_Tab);
            QCOMPARE(window.focusWidget(), next);
        }
    }

    void otherParents()
    {
        CustomTitleBar(nullptr).SetWindowIconSize(16);
        QMainWindow mainWindow;
        ExpectWarning("a QMainWindow cannot part with its layout");
        new CustomTitleBar(&mainWindow);
        QWidget empty;
        ExpectWarning("Cannot set layout to 0");
        new CustomTitleBar(&empty);
        QVERIFY(empty.findChild<QFrame*>("contentFrame")->children().isEmpty());
        mainWindow.show();
        empty.show();
        QVERIFY(QTest::qWaitForWindowExposed(&mainWindow) && QTest::qWaitForWindowExposed(&empty));
    }
};

VX_TEST_MAIN(tst_CustomTitleBar)
#include "tst_CustomTitleBar.moc"
