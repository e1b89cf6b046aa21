#include <UI/Widgets/CustomTitleBar.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/CanBeParentOf.h>
#include <UI/Common/MirroredStyle.h>

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
#include <QToolButton>

namespace Zelkor::Vx::UI {

namespace {

// More than any title bar is high. An icon that is drawn from shapes would otherwise be made as large as asked for.
constexpr qreal MAXIMUM_ICON_PIXELS = 1024;

/// A title that does not fit ends in an ellipsis, and never keeps the window from being made narrower.
class TitleLabel : public QLabel
{
public:
    explicit TitleLabel(QWidget* parent) : QLabel(parent)
    {
        // A title may be the name of any file, and a file may be called "<b>".
        setTextFormat(Qt::PlainText);
        setIndent(0);
        setMinimumWidth(1);
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
        // A title runs by its own letters, whatever the direction of the window.
        const bool fromRight = text().isRightToLeft();
        const auto flags = QStyle::visualAlignment(fromRight ? Qt::RightToLeft : Qt::LeftToRight, alignment()) |
                           (fromRight ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight);
        style()->drawItemText(&painter, place, flags, palette(), isEnabled(), shown, foregroundRole());
    }
};

/// Keeps presses that a child of the content frame did not want from counting as presses on the frame itself.
class ContentGuard : public QObject
{
public:
    ContentGuard(QWidget* frame, QObject* parent) : QObject(parent) { frame->installEventFilter(this); }

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
            event->ignore(); // it goes on to the window, as from any frame
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

// The title as the frame of a window shows it: the last "[*]" of an odd number of them in a row marks the place of the
// asterisk of changed content, and two of them stand for one that is shown.
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
        shown += title.midRef(end, place.capturedStart() - end);
        shown += place.capturedRef().left(count / 2 * PLACE_LENGTH);
        if (count % 2 == 1 && isMarked)
            shown += QLatin1Char('*');
        end = place.capturedEnd();
    }
    return shown + title.midRef(end);
}

// A pixmap that shows `edge` pixels wide on a screen of this ratio, or less if the icon has no more.
QPixmap MakePixmap(const QIcon& icon, int edge, qreal ratio, QWindow* window)
{
    // With this attribute Qt counts in pixels of the widget, as we do.
    if (QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
        ratio = 1;
    const int pixels = qRound(qBound(0.0, edge * ratio, MAXIMUM_ICON_PIXELS));
    QPixmap pixmap = icon.pixmap(window, QSize(pixels, pixels));
    if (ratio > 1 && !pixmap.isNull())
        pixmap.setDevicePixelRatio(qMax(1.0, qMax(pixmap.width(), pixmap.height()) / qreal(edge)));
    return pixmap;
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

    QPointer<QWidget> window;       ///< the parent at first; the bar serves it also after it is given another parent
    ZFrame* contentFrame = nullptr; ///< the window's
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
      minimizeButton(MakePart<QToolButton>("minimizeButton", bar)),
      closeButton(MakePart<QToolButton>("closeButton", bar))
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
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // height to spare belongs to the content
    Retranslate();
    if (qobject_cast<QMainWindow*>(parent)) {
        // Its layout takes the widget that it lies on for a main window.
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
    // Tab visits the bar as it stands: what takes the keyboard in the widget, then the buttons.
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
    AddWidget(MakePart<QWidget>("separator", impl->userWidgetsFrame));
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
    // What floats in the window, such as a dialog's size grip, stays on top.
    impl->contentFrame->lower();
    auto* layout = Common::MakeBoxLayout<QVBoxLayout>(window);
    // A layout that keeps its window at a fixed size does it for the window, and that has grown by the bar.
    if (content) {
        layout->setSizeConstraint(content->sizeConstraint());
        content->setSizeConstraint(QLayout::SetDefaultConstraint);
    }
    layout->addWidget(this);
    layout->addWidget(impl->contentFrame);

    auto* helper = new Util::WindowMouseMoveHelper(window, DragHandles(this, impl->contentFrame));
    // Made after the helper, so that it sees the presses first; and it stays for as long.
    new ContentGuard(impl->contentFrame, helper);
}

void CustomTitleBar::SetUpWindow(QWidget* window)
{
    const Qt::WindowFlags flags = window->windowFlags();
    const bool wasVisible = window->isVisible();
    if (wasVisible) {
        window->hide();
        // Children that are made in a visible window stay hidden, and would leave the layout empty.
        show();
        impl->contentFrame->show();
    }
    // Of flags that are said to be customised, Qt would take buttons to mean a frame.
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
    window->installEventFilter(this); // there is no signal for changed content
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
    // On another screen the icon may have another size, in another style other colours.
    const bool isOutdated = event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::StyleChange;
    if (isOutdated && impl->window && !impl->iconLabel->pixmap(Qt::ReturnByValue).isNull())
        impl->ShowIcon(impl->window->windowIcon());
    // A label without a picture takes its size from its font, and keeps it when that changes.
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
