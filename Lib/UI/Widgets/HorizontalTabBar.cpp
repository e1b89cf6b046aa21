#include <UI/Widgets/HorizontalTabBar.h>

#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Common/PlainLook.h>

#include <QChildEvent>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionTab>

namespace Zelkor::Vx {

namespace {

using UI::Common::ClampToWidgetSize;

const QLatin1Char PATH_SEPARATOR(';');

constexpr int PLAIN_ICON_GAP = 4; // for which QTabBar makes room in the size of a tab

// Checks for the file first, since the SVG reader warns about a missing one.
QIcon LoadIcon(const QString& path)
{
    // QFileInfo warns about names with a null character.
    const bool isName = !path.contains(QChar());
    return isName && QFileInfo::exists(path) ? QIcon(path) : QIcon();
}

// Transforms from tab coordinates, with horizontal text and the origin at the top left, to those of the bar.
QTransform FaceToBar(const QRect& tab, bool turned, bool atEast)
{
    if (!turned)
        return QTransform::fromTranslate(tab.x(), tab.y());
    if (atEast)
        return QTransform::fromTranslate(tab.x() + tab.width(), tab.y()).rotate(90);
    return QTransform::fromTranslate(tab.x(), tab.y() + tab.height()).rotate(-90);
}

QString Elided(const QString& text, const QFontMetrics& metrics, Qt::TextElideMode mode, int width)
{
    // elidedText() joins the lines of a multi-line text.
    if (mode == Qt::ElideNone || metrics.size(0, text).width() <= width)
        return text;
    return metrics.elidedText(text, mode, width);
}

// Takes room for "&" from the paddings, since QTabBar treats it as a mnemonic marker when it computes the tab size.
QRect WithRoomForAmpersands(QRect place, const QString& text, const QFontMetrics& metrics, Qt::Alignment alignment,
                            const QRect& face)
{
    const int width = metrics.size(0, text).width();
    const int missing = qMin(width - place.width(), width - metrics.size(Qt::TextShowMnemonic, text).width());
    if (missing <= 0)
        return place;
    const QSize size(qMin(place.width() + missing, face.width()), place.height());
    QRect room = QStyle::alignedRect(Qt::LeftToRight, alignment, size, place);
    room.moveLeft(qBound(face.left(), room.left(), face.right() + 1 - room.width()));
    return room;
}

// Returns the part of the text area beside a button, on the side with more room.
QRect Beside(const QRect& button, QRect text)
{
    if (!button.intersects(text))
        return text;
    if (button.left() - text.left() > text.right() - button.right())
        text.setRight(button.left() - 1);
    else
        text.setLeft(button.right() + 1);
    return text;
}

} // namespace

HorizontalTabBar::HorizontalTabBar(QWidget* parent) : QTabBar(parent)
{
    connect(this, &QTabBar::currentChanged, this, &HorizontalTabBar::UpdateIcons);
    // Icons belong to positions, but QTabBar moves them with their tabs.
    connect(this, &QTabBar::tabMoved, this, &HorizontalTabBar::UpdateIcons);
    setAttribute(Qt::WA_Hover);
}

HorizontalTabBar::~HorizontalTabBar() = default;

QString HorizontalTabBar::GetPathsNormalIcons() const
{
    return pathsNormalIcons.join(PATH_SEPARATOR);
}

void HorizontalTabBar::SetPathsNormalIcons(const QString& paths)
{
    SetPaths(pathsNormalIcons, paths);
}

QString HorizontalTabBar::GetPathsSelectedIcons() const
{
    return pathsSelectedIcons.join(PATH_SEPARATOR);
}

void HorizontalTabBar::SetPathsSelectedIcons(const QString& paths)
{
    SetPaths(pathsSelectedIcons, paths);
}

void HorizontalTabBar::SetPaths(QStringList& list, const QString& paths)
{
    list = paths.split(PATH_SEPARATOR);
    icons.clear();
    UpdateIcons();
}

void HorizontalTabBar::UpdateIcons()
{
    for (int i = 0; i < count(); ++i) {
        const QStringList& paths = i == currentIndex() ? pathsSelectedIcons : pathsNormalIcons;
        if (i >= paths.size())
            continue;
        auto icon = icons.find(paths[i]);
        if (icon == icons.end())
            icon = icons.insert(paths[i], LoadIcon(paths[i]));
        // setTabIcon() may lay out the whole bar.
        if (icon->cacheKey() != tabIcon(i).cacheKey())
            setTabIcon(i, *icon);
    }
}

void HorizontalTabBar::tabInserted(int index)
{
    QTabBar::tabInserted(index);
    UpdateIcons();
}

void HorizontalTabBar::tabRemoved(int index)
{
    QTabBar::tabRemoved(index);
    UpdateIcons();
}

bool HorizontalTabBar::event(QEvent* event)
{
    const bool handled = QTabBar::event(event);
    // Tabs and their buttons may have been laid out before polishing.
    if (event->type() == QEvent::Polish) {
        QEvent change(QEvent::StyleChange);
        changeEvent(&change);
    }
    return handled;
}

void HorizontalTabBar::changeEvent(QEvent* event)
{
    QTabBar::changeEvent(event);
    // A style that sets the attribute for its own hover effect clears it when it is replaced.
    if (event->type() == QEvent::StyleChange)
        setAttribute(Qt::WA_Hover);
}

// During a drag, QTabBar renders the tab into a child widget with the text and icon of the style, and moves that widget
// in its paint event. The functions below paint and move it instead.

void HorizontalTabBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        pressedAt = event->pos();
    QTabBar::mousePressEvent(event);
}

