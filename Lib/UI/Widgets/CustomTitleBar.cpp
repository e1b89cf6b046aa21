#include <UI/Widgets/CustomTitleBar.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/CanBeParentOf.h>
#include <UI/Common/LostMouseRelease.h>
#include <UI/Common/MirroredStyle.h>
#include <UI/Common/PlainLook.h>

#include <Zelkor/Vx/UI/Util/WindowMouseMoveHelper.h>

#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>

namespace Zelkor::Vx::UI {

namespace {

// Limits the memory of icons that are rendered from vector graphics.
constexpr qreal MAXIMUM_ICON_PIXELS = 1024;

/// Elides a title that does not fit, and does not limit the width of the window.
class TitleLabel : public QLabel
{
public:
    explicit TitleLabel(QWidget* parent) : QLabel(parent)
    {
        // A title may contain a file name such as "<b>".
        setTextFormat(Qt::PlainText);
        setIndent(0);
        setMinimumWidth(1);
        Common::SetPlainMargins(this,
                                [this] { return QMargins(Common::PlainGap(*this), 0, Common::PlainGap(*this), 0); });
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        const QRect place = contentsRect();
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
        if (shown == text()) {
            QLabel::paintEvent(event);
            return;
        }
        QPainter painter(this);
        drawFrame(&painter);
        // The text determines its own direction, independent of the window's.
        const bool fromRight = text().isRightToLeft();
        const auto flags = QStyle::visualAlignment(fromRight ? Qt::RightToLeft : Qt::LeftToRight, alignment()) |
                           (fromRight ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight);
        style()->drawItemText(&painter, place, flags, palette(), isEnabled(), shown, foregroundRole());
    }
};

/// Without a style sheet, draws the line of the style.
class Separator : public QWidget
{
public:
    using QWidget::QWidget;

    QSize sizeHint() const override
    {
        if (Common::HasStyleSheet(*this))
            return QWidget::sizeHint();
        return {style()->pixelMetric(QStyle::PM_ToolBarSeparatorExtent, nullptr, this), 0};
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QWidget::paintEvent(event);
        if (Common::HasStyleSheet(*this))
            return;
        QStyleOption option;
        option.initFrom(this);
        option.state |= QStyle::State_Horizontal;
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &option, &painter, this);
    }
};

/// Prevents a drag by presses that a child of the content frame has ignored.
class ChildPressFilter : public QObject
{
public:
    ChildPressFilter(QWidget* frame, QObject* parent) : QObject(parent) { frame->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            fromChild = static_cast<QWidget*>(watched)->childAt(static_cast<QMouseEvent*>(event)->pos()) != nullptr;
            break;
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            break;
        default:
            return false;
        }
        if (fromChild)
            event->ignore(); // propagates to the window
        return fromChild;
    }

private:
    bool fromChild = false;
};

template<class Part, class Parent>
Part* MakePart(const char* objectName, Parent* parent)
{
    auto* part = new Part(parent);
    part->setObjectName(QLatin1String(objectName));
    return part;
}

QToolButton* MakeButton(const char* objectName, Common::Symbol symbol, QWidget* parent)
{
    auto* button = new Common::SymbolButton(symbol, parent);
    button->setObjectName(QLatin1String(objectName));
    return button;
}

// Returns the title as a window frame shows it: "[*]" marks the position of the modified asterisk, "[*][*]" stands for
// a literal "[*]".
QString ShownTitle(const QWidget* window)
{
    static const QRegularExpression PLACES(QStringLiteral("(?:\\[\\*\\])+"));
    constexpr int PLACE_LENGTH = 3;
    const bool isMarked = window->isWindowModified() &&
                          window->style()->styleHint(QStyle::SH_TitleBar_ModifyNotification, nullptr, window);
    const QString title = window->windowTitle();
    QString shown;
    int end = 0;
    for (auto places = PLACES.globalMatch(title); places.hasNext();) {
        const QRegularExpressionMatch place = places.next();
        const int count = place.capturedLength() / PLACE_LENGTH;
        shown += title.mid(end, place.capturedStart() - end);
        shown += place.captured().left(count / 2 * PLACE_LENGTH);
        if (count % 2 == 1 && isMarked)
            shown += QLatin1Char('*');
        end = place.capturedEnd();
    }
    return shown + title.mid(end);
}

