#include <UI/Widgets/CustomTitleBar.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QDialog>
#include <QLabel>
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
        auto* label = new QLabel("label");
        auto* group = new QFrame;
        auto* nested = new QLabel("nested", group);
        label->setObjectName("label");
        nested->setObjectName("nested");
        layout->addWidget(label);
        layout->addWidget(group);
        (new QVBoxLayout(group))->addWidget(nested);
        setSizeGripEnabled(true);
        move(300, 300);
        setVisible(isShownFirst);
        bar = new CustomTitleBar(this);
        bar->setStyleSheet("QLabel { min-height: 30px; min-width: 60px } QToolButton { min-width: 30px }");
    }

    void ShowSettled()
    {
        Support::ShowActive(*this);
        // Until this move, the window manager may still report the initial position.
        move(310, 310);
        QTRY_COMPARE(pos(), QPoint(310, 310));
    }

    // Drags at the lower left of a part. Returns by how much the window moved.
    QPoint DragAt(const char* name, int button = 1) const
    {
        const QPoint origin = pos();
        const auto* part = findChild<QWidget*>(name);
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
        Window window(Qt::Window, true);
        QVERIFY(window.isVisible());
        Support::ShowActive(window);
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
        QWidget* content = window.findChild<QWidget*>("contentFrame");
        QCOMPARE(window.findChild<QMenuBar*>()->parentWidget(), content);
        QTRY_COMPARE(window.height(), window.bar->height() + content->sizeHint().height());
        QVERIFY(window.childAt(window.rect().bottomRight())->inherits("QSizeGrip"));
        window.findChild<QToolButton*>("minimizeButton")->click();
        QTRY_VERIFY(window.isMinimized());
        window.findChild<QToolButton*>("closeButton")->click();
        QVERIFY(!window.isVisible());
    }

    void buttonsFollowTheWindowFlags()
    {
        Window window(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowMinimizeButtonHint);
        QVERIFY(!window.findChild<QWidget*>("minimizeButton")->isHidden());
        QVERIFY(window.findChild<QWidget*>("closeButton")->isHidden());
    }

    void titleAndIconFollowTheWindow()
    {
        Window window;
        window.setWindowModified(true);
        const auto shown = [&](const char* title) {
            window.setWindowTitle(title);
            return window.findChild<QLabel*>("titleLabel")->text();
        };
        QCOMPARE(shown("<b> * b"), QString("<b> * b"));
        QCOMPARE(shown("[*]a[*] - B"), QString("*a* - B"));
        QCOMPARE(shown("a[*][*][*]"), QString("a[*]*"));
        window.setWindowModified(false);
        QCOMPARE(shown("[*]a[*] - B"), QString("a - B"));
        QPixmap pixmap(64, 64);
        pixmap.fill(Qt::blue);
        window.setWindowIcon(pixmap);
        window.bar->SetWindowIconSize(24);
        const QImage icon = window.findChild<QLabel*>("iconLabel")->pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(icon.width(), 24);
        QCOMPARE(icon.pixelColor(5, 5), QColor(Qt::blue));
    }

    void leftButtonDragsByTheHandles()
    {
        Window window;
        window.bar->AddWidget(new QLabel("user"));
        window.ShowSettled();
        for (const char* name : {"CustomTitleBar", "titleLabel", "contentFrame", "label"})
            QCOMPARE(window.DragAt(name), WAY);
        QCOMPARE(window.DragAt("label", 3), QPoint());
        for (const char* name : {"closeButton", "nested"})
            QCOMPARE(window.DragAt(name), QPoint());
        delete window.bar;
        QCoreApplication::processEvents();
        QCOMPARE(window.DragAt("label"), WAY);
        window.findChild<QWidget*>("nested")->winId();
        const QPoint target = window.pos() + WAY;
        window.DragAt("label");
        QTRY_VERIFY((window.pos() - target).manhattanLength() <= 1);
    }

    void hoverWorksAfterADragWithoutAClick()
    {
        Window window;
        window.ShowSettled();
        const auto* button = window.findChild<QToolButton*>("closeButton");
        QCOMPARE(window.DragAt("titleLabel"), WAY);
        Support::MovePointer(button->mapToGlobal(button->rect().center()));
        QTRY_VERIFY(button->underMouse());
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
};

VX_TEST_MAIN(tst_CustomTitleBar)
#include "tst_CustomTitleBar.moc"
