#include <UI/Kit/ZComboBox.h>

#include <UI/Kit/AdvancedComboView.h>

#include <QFontMetrics>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {

constexpr int ICON_GAP = 4; ///< which styles leave between the icon and the text

QFontMetrics MetricsOn(const QWidget* widget)
{
    return QFontMetrics(widget->font(), widget);
}

// The delegate that QComboBox made for its list, and replaces when the style changes. It draws separators, and the rows
// as the style or a style sheet draws them in combo boxes. Null when QComboBox::setItemDelegate deleted it.
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
    // Taken out of the pop-up, which would delete it at once: the change may come from one of its own events. A child
    // of the combo box would be taken for its list by style sheets.
    old->setParent(nullptr);
    connect(model(), &QObject::destroyed, old, [old] { delete old; });
    old->deleteLater();
    setView(fresh);
    if (isOpen)
        QComboBox::showPopup();
    Q_EMIT widePopupEnabledChanged();
}

// A list for the place of the present one, whose delegate it takes.
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
        // QComboBox may delete its delegate before the present list goes.
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
    // From now on, hiding means the other one: an open list would stay.
    if (window && view()->isVisible())
        QComboBox::hidePopup();
    popUp = window;
}

void ZComboBox::showPopup()
{
    if (!popUp) {
        // An application may have set a list of its own.
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

// Qt forgets the minimum size of the old style, but not that of the old font.
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
        // As pale as any combo box has it.
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
    // The text of the option is the current one, so a tool tip of somebody else does not outlive the painting.
    const QString tip = currentText() == option.currentText ? QString() : currentText();
    if (toolTip() != tip)
        setToolTip(tip);
    return MetricsOn(this).elidedText(option.currentText, Qt::ElideRight, edit.width() - iconSpace);
}
