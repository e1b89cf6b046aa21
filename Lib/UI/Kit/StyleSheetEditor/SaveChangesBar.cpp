#include <UI/Kit/StyleSheetEditor/SaveChangesBar.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Kit/StyleSheetEditor/MessageLabel.h>

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Zelkor::Vx::UI;

ZQuestionBar::ZQuestionBar(QWidget* parent)
    : QWidget(parent), question(new ZMessageLabel), saveButton(new QPushButton), discardButton(new QPushButton),
      cancelButton(new QPushButton)
{
    Common::AccessibleFactory<ZQuestionBar, Common::AccessibleAs<QAccessible::AlertMessage>>::Install();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(discardButton);
    buttons->addWidget(cancelButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(question);
    layout->addLayout(buttons);
    connect(saveButton, &QPushButton::clicked, this, &ZQuestionBar::saveWanted);
    connect(discardButton, &QPushButton::clicked, this, &ZQuestionBar::proceed);
    connect(cancelButton, &QPushButton::clicked, this, &ZQuestionBar::dismiss);
    retranslate();
    hide();
}

void ZQuestionBar::ask(std::function<void()> then)
{
    next = std::move(then);
    show();
    saveButton->setFocus();
}

// The question is gone before the next thing begins, which may ask again or delete the bar.
void ZQuestionBar::proceed()
{
    const auto action = std::exchange(next, nullptr);
    hide();
    if (action)
        action();
}

void ZQuestionBar::dismiss()
{
    next = nullptr;
    hide();
}

void ZQuestionBar::retranslate()
{
    question->setText(tr("There are changes that were not saved."));
    setAccessibleName(question->text());
    saveButton->setText(tr("&Save"));
    discardButton->setText(tr("&Discard"));
    cancelButton->setText(tr("&Cancel"));
}

void ZQuestionBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ZQuestionBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}
