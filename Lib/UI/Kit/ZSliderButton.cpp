#include <UI/Kit/ZSliderButton.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/PlainLook.h>
#include <UI/Common/ScreenOf.h>
#include <UI/Common/WaylandPopUp.h>
#include <UI/Common/WheelPolicy.h>

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>

#ifdef Q_OS_WIN
#include <QtCore/qt_windows.h>
#endif

#include <utility>

using namespace Zelkor::Vx::UI;

namespace {

constexpr char STYLE_TAG[] = "styleTag";
constexpr int MAXIMUM = 100;
constexpr int STEP = 25; // levels per page after that of level 0
constexpr int VERTICAL_MARGIN = 5;
constexpr int CLOSING_PRESS_MS = 200; // maximum delay between the loss of the focus and the press that caused it

// The button of one level step. Shows the focus of the ZSliderButton.
class LevelButton : public QToolButton
{
public:
    LevelButton(const QWidget* button, int level) : button(button), level(level) {}

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        if (button->hasFocus())
            option.state |= QStyle::State_HasFocus;
        QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
        Common::PaintPlainLevel(*this, level, MAXIMUM / STEP);
    }

private:
    const QWidget* const button;
    const int level;
};

QRect OnScreen(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

class SliderFrame : public QFrame
{
public:
    explicit SliderFrame(QWidget* button) : QFrame(button, Qt::Popup), button(button) {}

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        // A press outside closes the pop-up and is replayed to the widget there. The button would open it again.
        setAttribute(Qt::WA_NoMouseReplay, OnScreen(button).contains(mapToGlobal(event->pos())));
        QFrame::mousePressEvent(event);
    }

private:
    QWidget* button;
};

// Above the button, aligned at the left. Without room there, below it and moved onto the screen.
QPoint PopUpPosition(const QRect& button, const QSize& popUp, const QRect& screen)
{
    QRect place(button.topLeft() - QPoint(0, popUp.height()), popUp);
    if (screen.contains(place))
        return place.topLeft();
    if (place.top() < screen.top())
        place.moveTop(button.top() + button.height());
    place.moveLeft(qMax(screen.left(), qMin(place.left(), screen.left() + screen.width() - place.width())));
    place.moveTop(qMax(screen.top(), qMin(place.top(), screen.top() + screen.height() - place.height())));
    return place.topLeft();
}

// Only Windows has an API for this.
void RemoveShadow([[maybe_unused]] const QWidget* popUp)
{
#ifdef Q_OS_WIN
    const auto window = reinterpret_cast<HWND>(popUp->winId());
    const DWORD style = GetClassLongW(window, GCL_STYLE);
    if (style & CS_DROPSHADOW)
        SetClassLongW(window, GCL_STYLE, LONG(style & ~DWORD(CS_DROPSHADOW)));
#endif
}

QString NameOf(const QWidget* button)
{
    return button->accessibleName().isEmpty() ? ZSliderButton::tr("Level") : button->accessibleName();
}

// Reports a slider without children, since the keyboard changes the level without the pop-up.
class AccessibleSliderButton : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSliderButton(ZSliderButton* button)
        : QAccessibleWidget(button, QAccessible::Slider), button(button)
    {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return NameOf(button);
        return kind == QAccessible::Value ? QString::number(button->value()) : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return button->value(); }
    void setCurrentValue(const QVariant& value) override { button->setValue(value.toInt()); }
    QVariant maximumValue() const override { return MAXIMUM; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    ZSliderButton* button;
};

} // namespace

ZSliderButton::ZSliderButton(QWidget* parent) : QWidget(parent)
{
    Common::AccessibleFactory<ZSliderButton, AccessibleSliderButton>::Install();
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    createLevelButtons();
    createSlider();
}

ZSliderButton::~ZSliderButton()
{
    // An open slider loses the focus during the destruction.
    slider->removeEventFilter(this);
    if (!sliderFrame->parent())
        delete sliderFrame;
}

void ZSliderButton::createLevelButtons()
{
    for (int i = 0; i < LEVELS; ++i) {
        levelButtons[i] = new LevelButton(this, i);
        levelButtons[i]->setCheckable(true);
        levelButtons[i]->setFocusPolicy(Qt::NoFocus);
        levelButtons[i]->setProperty(STYLE_TAG, QStringLiteral("ZSliderButton%1").arg(i));
        connect(levelButtons[i], &QAbstractButton::pressed, this, [this] {
            const bool isJustHidden = sinceHidden.isValid() && !sinceHidden.hasExpired(CLOSING_PRESS_MS);
            isClosingPress = onTop && (sliderFrame->isVisible() || isJustHidden);
            sinceHidden.invalidate();
        });
        connect(levelButtons[i], &QAbstractButton::clicked, this, [this] {
            if (std::exchange(isClosingPress, false))
                sliderFrame->hide();
            else
                showSlider();
        });
    }
    stack = new QStackedWidget(this);
    stack->setProperty(STYLE_TAG, QStringLiteral("ZSliderButtonMain"));
    for (QToolButton* button : levelButtons)
        stack->addWidget(button);
    stack->setCurrentIndex(LEVELS - 1);
    Common::MakeBoxLayout<QHBoxLayout>(this)->addWidget(stack);
}

