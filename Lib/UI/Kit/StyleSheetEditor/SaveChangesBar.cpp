#include <UI/Kit/StyleSheetEditor/SaveChangesBar.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Kit/StyleSheetEditor/MessageLabel.h>

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace Zelkor::Vx::UI::Kit {

SaveChangesBar::SaveChangesBar(QWidget* parent)
    : QWidget(parent), question(new MessageLabel), saveButton(new QPushButton), discardButton(new QPushButton),
      cancelButton(new QPushButton)
{
    Common::AccessibleFactory<SaveChangesBar, Common::AccessibleAs<QAccessible::AlertMessage>>::Install();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {saveButton, discardButton, cancelButton}) {
        // Return answers, as in a dialog.
        button->setAutoDefault(true);
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(question);
    layout->addLayout(buttons);
    connect(saveButton, &QPushButton::clicked, this, &SaveChangesBar::saveRequested);
    connect(discardButton, &QPushButton::clicked, this, &SaveChangesBar::proceed);
    connect(cancelButton, &QPushButton::clicked, this, &SaveChangesBar::dismiss);
    retranslate();
    hide();
}

void SaveChangesBar::ask(std::function<void()> then)
{
    next = std::move(then);
    if (!isAncestorOf(window()->focusWidget()))
        previousFocus = window()->focusWidget();
    show();
    saveButton->setFocus();
}

// Hides the question first, because the function may ask again or delete the bar.
void SaveChangesBar::proceed()
{
    const auto action = std::exchange(next, nullptr);
    restoreFocusAndHide();
    if (action)
        action();
}

void SaveChangesBar::dismiss()
{
    next = nullptr;
    restoreFocusAndHide();
}

// Without this, Qt would focus the next widget in the tab order.
void SaveChangesBar::restoreFocusAndHide()
{
    if (previousFocus && isAncestorOf(window()->focusWidget()))
        previousFocus->setFocus();
    hide();
}

void SaveChangesBar::retranslate()
{
    question->setText(tr("There are changes that were not saved."));
    setAccessibleName(question->text());
    saveButton->setText(tr("&Save"));
    discardButton->setText(tr("&Discard"));
    cancelButton->setText(tr("&Cancel"));
}

void SaveChangesBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void SaveChangesBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}

} // namespace Zelkor::Vx::UI::Kit