void HorizontalTabBar::mouseMoveEvent(QMouseEvent* event)
{
    {
        // QTabBar creates the child at the start of a drag, before it emits signals.
        QScopedValueRollback<bool> awaits(awaitsDraggedTab, !draggedTab);
        QTabBar::mouseMoveEvent(event);
    }
    if (!draggedTab || !draggedTab->isVisible())
        return;
    const QPoint distance = event->pos() - pressedAt;
    draggedTab->move(draggedFrom + (IsVertical() ? QPoint(0, distance.y()) : QPoint(distance.x(), 0)));
}

void HorizontalTabBar::childEvent(QChildEvent* event)
{
    QTabBar::childEvent(event);
    if (!awaitsDraggedTab || !event->added() || !event->child()->isWidgetType())
        return;
    awaitsDraggedTab = false;
    draggedTab = static_cast<QWidget*>(event->child());
    draggedTab->installEventFilter(this);
}

bool HorizontalTabBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == draggedTab && event->type() == QEvent::Show)
        draggedFrom = draggedTab->pos();
    if (watched != draggedTab || event->type() != QEvent::Paint)
        return QTabBar::eventFilter(watched, event);
    PaintDraggedTab();
    return true;
}

bool HorizontalTabBar::IsVertical() const
{
    return shape() == RoundedWest || shape() == RoundedEast || shape() == TriangularWest || shape() == TriangularEast;
}

// By default, QTabBar sizes the tabs of a vertical bar for rotated text.
bool HorizontalTabBar::AreTextsTurned() const
{
    for (int i = 0; IsVertical() && i < count(); ++i) {
        const QSize tab = tabRect(i).size();
        const int text = fontMetrics().size(0, tabText(i)).width() + ClampToWidgetSize(paddingLeft) +
                         ClampToWidgetSize(paddingRight);
        if (text > tab.width() && tab.height() > tab.width())
            return true;
    }
    return false;
}

bool HorizontalTabBar::IsDragged(const QStyleOptionTab& option) const
{
    return draggedTab && draggedTab->isVisible() && (option.state & QStyle::State_Sunken);
}

// Without distances, text would touch the edge of the tab, and the icon the text.
bool HorizontalTabBar::HasPlainPlaces() const
{
    return !paddingLeft && !paddingRight && !paddingTop && !paddingBottom && !xPosTabIcon && !yPosTabIcon &&
           !UI::Common::HasStyleSheet(*this);
}

int HorizontalTabBar::PlainPadding(const QStyleOptionTab& option) const
{
    return style()->pixelMetric(QStyle::PM_TabBarTabHSpace, &option, this) / 2;
}

