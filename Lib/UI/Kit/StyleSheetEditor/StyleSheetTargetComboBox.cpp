#include <UI/Kit/StyleSheetEditor/StyleSheetTargetComboBox.h>

#include <UI/Common/WheelPolicy.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int MINIMUM_CHARACTERS = 8; ///< minimum width in characters

} // namespace

StyleSheetTargetComboBox::StyleSheetTargetComboBox(QWidget* parent) : QComboBox(parent), widgets{nullptr}
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(MINIMUM_CHARACTERS);
    addItem(tr("Application"));
    setPlaceholderText(tr("Choose a widget"));
    connect(this, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        QWidget* widget = widgets.value(index);
        if (index > 0 && !widget) {
            // Destroyed while the list was open: keeps the previous choice.
            setCurrentIndex(hasChoice ? widgets.indexOf(current) : -1);
            return;
        }
        watch(widget);
        // Queued, because a slot may delete the combo box, which is still closing its list.
        const auto emitChosen = [this, index, guarded = QPointer<QWidget>(widget)] {
            if (index == 0 || guarded)
                Q_EMIT chosen(guarded);
        };
        QMetaObject::invokeMethod(this, emitChosen, Qt::QueuedConnection);
    });
}

// The target may be a child of the combo box, destroyed after this.
StyleSheetTargetComboBox::~StyleSheetTargetComboBox()
{
    disconnect(watching);
}

void StyleSheetTargetComboBox::setTarget(QWidget* widget)
{
    watch(widget);
    refill();
}

QString StyleSheetTargetComboBox::nameOf(const QWidget* widget)
{
    const QString className = QString::fromLatin1(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        return className + QStringLiteral(" #") + widget->objectName();
    return widget->windowTitle().isEmpty() ? className : className + QStringLiteral(" - ") + widget->windowTitle();
}

void StyleSheetTargetComboBox::watch(QWidget* widget)
{
    disconnect(watching);
    current = widget;
    hasChoice = true;
    if (!widget)
        return;
    watching = connect(widget, &QObject::destroyed, this, [this] {
        hasChoice = false;
        setCurrentIndex(-1);
        Q_EMIT targetDestroyed();
    });
}

// Adds all windows of the application except this one, and the current target.
void StyleSheetTargetComboBox::refill()
{
    clear();
    widgets = {nullptr};
    addItem(tr("Application"));
    const auto add = [this](QWidget* widget) {
        widgets.append(widget);
        addItem(nameOf(widget));
    };
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        const bool isWindow = widget->windowType() == Qt::Window || widget->windowType() == Qt::Dialog;
        if (isWindow && widget->isVisible() && widget != window())
            add(widget);
    }
    if (current && !widgets.contains(current))
        add(current);
    setCurrentIndex(hasChoice ? widgets.indexOf(current) : -1);
}

void StyleSheetTargetComboBox::showPopup()
{
    refill();
    QComboBox::showPopup();
}

// Updates the list before arrow keys select from it.
void StyleSheetTargetComboBox::keyPressEvent(QKeyEvent* event)
{
    if (!view()->isVisible())
        refill();
    QComboBox::keyPressEvent(event);
}

void StyleSheetTargetComboBox::wheelEvent(QWheelEvent* event)
{
    if (Common::AcceptWheelEvent(*this, *event, true))
        QComboBox::wheelEvent(event);
}

void StyleSheetTargetComboBox::changeEvent(QEvent* event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setItemText(0, tr("Application"));
        setPlaceholderText(tr("Choose a widget"));
    }
}

} // namespace Zelkor::Vx::UI::Kit
