#include <UI/Kit/Internal/SheetStyle.h>

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QColumnView>
#include <QEvent>
#include <QGuiApplication>
#include <QHash>
#include <QItemDelegate>
#include <QPainter>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QStyledItemDelegate>
#include <QTextCharFormat>
#include <qdrawutil.h>

namespace Zelkor::Vx::UI::Kit {

namespace {

// Angles of QDial, counted anticlockwise from three o'clock.
constexpr double FIRST_ANGLE = 240;
constexpr double SPAN = 300;

constexpr int LABEL_MARGIN = 6; ///< around the text of a title bar
constexpr int TICK_LENGTH = 4;  ///< of sliders
constexpr int ARROW_SIZE = 12;  ///< of rows in column views

const char* const OWN_WEEKEND_COLOR = "_vxWeekendColor";

// Replaces Qt's red and the colour of an earlier sheet, but not a colour of the application. Qt 5 paints the days of
// disabled calendars in the same colour.
void ColorWeekend(QCalendarWidget* calendar)
{
    const QVariant previous = calendar->property(OWN_WEEKEND_COLOR);
    const QColor replaced = previous.isValid() ? previous.value<QColor>() : QColor(Qt::red);
    const QPalette palette = QGuiApplication::palette();
    const QColor color =
        calendar->isEnabled() ? palette.color(QPalette::BrightText) : palette.color(QPalette::Disabled, QPalette::Text);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
        QTextCharFormat format = calendar->weekdayTextFormat(day);
        if (format.foreground().color() != replaced)
            continue;
        format.setForeground(color);
        calendar->setWeekdayTextFormat(day, format);
    }
    calendar->setProperty(OWN_WEEKEND_COLOR, color);
}

// Gives access to the option of any slider.
struct SliderOption : QSlider
{
    static QStyleOptionSlider Of(const QSlider& slider)
    {
        QStyleOptionSlider option;
        (slider.*&SliderOption::initStyleOption)(&option);
        return option;
    }
};

// Sheets cannot draw tick marks. Draws them between the handle and the edge, before the slider is painted above.
void DrawTicks(QSlider& slider)
{
    const QStyleOptionSlider option = SliderOption::Of(slider);
    const auto rect = [&](QStyle::SubControl part) {
        return slider.style()->subControlRect(QStyle::CC_Slider, &option, part, &slider);
    };
    const bool isHorizontal = slider.orientation() == Qt::Horizontal;
    const QRect handle = rect(QStyle::SC_SliderHandle);
    const QRect groove = rect(QStyle::SC_SliderGroove);
    const int length = isHorizontal ? handle.width() : handle.height();
    const int span = (isHorizontal ? groove.width() : groove.height()) - length;
    const int first = (isHorizontal ? groove.left() : groove.top()) + length / 2;
    const int step = slider.tickInterval() > 0 ? slider.tickInterval() : qMax(1, slider.pageStep());
    QPainter painter(&slider);
    painter.setPen(slider.palette().color(slider.isEnabled() ? QPalette::Dark : QPalette::Mid));
    for (qint64 value = slider.minimum(); value <= slider.maximum(); value += step) {
        const int position = first + QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), int(value),
                                                                     span, option.upsideDown);
        const auto draw = [&](int from, int to) {
            painter.drawLine(isHorizontal ? QLine(position, from, position, to) : QLine(from, position, to, position));
        };
        if (slider.tickPosition() & QSlider::TicksAbove)
            draw((isHorizontal ? handle.top() : handle.left()) - TICK_LENGTH,
                 (isHorizontal ? handle.top() : handle.left()) - 1);
        if (slider.tickPosition() & QSlider::TicksBelow)
            draw((isHorizontal ? handle.bottom() : handle.right()) + 1,
                 (isHorizontal ? handle.bottom() : handle.right()) + TICK_LENGTH);
    }
}

// Paints the rows of a column view by the sheet, which the delegate of Qt 5 does not.
class ColumnDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (!index.model()->hasChildren(index))
            return;
        QStyleOptionViewItem arrow = option;
        arrow.rect = QStyle::alignedRect(option.direction, Qt::AlignTrailing | Qt::AlignVCenter,
                                         {ARROW_SIZE, ARROW_SIZE}, option.rect.adjusted(4, 0, -4, 0));
        option.widget->style()->drawPrimitive(QStyle::PE_IndicatorColumnViewArrow, &arrow, painter, option.widget);
    }
};

// Keeps a delegate of the application. Headers have none.
void StyleColumn(QAbstractItemView* view)
{
    const QWidget* viewport = view->parentWidget();
    const auto* delegate = view->itemDelegate();
    if (viewport && qobject_cast<QColumnView*>(viewport->parentWidget()) && delegate &&
        delegate->metaObject() == &QItemDelegate::staticMetaObject)
        view->setItemDelegate(new ColumnDelegate(view));
}

