#include <UI/Kit/ZComboBox.h>

#include <UI/Kit/AdvancedComboView.h>

#include <QFontMetrics>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {

constexpr int ICON_GAP = 4; ///< pixels between icon and text in styles of Qt

QFontMetrics MetricsOn(const QWidget* widget)
{
    return QFontMetrics(widget->font(), widget);
}

// Returns the delegate that QComboBox created, which draws separators and the rows in the style of combo boxes, and
// which QComboBox replaces when the style changes. Null if QComboBox::setItemDelegate() deleted it.
QAbstractItemDelegate* ComboDelegateOf(const QAbstractItemView& list)
{
    for (auto* delegate : list.findChildren<QAbstractItemDelegate*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (delegate->inherits("QComboBoxDelegate") || delegate->inherits("QComboMenuDelegate"))
            return delegate;
    }
    return nullptr;
}

} // namespace

ZComboBox::ZComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setView(makeList());
}

void ZComboBox::setMouseWheelEnabled(bool on)
{
    if (mouseWheelEnabled == on)
        return;
    mouseWheelEnabled = on;
    Q_EMIT mouseWheelEnabledChanged();
}

void ZComboBox::setWidePopupEnabled(bool on)
{
    if (widePopupEnabled == on)
        return;
    widePopupEnabled = on;
    QAbstractItemView* old = view();
    const bool isOpen = !popUp && old->isVisible();
    if (isOpen)
        QComboBox::hidePopup();
    AdvancedComboView* fresh = makeList();
    // The pop-up would delete its old view at once, but this may be called from an event of the view. As a child of the
    // combo box, style sheets would take it for the list.
    old->setParent(nullptr);
    connect(model(), &QObject::destroyed, old, [old] { delete old; });
    old->deleteLater();
    setView(fresh);
    if (isOpen)
        QComboBox::showPopup();
    Q_EMIT widePopupEnabledChanged();
}

// Creates a view that takes the delegate of the current one.
AdvancedComboView* ZComboBox::makeList()
{
    QAbstractItemView* present = view();
    auto* list = new AdvancedComboView(this, widePopupEnabled);
    list->setModel(model());
    list->setRootIndex(rootModelIndex());
    list->setModelColumn(modelColumn());
    if (QAbstractItemDelegate* delegate = ComboDelegateOf(*present)) {
        delegate->setParent(list);
        list->setItemDelegate(delegate);
        // QComboBox may delete its delegate before the old view.
        present->setItemDelegate(new QStyledItemDelegate(present));
    }
    return list;
}

void ZComboBox::setEliding(bool on)
{
    if (eliding == on)
        return;
    eliding = on;
    Q_EMIT elidingChanged();
}

void ZComboBox::setDisplayText(const QString& text)
{
    if (shownText == text)
        return;
    shownText = text;
    updateGeometry();
    update();
    Q_EMIT displayTextChanged();
}

void ZComboBox::setPopupWidget(QWidget* window)
{
    // hidePopup() will hide the window, so an open list must be closed now.
    if (window && view()->isVisible())
        QComboBox::hidePopup();
    popUp = window;
}

void ZComboBox::showPopup()
{
    if (!popUp) {
        // The application may have set another view.
        if (auto* list = dynamic_cast<AdvancedComboView*>(view()))
            list->fitToItems();
        QComboBox::showPopup();
        return;
    }
    popUp->show();
    if (!popUp)
        return;
    const QPoint corner = mapToGlobal(QPoint(0, 0));
    const int above = popUp->height();
    popUp->move(corner.x(), corner.y() > above ? corner.y() - above : corner.y() + height());
}

void ZComboBox::hidePopup()
{
    if (popUp)
        popUp->hide();
    else
        QComboBox::hidePopup();
}

// QComboBox resets the cached minimum size after a change of the style, but not of the font.
void ZComboBox::changeEvent(QEvent* event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        QEvent change(QEvent::StyleChange);
        QComboBox::changeEvent(&change);
    }
}

QSize ZComboBox::minimumSizeHint() const
{
    QSize size = QComboBox::minimumSizeHint();
    if (!shownText.isEmpty()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QRect edit = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        const QRect frame = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxFrame, this);
        size.setWidth(frame.width() - edit.width() + MetricsOn(this).horizontalAdvance(shownText));
    }
    return size;
}

void ZComboBox::paintEvent(QPaintEvent* event)
{
    if (!eliding && shownText.isEmpty()) {
        QComboBox::paintEvent(event);
        return;
    }
    event->accept();
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    if (shownText.isEmpty() && currentIndex() < 0 && !placeholderText().isEmpty()) {
        // As QComboBox paints it.
        option.palette.setBrush(QPalette::ButtonText, option.palette.placeholderText());
        option.currentText = placeholderText();
    }
    option.currentText = faceText(option);
    style()->drawControl(QStyle::CE_ComboBoxLabel, &option, &painter, this);
}

void ZComboBox::wheelEvent(QWheelEvent* event)
{
    if (mouseWheelEnabled)
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

QString ZComboBox::faceText(const QStyleOptionComboBox& option)
{
    if (!shownText.isEmpty())
        return shownText;
    const QRect edit = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int iconSpace = option.currentIcon.isNull() ? 0 : option.iconSize.width() + ICON_GAP;
    // The option contains the current text, so that painting replaces a tool tip of the application.
    const QString tip = currentText() == option.currentText ? QString() : currentText();
    if (toolTip() != tip)
        setToolTip(tip);
    return MetricsOn(this).elidedText(option.currentText, Qt::ElideRight, edit.width() - iconSpace);
}