// Returns a pixmap that is `edge` logical pixels wide, or less if the icon is smaller.
QPixmap MakePixmap(const QIcon& icon, int edge, qreal ratio, QWindow* window)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    Q_UNUSED(window)
    const int side = qRound(qBound(0.0, qreal(edge), MAXIMUM_ICON_PIXELS / ratio));
    return icon.pixmap(QSize(side, side), ratio);
#else
    // With this attribute, QIcon takes logical pixels.
    if (QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
        ratio = 1;
    const int pixels = qRound(qBound(0.0, edge * ratio, MAXIMUM_ICON_PIXELS));
    QPixmap pixmap = icon.pixmap(window, QSize(pixels, pixels));
    if (ratio > 1 && !pixmap.isNull())
        pixmap.setDevicePixelRatio(qMax(1.0, qMax(pixmap.width(), pixmap.height()) / qreal(edge)));
    return pixmap;
#endif
}

QList<QWidget*> DragHandles(QWidget* bar, QWidget* contentFrame)
{
    QList<QWidget*> handles = {bar, contentFrame};
    for (QObject* child : contentFrame->children()) {
        if (auto* label = qobject_cast<QLabel*>(child))
            handles.append(label);
    }
    return handles;
}

} // namespace

struct CustomTitleBar::Impl
{
    explicit Impl(CustomTitleBar* bar);

    void ShowIcon(const QIcon& icon)
    {
        iconLabel->setPixmap(
            MakePixmap(icon, windowIconSize, iconLabel->devicePixelRatioF(), iconLabel->window()->windowHandle()));
    }

    QPointer<QWidget> window;       ///< the parent at construction
    ZFrame* contentFrame = nullptr; ///< owned by the window
    QLabel* iconLabel;
    QLabel* titleLabel;
    ZFrame* userWidgetsFrame;
    QToolButton* minimizeButton;
    QToolButton* closeButton;
    int windowIconSize = 0;
};

CustomTitleBar::Impl::Impl(CustomTitleBar* bar)
    : window(bar->parentWidget()), iconLabel(MakePart<QLabel>("iconLabel", bar)),
      titleLabel(MakePart<TitleLabel>("titleLabel", bar)), userWidgetsFrame(MakePart<ZFrame>("userWidgetsFrame", bar)),
      minimizeButton(MakeButton("minimizeButton", Common::Symbol::Minimize, bar)),
      closeButton(MakeButton("closeButton", Common::Symbol::Close, bar))
{
    Common::MakeBoxLayout<QHBoxLayout>(userWidgetsFrame);
    auto* barLayout = Common::MakeBoxLayout<QHBoxLayout>(bar);
    barLayout->addWidget(iconLabel);
    barLayout->addWidget(titleLabel);
    barLayout->addStretch();
    barLayout->addWidget(userWidgetsFrame);
    barLayout->addWidget(minimizeButton);
    barLayout->addWidget(closeButton);
    minimizeButton->hide();
    closeButton->hide();
}