// Returns whether the view may have arranged its items before it was polished, at sizes without the sheet. The lists of
// combo boxes are arranged when they open.
bool HasOldLayout(const QAbstractItemView& view)
{
    return !view.isVisible() && view.model() && view.model()->rowCount(view.rootIndex()) > 0 &&
           !(view.parentWidget() && view.parentWidget()->inherits("QComboBoxPrivateContainer"));
}

// Returns the angle of a position in degrees.
double DialAngle(const QStyleOptionSlider& dial, int position)
{
    const double range = qMax(1, dial.maximum - dial.minimum);
    const double part = (dial.upsideDown ? position - dial.minimum : dial.maximum - position) / range;
    return dial.dialWrapping ? 270 - part * 360 : FIRST_ANGLE - part * SPAN;
}

void DrawNotches(QPainter& painter, const QStyleOptionSlider& dial, double radius)
{
    const int step = qMax(1, dial.tickInterval);
    for (qint64 value = dial.minimum; value <= dial.maximum; value += step) {
        QLineF line = QLineF::fromPolar(radius, DialAngle(dial, int(value)));
        painter.drawLine(QLineF(line.p2() * 0.94, line.p2()));
    }
}

// A disc with the value as an arc on its rim and a line that points to it.
void DrawDial(QPainter& painter, const QStyleOptionSlider& dial)
{
    const QPalette& palette = dial.palette;
    const bool isEnabled = dial.state & QStyle::State_Enabled;
    const QColor accent = palette.color(isEnabled ? QPalette::Link : QPalette::WindowText);
    const QColor rim = palette.color(isEnabled ? QPalette::Dark : QPalette::Mid);
    const double outer = qMin(dial.rect.width(), dial.rect.height()) / 2.0 - 2;
    const double radius = outer * 0.82;
    const QRectF disc(-radius, -radius, 2 * radius, 2 * radius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(dial.rect).center());
    painter.setPen(QPen(rim, 1));
    if (dial.subControls & QStyle::SC_DialTickmarks)
        DrawNotches(painter, dial, outer);
    painter.setBrush(palette.color(dial.state & QStyle::State_MouseOver ? QPalette::Light : QPalette::Button));
    painter.drawEllipse(disc);
    const double angle = DialAngle(dial, dial.sliderPosition);
    const double first = DialAngle(dial, dial.upsideDown ? dial.minimum : dial.maximum);
    painter.setPen(QPen(accent, 3, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(disc, qRound(first * 16), qRound((angle - first) * 16));
    painter.setPen(QPen(accent, 3, Qt::SolidLine, Qt::RoundCap));
    const QLineF pointer = QLineF::fromPolar(radius, angle);
    painter.drawLine(QLineF(pointer.p2() * 0.45, pointer.p2() * 0.75));
    if (dial.state & QStyle::State_HasFocus) {
        painter.setPen(QPen(palette.color(QPalette::Link), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(), outer + 1, outer + 1);
    }
    painter.restore();
}

// The title bar of a window in a QMdiArea.
void DrawTitleBar(QPainter& painter, const QStyleOptionTitleBar& bar, const QStyle& style, const QWidget* widget)
{
    // That of the option is older than the last sheet.
    const QPalette palette = widget ? widget->palette() : bar.palette;
    const bool isActive = bar.titleBarState & Qt::WindowActive;
    const auto rect = [&](QStyle::SubControl part) {
        return style.subControlRect(QStyle::CC_TitleBar, &bar, part, widget);
    };
    painter.fillRect(bar.rect, palette.color(isActive ? QPalette::Light : QPalette::AlternateBase));
    painter.setPen(palette.color(isActive ? QPalette::WindowText : QPalette::PlaceholderText));
    const QRect label = rect(QStyle::SC_TitleBarLabel).adjusted(LABEL_MARGIN, 0, -LABEL_MARGIN, 0);
    const QString text = bar.fontMetrics.elidedText(bar.text, Qt::ElideRight, label.width());
    painter.drawText(label, Qt::AlignLeading | Qt::AlignVCenter, text);
    bar.icon.paint(&painter, rect(QStyle::SC_TitleBarSysMenu));
    const bool isSmall = bar.titleBarState & Qt::WindowMinimized;
    const bool isLarge = bar.titleBarState & Qt::WindowMaximized;
    const auto drawButton = [&](QStyle::SubControl part, bool isShown, QStyle::StandardPixmap icon) {
        if (!isShown || !(bar.subControls & part))
            return;
        const QRect place = rect(part);
        if (bar.activeSubControls == part)
            painter.fillRect(place,
                             palette.color(bar.state & QStyle::State_Sunken ? QPalette::Mid : QPalette::Midlight));
        style.standardIcon(icon, &bar, widget).paint(&painter, place);
    };
    drawButton(QStyle::SC_TitleBarCloseButton, bar.titleBarFlags & Qt::WindowSystemMenuHint,
               QStyle::SP_TitleBarCloseButton);
    drawButton(QStyle::SC_TitleBarMaxButton, !isLarge && bar.titleBarFlags & Qt::WindowMaximizeButtonHint,
               QStyle::SP_TitleBarMaxButton);
    drawButton(QStyle::SC_TitleBarMinButton, !isSmall && bar.titleBarFlags & Qt::WindowMinimizeButtonHint,
               QStyle::SP_TitleBarMinButton);
    drawButton(QStyle::SC_TitleBarNormalButton, isSmall || isLarge, QStyle::SP_TitleBarNormalButton);
}

} // namespace

SheetStyle::SheetStyle(std::function<QIcon(const QString& name)> icon)
    : QProxyStyle(QStringLiteral("Fusion")), iconOfSheet(std::move(icon))
{}

void SheetStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* calendar = qobject_cast<QCalendarWidget*>(widget)) {
        ColorWeekend(calendar);
        calendar->installEventFilter(this);
    } else if (qobject_cast<QSlider*>(widget)) {
        widget->installEventFilter(this);
    }
    auto* view = qobject_cast<QAbstractItemView*>(widget);
    if (view)
        StyleColumn(view);
    if (view && HasOldLayout(*view))
        QMetaObject::invokeMethod(
            view, [view] { view->doItemsLayout(); }, Qt::QueuedConnection);
}

