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

// A window with a title bar, a label, and a group with a nested label.
class Window : public QDialog
{
public:
    explicit Window(Qt::WindowFlags flags = Qt::Window, bool isShownFirst = false) : QDialog(nullptr, flags)
    {
        auto* layout = new QVBoxLayout(this);
        layout->setMenuBar(new QMenuBar);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        QFrame* parts[] = {new QLabel("label"), new QFrame, new QLabel("nested")};
        const char* names[] = {"label", "group", "nested"};
        for (int i = 0; i < 3; ++i)
            parts[i]->setObjectName(names[i]);
        layout->addWidget(parts[0]);
        layout->addWidget(parts[1]);
        (new QVBoxLayout(parts[1]))->addWidget(parts[2]);
        setSizeGripEnabled(true);
        move(300, 300);
        setVisible(isShownFirst);
        bar = new CustomTitleBar(this);
        bar->setStyleSheet("QLabel { min-height: 30px; min-width: 60px } QToolButton { min-width: 30px }");
    }

    void ShowActive()
    {
        show();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    template<class Part = QWidget>
    Part* Find(const char* name) const
    {
        return findChild<Part*>(name);
    }

    // Drags at the lower left of a part. Returns by how much the window moved.
    QPoint DragAt(const char* name, int button = 1) const
    {
        const QPoint origin = pos();
        const auto* part = Find(name);
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
    void windowIsRebuilt_data()
    {
        QTest::addColumn<bool>("minimizes");
        QTest::newRow("with a minimise button") << true;
        QTest::newRow("with a close button, shown before") << false;
    }

    void windowIsRebuilt()
    {
        QFETCH(bool, minimizes);
        const bool closes = !minimizes;
        const bool isShownFirst = !minimizes;
        Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint;
        flags.setFlag(Qt::WindowMinimizeButtonHint, minimizes).setFlag(Qt::WindowCloseButtonHint, closes);
        Window window(flags, isShownFirst);
        QCOMPARE(window.isVisible(), isShownFirst);
        window.ShowActive();
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
        QWidget* content = window.Find("contentFrame");
        QCOMPARE(window.findChild<QMenuBar*>()->parentWidget(), content);
        QTRY_COMPARE(window.height(), window.bar->height() + content->sizeHint().height());
        QVERIFY(window.childAt(window.rect().bottomRight())->inherits("QSizeGrip"));
        auto* minimize = window.Find<QToolButton>("minimizeButton");
        auto* close = window.Find<QToolButton>("closeButton");
        QCOMPARE(minimize->isVisible(), minimizes);
        QCOMPARE(close->isVisible(), closes);
        minimize->click();
        QTRY_COMPARE(window.isMinimized(), minimizes);
        close->click();
        QCOMPARE(window.isVisible(), !closes);
    }

    void iconFollowsTheWindow()
    {
        Window window;
        const auto icon = [&] { return window.Find<QLabel>("iconLabel")->pixmap(Qt::ReturnByValue).toImage(); };
        QPixmap pixmap(64, 64);
        pixmap.fill(Qt::blue);
        window.setWindowIcon(pixmap);
        for (const int size : {0, -3, 24}) {
            window.bar->SetWindowIconSize(size);
            QCOMPARE(icon().width(), qMax(size, 0));
        }
        QCOMPARE(icon().pixelColor(5, 5), QColor(Qt::blue));
    }

    void titleMarksModifiedWindows()
    {
        Window window;
        const auto shown = [&](const char* title, bool isModified) {
            window.setWindowModified(isModified);
            window.setWindowTitle(title);
            return window.Find<QLabel>("titleLabel")->text();
        };
        QCOMPARE(shown("<b> * b", true), QString("<b> * b"));
        QCOMPARE(shown("[*]a[*] - B", true), QString("*a* - B"));
        QCOMPARE(shown("[*]a[*] - B", false), QString("a - B"));
        QCOMPARE(shown("a[*][*]", true), QString("a[*]"));
        QCOMPARE(shown("a[*][*][*]", true), QString("a[*]*"));
        QCOMPARE(window.bar->accessibleName(), QString("a[*]*"));
        const int narrow = window.minimumSizeHint().width();
        window.setWindowTitle(QString(500, 'W'));
        QCOMPARE(window.minimumSizeHint().width(), narrow);
    }

    void leftButtonDragsByTheHandles()
    {
        Window window;
        window.bar->AddWidget(new QLabel("user"));
        window.ShowActive();
        // Until this move, the window manager may still report the initial position.
        window.move(310, 310);
        QTRY_COMPARE(window.pos(), QPoint(310, 310));
        for (const char* name : {"CustomTitleBar", "titleLabel", "contentFrame", "label"})
            QCOMPARE(window.DragAt(name), WAY);
        QCOMPARE(window.DragAt("label", 3), QPoint());
        for (const char* name : {"closeButton", "nested"})
            QCOMPARE(window.DragAt(name), QPoint());
        delete window.bar;
        QCoreApplication::processEvents();
        QCOMPARE(window.DragAt("label"), WAY);
    }

    void barWithAnotherParentServesItsWindow()
    {
        Window window;
        window.bar->setParent(nullptr);
        const std::unique_ptr<CustomTitleBar> bar(window.bar);
        window.setWindowTitle("new[*]");
        window.setWindowModified(true);
        QCOMPARE(bar->findChild<QLabel*>("titleLabel")->text(), QString("new*"));
    }

    void tabOrderIsVisual()
    {
        Window window;
        auto* group = new QFrame;
        auto* first = new QToolButton(group);
        new QLabel(group);
        window.bar->AddWidget(group);
        window.ShowActive();
        window.Find("label")->setFocusPolicy(Qt::TabFocus);
        window.Find("label")->setFocus();
        for (QWidget* next :
             {static_cast<QWidget*>(first), window.Find("minimizeButton"), window.Find("closeButton")}) {
            QTest::keyClick(&window, Qt::Key_Tab);
            QCOMPARE(window.focusWidget(), next);
        }
    }

    void mainWindowKeepsItsLayout()
    {
        QMainWindow window;
        ExpectWarning("a QMainWindow cannot part with its layout");
        new CustomTitleBar(&window);
    }
};

VX_TEST_MAIN(tst_CustomTitleBar)
#include "tst_CustomTitleBar.moc"