CustomTitleBar::CustomTitleBar(QWidget* parent) : ZFrame(parent), impl(std::make_unique<Impl>(this))
{
    Common::FollowLayoutDirection();
    Common::AccessibleFactory<CustomTitleBar, Common::AccessibleAs<QAccessible::TitleBar>>::Install();
    setObjectName(QStringLiteral("CustomTitleBar"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // the content takes extra height
    Retranslate();
    if (qobject_cast<QMainWindow*>(parent)) {
        // The layout of a main window casts its parent to QMainWindow.
        qWarning("CustomTitleBar: a QMainWindow cannot part with its layout");
        hide();
    } else if (parent) {
        RebuildWindow(parent);
        SetUpWindow(parent);
    }
}

CustomTitleBar::~CustomTitleBar() = default;

void CustomTitleBar::AddWidget(QWidget* widget)
{
    if (!Common::CanBeParentOf(impl->userWidgetsFrame, widget))
        return;
    impl->userWidgetsFrame->layout()->addWidget(widget);
    // Keeps the tab order in visual order: the widget's focusable parts before the buttons.
    QWidget* last = nullptr;
    QWidget* part = widget;
    do {
        if (part->focusPolicy() != Qt::NoFocus)
            last = part;
        part = part->nextInFocusChain();
    } while (part != widget && widget->isAncestorOf(part));
    if (last) {
        setTabOrder(last, impl->closeButton);
        setTabOrder(last, impl->minimizeButton);
    }
}

void CustomTitleBar::AddSeparator()
{
    AddWidget(MakePart<Separator>("separator", impl->userWidgetsFrame));
}

int CustomTitleBar::GetWindowIconSize() const
{
    return impl->windowIconSize;
}

void CustomTitleBar::SetWindowIconSize(int size)
{
    if (size == impl->windowIconSize)
        return;
    impl->windowIconSize = size;
    if (impl->window)
        impl->ShowIcon(impl->window->windowIcon());
}

void CustomTitleBar::RebuildWindow(QWidget* window)
{
    QLayout* content = window->layout();
    impl->contentFrame = MakePart<ZFrame>("contentFrame", window);
    impl->contentFrame->setLayout(content);
    // Keeps floating children, such as the size grip of a dialog, on top.
    impl->contentFrame->lower();
    auto* layout = Common::MakeBoxLayout<QVBoxLayout>(window);
    // The size constraint applies to the window, which includes the bar now.
    if (content) {
        layout->setSizeConstraint(content->sizeConstraint());
        content->setSizeConstraint(QLayout::SetDefaultConstraint);
    }
    layout->addWidget(this);
    layout->addWidget(impl->contentFrame);

    auto* helper = new Util::WindowMouseMoveHelper(window, DragHandles(this, impl->contentFrame));
    // Installed after the helper, so that it filters first; the helper owns it.
    new ChildPressFilter(impl->contentFrame, helper);
    Common::LostMouseRelease::Watch(window);
}

void CustomTitleBar::SetUpWindow(QWidget* window)
{
    const Qt::WindowFlags flags = window->windowFlags();
    const bool wasVisible = window->isVisible();
    if (wasVisible) {
        window->hide();
        // Children created in a visible window are hidden, and the layout would ignore them.
        show();
        impl->contentFrame->show();
    }
    // With CustomizeWindowHint, Qt adds a frame for the button hints.
    window->setWindowFlags((flags & ~Qt::CustomizeWindowHint) | Qt::FramelessWindowHint);
    if (wasVisible)
        window->show();
    if (flags & Qt::WindowMinimizeButtonHint) {
        connect(impl->minimizeButton, &QToolButton::clicked, window, &QWidget::showMinimized);
        impl->minimizeButton->show();
    }
    if (flags & Qt::WindowCloseButtonHint) {
        connect(impl->closeButton, &QToolButton::clicked, window, &QWidget::close);
        impl->closeButton->show();
    }

    ShowTitle();
    connect(window, &QWidget::windowTitleChanged, this, &CustomTitleBar::ShowTitle);
    window->installEventFilter(this); // QWidget has no signal for the modified state
    connect(window, &QWidget::windowIconChanged, this, [this](const QIcon& icon) { impl->ShowIcon(icon); });
}

void CustomTitleBar::ShowTitle()
{
    const QString title = ShownTitle(impl->window);
    impl->titleLabel->setText(title);
    setAccessibleName(title);
}

void CustomTitleBar::Retranslate()
{
    const auto name = [](QToolButton* button, const QString& text) {
        button->setAccessibleName(text);
        button->setToolTip(text);
    };
    name(impl->minimizeButton, tr("Minimise"));
    name(impl->closeButton, tr("Close"));
}

bool CustomTitleBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ModifiedChange && watched == impl->window)
        ShowTitle();
    return ZFrame::eventFilter(watched, event);
}

bool CustomTitleBar::event(QEvent* event)
{
    // The icon depends on the screen's device pixel ratio and on the style.
    const bool isOutdated = event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::StyleChange;
    if (isOutdated && impl->window && !impl->iconLabel->pixmap(Qt::ReturnByValue).isNull())
        impl->ShowIcon(impl->window->windowIcon());
    // An empty label derives its size hint from its font and caches it.
    if (event->type() == QEvent::FontChange && impl->iconLabel->pixmap(Qt::ReturnByValue).isNull())
        impl->iconLabel->clear();
    return ZFrame::event(event);
}

void CustomTitleBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    ZFrame::changeEvent(event);
}

} // namespace Zelkor::Vx::UI