void ZSliderButton::createSlider()
{
    sliderFrame = new SliderFrame(this);
    sliderFrame->setObjectName(QStringLiteral("sliderFrame"));
    sliderFrame->hide();
    slider = new QSlider(Qt::Vertical);
    slider->setObjectName(QStringLiteral("slider"));
    slider->setRange(0, MAXIMUM);
    slider->installEventFilter(this);
    connect(slider, &QSlider::valueChanged, this, &ZSliderButton::setValue);

    auto* layout = Common::MakeBoxLayout<QHBoxLayout>(sliderFrame);
    layout->setContentsMargins(0, VERTICAL_MARGIN, 0, VERTICAL_MARGIN);
    // The frame ignores the size hint of the slider.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addStretch();
    layout->addWidget(slider);
    layout->addStretch();
}

int ZSliderButton::value() const
{
    return slider->value();
}

void ZSliderButton::setOnTop(bool isOnTop)
{
    if (onTop == isOnTop)
        return;
    onTop = isOnTop;
    sliderFrame->hide();
    // On Wayland, only a pop-up has a position, and it is on top anyway.
    if (Common::IsWayland())
        return;
    const Qt::WindowType previous = onTop ? Qt::Popup : Qt::SplashScreen;
    const Qt::WindowType next = onTop ? Qt::SplashScreen : Qt::Popup;
    // In one call: a change of the parent alone would reset the window flags.
    sliderFrame->setParent(onTop ? nullptr : this, (sliderFrame->windowFlags() ^ previous) | next);
}

void ZSliderButton::setShadow(bool hasShadow)
{
    if (shadow == hasShadow)
        return;
    shadow = hasShadow;
    if (!shadow)
        RemoveShadow(sliderFrame);
}

void ZSliderButton::setSliderHeight(int height)
{
    popUpHeight = height;
}

void ZSliderButton::setValue(int newValue)
{
    newValue = qBound(0, newValue, MAXIMUM);
    showValue(newValue);
    Q_EMIT valueChanged(newValue);
}

void ZSliderButton::toggle()
{
    toggle(!on);
}

void ZSliderButton::toggle(bool isOn)
{
    const QPointer<ZSliderButton> self(this);
    if (isOn) {
        setValue(savedValue);
    } else {
        savedValue = slider->value();
        setValue(0);
    }
    if (!self)
        return;
    on = isOn;
    Q_EMIT toggled(on);
}

void ZSliderButton::showSlider()
{
    const QRect screenRect = Common::ScreenOf(*this)->geometry();
    sliderFrame->resize(width(), qBound(1, popUpHeight, screenRect.height()));
    if (Common::IsWayland()) {
        sliderFrame->winId();
        Common::SetPopUpAnchor(*sliderFrame, {QRect(mapTo(window(), QPoint(0, 0)), size()), Qt::TopEdge | Qt::LeftEdge,
                                              Qt::TopEdge | Qt::RightEdge, Common::FLIP_Y | Common::SLIDE_X});
    }
    const QRect room = Common::IsWayland() ? Common::WaylandRoom(*this) : screenRect;
    sliderFrame->move(PopUpPosition(OnScreen(this), sliderFrame->size(), room));
    slider->setAccessibleName(NameOf(this));
    // The pop-up grabs the mouse, so the level button gets no leave event.
    stack->currentWidget()->setAttribute(Qt::WA_UnderMouse, false);
    sliderFrame->show();
    if (sliderFrame->windowType() != Qt::Popup)
        sliderFrame->activateWindow();
    slider->setFocus(Qt::OtherFocusReason);
}

bool ZSliderButton::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != slider)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
        setLevelsChecked(true);
        break;
    case QEvent::FocusOut:
        setLevelsChecked(false);
        // A press on the button activates its window before it is handled, and must not open the slider again.
        if (onTop && sliderFrame->isVisible() && OnScreen(this).contains(QCursor::pos()))
            sinceHidden.start();
        sliderFrame->hide();
        break;
    case QEvent::Hide:
        // The slider keeps the focus if no window of the application is active.
        setLevelsChecked(false);
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
            sliderFrame->hide();
        break;
    }
    default:
        break;
    }
    return false;
}

void ZSliderButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        sliderFrame->hide();
    QWidget::changeEvent(event);
}

void ZSliderButton::hideEvent(QHideEvent* event)
{
    sliderFrame->hide();
    QWidget::hideEvent(event);
}

void ZSliderButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        showSlider();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        static_cast<QObject*>(slider)->event(event);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ZSliderButton::wheelEvent(QWheelEvent* event)
{
    if (!Common::AcceptWheelEvent(*this, *event, true))
        return;
    static_cast<QObject*>(slider)->event(event);
    // Also at the end of the range, so that the panel around does not start to scroll.
    event->accept();
}

void ZSliderButton::setLevelsChecked(bool checked)
{
    for (QToolButton* button : levelButtons)
        button->setChecked(checked);
}

void ZSliderButton::showValue(int newValue)
{
    const QSignalBlocker blocker(slider);
    slider->setValue(newValue);
    const int page = newValue == 0 ? 0 : newValue / STEP + 1;
    if (page < stack->count())
        stack->setCurrentIndex(page);
    QAccessibleValueChangeEvent event(this, newValue);
    QAccessible::updateAccessibility(&event);
}