void SheetStyle::unpolish(QWidget* widget)
{
    widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool SheetStyle::eventFilter(QObject* object, QEvent* event)
{
    auto* calendar = qobject_cast<QCalendarWidget*>(object);
    auto* slider = qobject_cast<QSlider*>(object);
    if (calendar && event->type() == QEvent::EnabledChange)
        ColorWeekend(calendar);
    else if (slider && event->type() == QEvent::Paint && slider->tickPosition() != QSlider::NoTicks)
        DrawTicks(*slider);
    return QProxyStyle::eventFilter(object, event);
}

void SheetStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    if (palette == platformPalette)
        return;
    platformPalette = palette;
    QCoreApplication::postEvent(qApp, new QEvent(QEvent::ThemeChange));
}

QIcon SheetStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    static const QHash<int, QString> NAMES = {
        {SP_LineEditClearButton, "clear"},
        {SP_CommandLink, "arrow-right"},
        {SP_ArrowLeft, "chevron-left"},
        {SP_ArrowRight, "chevron-right"},
        {SP_ArrowBack, "arrow-left"},
        {SP_ArrowForward, "arrow-right"},
        {SP_FileDialogToParent, "arrow-up"},
        {SP_FileDialogNewFolder, "folder-add"},
        {SP_FileDialogListView, "list"},
        {SP_FileDialogDetailedView, "details"},
        {SP_MessageBoxInformation, "information"},
        {SP_MessageBoxQuestion, "question"},
        {SP_MessageBoxWarning, "warning"},
        {SP_MessageBoxCritical, "warning"},
        {SP_TitleBarMinButton, "minimize"},
        {SP_TitleBarMaxButton, "maximize"},
        {SP_TitleBarCloseButton, "close"},
        {SP_TitleBarNormalButton, "restore"},
        {SP_DockWidgetCloseButton, "close"},
        {SP_ToolBarHorizontalExtensionButton, "chevrons-right"},
    };
    if (NAMES.contains(icon)) {
        // A sheet from a file may lack the icon.
        const QIcon own = iconOfSheet(NAMES[icon]);
        if (!own.pixmap(16).isNull())
            return own;
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

void SheetStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element == PE_IndicatorColumnViewArrow)
        proxy()
            ->standardIcon(option->direction == Qt::RightToLeft ? SP_ArrowLeft : SP_ArrowRight, option, widget)
            .paint(painter, option->rect);
    else if (element == PE_FrameFocusRect && widget && widget->inherits("QWellArray"))
        qDrawPlainRect(painter, option->rect, option->palette.color(QPalette::Link), 2);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void SheetStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const
{
    const auto* dial = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control == CC_Dial && dial)
        DrawDial(*painter, *dial);
    else if (control == CC_TitleBar && bar)
        DrawTitleBar(*painter, *bar, *proxy(), widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace Zelkor::Vx::UI::Kit