QRect HorizontalTabBar::IconRect(const QRect& face, const QStyleOptionTab& option) const
{
    QRect icon(QPoint(ClampToWidgetSize(xPosTabIcon), ClampToWidgetSize(yPosTabIcon)), iconSize());
    if (HasPlainPlaces())
        icon.moveTo(PlainPadding(option), (face.height() - icon.height()) / 2);
    return QStyle::visualRect(layoutDirection(), face, icon);
}

QRect HorizontalTabBar::TextRect(int index, const QRect& face, const QTransform& toBar,
                                 const QStyleOptionTab& option) const
{
    QRect text = face.adjusted(ClampToWidgetSize(paddingLeft), ClampToWidgetSize(paddingTop),
                               -ClampToWidgetSize(paddingRight), -ClampToWidgetSize(paddingBottom));
    if (HasPlainPlaces()) {
        const int padding = PlainPadding(option);
        const int icon = tabIcon(index).isNull() ? 0 : iconSize().width() + PLAIN_ICON_GAP;
        text.adjust(padding + icon, 0, -padding, 0);
    }
    text = QStyle::visualRect(layoutDirection(), face, text);
    text = WithRoomForAmpersands(text, tabText(index), fontMetrics(),
                                 QStyle::visualAlignment(layoutDirection(), alignText), face);
    for (const auto part : {QStyle::SE_TabBarTabLeftButton, QStyle::SE_TabBarTabRightButton}) {
        const QSize& button = part == QStyle::SE_TabBarTabLeftButton ? option.leftButtonSize : option.rightButtonSize;
        if (!button.isEmpty())
            text = Beside(toBar.inverted().mapRect(style()->subElementRect(part, &option, this)), text);
    }
    return text;
}

QColor HorizontalTabBar::TextColor(const QStyleOptionTab& option) const
{
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const bool isHovered = (option.state & QStyle::State_MouseOver) && isEnabled;
    const QColor color = option.state & QStyle::State_Selected ? selectedTextColor
                         : isHovered                           ? hoverTextColor
                                                               : normalTextColor;
    if (color != Qt::black || UI::Common::HasStyleSheet(*this))
        return color;
    return palette().color(isEnabled ? palette().currentColorGroup() : QPalette::Disabled, QPalette::WindowText);
}

void HorizontalTabBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool turned = AreTextsTurned();
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab option;
        initStyleOption(&option, i);
        if (option.rect.intersects(rect()) && !IsDragged(option))
            PaintTab(painter, i, option, turned);
    }
}

void HorizontalTabBar::PaintTab(QPainter& painter, int index, QStyleOptionTab& option, bool turned) const
{
    // Restricts the style to shape and focus frame.
    option.icon = QIcon();
    option.text = QStringLiteral(" ");
    style()->drawControl(QStyle::CE_TabBarTab, &option, &painter, this);

    const QTransform toBar = FaceToBar(option.rect, turned, shape() == RoundedEast || shape() == TriangularEast);
    const QRect face(QPoint(), turned ? option.rect.size().transposed() : option.rect.size());
    const QRect textRect = TextRect(index, face, toBar, option);
    if (!textRect.isEmpty()) {
        const QString text = Elided(tabText(index), fontMetrics(), elideMode(), textRect.width());
        painter.save();
        painter.setTransform(toBar, true);
        painter.setFont(font());
        painter.setPen(TextColor(option));
        // Aligns by the direction of the bar, but draws in the direction of the text, for its ellipsis and brackets.
        painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(textRect, int(QStyle::visualAlignment(layoutDirection(), alignText)), text);
        painter.restore();
    }
    tabIcon(index).paint(&painter, toBar.mapRect(IconRect(face, option)), Qt::AlignTop | Qt::AlignHCenter);
}

// The child is wider than the tab by the style's tab overlap.
void HorizontalTabBar::PaintDraggedTab() const
{
    QPainter painter(draggedTab);
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab option;
        initStyleOption(&option, i);
        if (IsDragged(option)) {
            option.position = QStyleOptionTab::OnlyOneTab;
            option.rect.moveCenter(draggedTab->rect().center());
            PaintTab(painter, i, option, AreTextsTurned());
        }
    }
}

} // namespace Zelkor::Vx
