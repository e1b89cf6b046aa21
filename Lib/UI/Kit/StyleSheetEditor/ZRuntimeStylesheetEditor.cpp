#include <UI/Kit/StyleSheetEditor/ZRuntimeStylesheetEditor.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Kit/StyleSheetEditor/MessageLabel.h>
#include <UI/Kit/StyleSheetEditor/SaveChangesBar.h>
#include <UI/Kit/StyleSheetEditor/SearchBar.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetEditorUi.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetFile.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTarget.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTargetComboBox.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTextEdit.h>
#include <UI/Kit/StyleSheetEditor/WidgetPicker.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFileInfo>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <functional>
#include <utility>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::Kit;

namespace {

constexpr QSize WINDOW_SIZE(640, 600);
// A dialog is in front of its transient parent.
constexpr Qt::WindowFlags WINDOW_FLAGS(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                                       Qt::WindowCloseButtonHint);
constexpr int TYPING_PAUSE = 300; ///< milliseconds without a key before the text is checked

/// The editor may be a window or a part of one.
class AccessibleEditor : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override
    {
        return widget()->isWindow() ? QAccessible::Window : QAccessible::Grouping;
    }
};

} // namespace

struct ZRuntimeStylesheetEditor::Impl
{
    Q_DECLARE_TR_FUNCTIONS(ZRuntimeStylesheetEditor)

public:
    explicit Impl(ZRuntimeStylesheetEditor* window);

    void connectParts();
    void connectCommands();
    void retranslate();

    void showMessage(std::function<QString()> message, bool isProblem = false);
    bool hasMistakes() const { return !ui.editor->mistakes().isEmpty(); }
    void check();
    void checkAndApply();
    void goToNextMistake();

    void chooseTarget(QWidget* widget);
    void applyText();
    void followTarget();

    void setUnmodified(const QString& file);
    void afterSaving(std::function<void()> action);
    void showFileDialog(QFileDialog::AcceptMode mode);
    void save();

    ZRuntimeStylesheetEditor* const window;
    StyleSheetEditorUi ui;
    WidgetPicker* const picker;
    StyleSheetTarget target;
    QString fileName;
    bool hasByteOrderMark = false; ///< in the file
    bool showsMistake = false;
    QString checkedText; ///< at the last check
    QTimer pause;
    QObject context; ///< of all connections to this record, which is destroyed before the child widgets
};

ZRuntimeStylesheetEditor::Impl::Impl(ZRuntimeStylesheetEditor* window)
    : window(window), ui(window), picker(new WidgetPicker(window, window))
{
    pause.setSingleShot(true);
    pause.setInterval(TYPING_PAUSE);
    connectParts();
    connectCommands();
}

ZRuntimeStylesheetEditor::ZRuntimeStylesheetEditor(QWidget* parent)
    : QWidget(parent, parent ? Qt::WindowFlags() : WINDOW_FLAGS), impl(std::make_unique<Impl>(this))
{
    Common::AccessibleFactory<ZRuntimeStylesheetEditor, AccessibleEditor>::Install();
    resize(WINDOW_SIZE);
    impl->retranslate();
    impl->followTarget();
}

ZRuntimeStylesheetEditor::~ZRuntimeStylesheetEditor() = default;

void ZRuntimeStylesheetEditor::Impl::connectParts()
{
    connect(&pause, &QTimer::timeout, &context, [this] { checkAndApply(); });
    // Also emitted when the highlighter changes formats, for example after a change of the palette.
    connect(ui.editor, &QPlainTextEdit::textChanged, &context, [this] {
        if (ui.editor->toPlainText() != checkedText)
            pause.start();
    });
    connect(ui.editor, &QPlainTextEdit::modificationChanged, window, &QWidget::setWindowModified);
    connect(ui.editor, &QPlainTextEdit::cursorPositionChanged, &context, [this] { ui.showCursorPosition(); });
    connect(ui.typingBox, &QCheckBox::toggled, &context, [this] { pause.start(); });
    // Queued, because a slot may delete the window while the check box is still in its own event handler.
    connect(ui.typingBox, &QCheckBox::toggled, window, &ZRuntimeStylesheetEditor::applyingWhileTypingChanged,
            Qt::QueuedConnection);
    connect(ui.saveChangesBar, &SaveChangesBar::saveRequested, &context, [this] { save(); });
    connect(ui.targetBox, &StyleSheetTargetComboBox::chosen, &context,
            [this](QWidget* widget) { chooseTarget(widget); });
    connect(ui.targetBox, &StyleSheetTargetComboBox::targetDestroyed, &context,
            [this] { showMessage([] { return tr("The widget is gone. Choose another one."); }, true); });
    connect(ui.pickButton, &QToolButton::toggled, &context, [this](bool on) {
        if (!on)
            return picker->stop();
        picker->start();
        showMessage([] { return tr("Click on a widget of the application, or press Escape."); });
    });
    connect(picker, &WidgetPicker::pointed, &context, [this](QWidget* widget) {
        showMessage([name = StyleSheetTargetComboBox::nameOf(widget)] { return name; });
    });
    connect(picker, &WidgetPicker::stopped, &context, [this] {
        ui.pickButton->setChecked(false);
        showMessage({});
    });
    connect(picker, &WidgetPicker::picked, &context, [this](QWidget* widget) {
        window->setTarget(widget);
        // The click raised the window of the picked widget.
        window->window()->raise();
        window->activateWindow();
        ui.editor->setFocus();
    });
}

void ZRuntimeStylesheetEditor::Impl::connectCommands()
{
    const auto on = [this](QAction* action, auto slot) { connect(action, &QAction::triggered, &context, slot); };
    on(ui.open, [this] { afterSaving([this] { showFileDialog(QFileDialog::AcceptOpen); }); });
    on(ui.save, [this] { save(); });
    on(ui.saveAs, [this] { showFileDialog(QFileDialog::AcceptSave); });
    on(ui.undo, [this] { ui.editor->undo(); });
    on(ui.redo, [this] { ui.editor->redo(); });
    on(ui.copy, [this] { ui.editor->copy(); });
    using Available = void (QPlainTextEdit::*)(bool);
    for (const auto& [action, available] : {std::pair<QAction*, Available>(ui.undo, &QPlainTextEdit::undoAvailable),
                                            {ui.redo, &QPlainTextEdit::redoAvailable},
                                            {ui.copy, &QPlainTextEdit::copyAvailable}}) {
        action->setEnabled(false);
        connect(ui.editor, available, action, &QAction::setEnabled);
    }
    on(ui.find, [this] { window->openSearch(); });
    on(ui.findNext, [this] { ui.search->findNext(); });
    on(ui.findPrevious, [this] { ui.search->findPrevious(); });
    on(ui.nextMistake, [this] { goToNextMistake(); });
    on(ui.complete, [this] { ui.editor->complete(); });
    on(ui.apply, [this] { window->apply(); });
    on(ui.revert, [this] { window->revert(); });
    on(ui.read, [this] { window->readFromTarget(); });
    on(ui.pick, [this] { ui.pickButton->toggle(); });
    connect(ui.applyButton, &QPushButton::clicked, window, &ZRuntimeStylesheetEditor::apply);
    connect(ui.revertButton, &QPushButton::clicked, window, &ZRuntimeStylesheetEditor::revert);
}

void ZRuntimeStylesheetEditor::Impl::retranslate()
{
    ui.retranslate();
    const QString file = QFileInfo(fileName).fileName();
    const QString title = (file.isEmpty() ? QString() : file + QStringLiteral(" - ")) + tr("Style sheet editor");
    window->setWindowTitle(title + QStringLiteral("[*]"));
    window->setAccessibleName(title);
    ui.showCursorPosition();
}

void ZRuntimeStylesheetEditor::Impl::showMessage(std::function<QString()> message, bool isProblem)
{
    showsMistake = false;
    ui.showMessage(std::move(message), isProblem);
}

QString ZRuntimeStylesheetEditor::message() const
{
    return impl->ui.messageLabel->text();
}

void ZRuntimeStylesheetEditor::Impl::check()
{
    pause.stop();
    const QString before = std::exchange(checkedText, ui.editor->toPlainText());
    ui.editor->check();
    // Messages about an earlier text are outdated; those about a missing target or a running picker are not.
    if (hasMistakes())
        showMessage([this] { return ui.mistakeSummary(); }, true);
    else if (showsMistake || (before != checkedText && target.exists() && !picker->isRunning()))
        showMessage({});
    showsMistake = hasMistakes();
}

void ZRuntimeStylesheetEditor::Impl::checkAndApply()
{
    check();
    if (window->isApplyingWhileTyping() && !hasMistakes() && target.exists() && target.sheet() != window->text())
        applyText();
}

void ZRuntimeStylesheetEditor::Impl::goToNextMistake()
{
    check();
    if (!hasMistakes())
        showMessage([] { return tr("There are no mistakes."); });
    ui.editor->goToNextMistake();
}

void ZRuntimeStylesheetEditor::setTarget(QWidget* widget)
{
    impl->ui.targetBox->setTarget(widget);
    impl->chooseTarget(widget);
}

void ZRuntimeStylesheetEditor::Impl::chooseTarget(QWidget* widget)
{
    target.set(widget);
    showMessage({});
    ui.editor->setScope(widget ? StyleSheetScope::WIDGET : StyleSheetScope::APPLICATION);
    followTarget();
    check();
}

QWidget* ZRuntimeStylesheetEditor::target() const
{
    return impl->target.widget();
}

bool ZRuntimeStylesheetEditor::hasTarget() const
{
    return impl->target.exists();
}

bool ZRuntimeStylesheetEditor::isApplyingWhileTyping() const
{
    return impl->ui.typingBox->isChecked();
}

void ZRuntimeStylesheetEditor::setApplyingWhileTyping(bool on)
{
    impl->ui.typingBox->setChecked(on);
}

bool ZRuntimeStylesheetEditor::apply()
{
    impl->check();
    if (!hasTarget()) {
        impl->showMessage([] { return tr("Not applied: the widget is gone. Choose another one."); }, true);
        return false;
    }
    if (!impl->ui.editor->isAccepted()) {
        impl->showMessage([this] { return tr("Not applied. %1").arg(impl->ui.mistakeSummary()); }, true);
        return false;
    }
    impl->applyText();
    return true;
}

void ZRuntimeStylesheetEditor::Impl::applyText()
{
    target.apply(window->text());
    const QString name = target.widget() ? StyleSheetTargetComboBox::nameOf(target.widget()) : QString();
    const auto message = [this, name] {
        const QString done = name.isEmpty() ? tr("Applied to the application.") : tr("Applied to %1.").arg(name);
        return (done + QLatin1Char(' ') + ui.mistakeSummary()).trimmed();
    };
    showMessage(message, hasMistakes());
    Q_EMIT window->applied();
}

void ZRuntimeStylesheetEditor::revert()
{
    // Otherwise the pending check would apply the text again.
    impl->pause.stop();
    if (!impl->target.revert()) {
        impl->showMessage([] { return tr("Nothing was applied that could be reverted."); });
        return;
    }
    impl->showMessage([] { return tr("Reverted."); });
    Q_EMIT reverted();
}

QString ZRuntimeStylesheetEditor::text() const
{
    return impl->ui.editor->source();
}

void ZRuntimeStylesheetEditor::setText(const QString& text)
{
    impl->ui.editor->replaceText(text);
    impl->check();
    if (isApplyingWhileTyping())
        impl->pause.start();
}

void ZRuntimeStylesheetEditor::readFromTarget()
{
    if (!hasTarget())
        return;
    impl->ui.saveChangesBar->dismiss();
    impl->ui.editor->replaceText(impl->target.sheet());
    impl->setUnmodified(QString());
}

// Replaces an unmodified text by the sheet of the target and clears the undo history, which holds no user input then.
void ZRuntimeStylesheetEditor::Impl::followTarget()
{
    if (window->isModified() || !fileName.isEmpty() || !target.exists() || target.sheet() == window->text())
        return;
    ui.saveChangesBar->dismiss();
    ui.editor->loadText(target.sheet());
    setUnmodified(QString());
}

bool ZRuntimeStylesheetEditor::isModified() const
{
    return impl->ui.editor->document()->isModified();
}

QString ZRuntimeStylesheetEditor::fileName() const
{
    return impl->fileName;
}

bool ZRuntimeStylesheetEditor::load(const QString& fileName)
{
    StyleSheetFile::Error error;
    const auto contents = StyleSheetFile::Read(fileName, error);
    if (!contents) {
        impl->showMessage([error] { return error.describe(); }, true);
        return false;
    }
    impl->ui.saveChangesBar->dismiss();
    impl->ui.editor->loadText(contents->text);
    impl->hasByteOrderMark = contents->hasByteOrderMark;
    impl->setUnmodified(fileName);
    return true;
}

bool ZRuntimeStylesheetEditor::save(const QString& fileName)
{
    StyleSheetFile::Error error;
    if (!StyleSheetFile::Write(fileName, {text(), impl->hasByteOrderMark}, error)) {
        impl->showMessage([error] { return error.describe(); }, true);
        return false;
    }
    impl->setUnmodified(fileName);
    impl->showMessage([] { return tr("Saved."); });
    impl->ui.saveChangesBar->proceed();
    return true;
}

// Marks the text as saved in `file`, or as belonging to no file when that is empty.
void ZRuntimeStylesheetEditor::Impl::setUnmodified(const QString& file)
{
    fileName = file;
    hasByteOrderMark = hasByteOrderMark && !file.isEmpty();
    ui.editor->document()->setModified(false);
    // QPlainTextEdit emits modificationChanged(true), but never false, for an empty text.
    window->setWindowModified(false);
    retranslate();
    showMessage({});
    check();
}

void ZRuntimeStylesheetEditor::Impl::afterSaving(std::function<void()> action)
{
    if (window->isModified())
        ui.saveChangesBar->ask(std::move(action));
    else
        action();
}

// The dialog does not block the application.
void ZRuntimeStylesheetEditor::Impl::showFileDialog(QFileDialog::AcceptMode mode)
{
    QFileDialog* dialog = ui.makeFileDialog(window, mode, QFileInfo(fileName).path());
    const bool saves = mode == QFileDialog::AcceptSave;
    connect(dialog, &QFileDialog::fileSelected, window,
            saves ? &ZRuntimeStylesheetEditor::save : &ZRuntimeStylesheetEditor::load);
    // A window manager may activate another window when a question of the dialog was open just before.
    connect(dialog, &QFileDialog::finished, window, &QWidget::activateWindow);
    dialog->open();
}

void ZRuntimeStylesheetEditor::Impl::save()
{
    if (fileName.isEmpty())
        showFileDialog(QFileDialog::AcceptSave);
    else
        window->save(fileName);
}

void ZRuntimeStylesheetEditor::openSearch()
{
    impl->ui.search->open();
}

void ZRuntimeStylesheetEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        impl->retranslate();
        impl->ui.editor->markMistakes();
    }
}

void ZRuntimeStylesheetEditor::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    impl->followTarget();
    const QWidget* active = QApplication::activeWindow();
    if (isWindow() && !parentWidget() && active && active != this)
        windowHandle()->setTransientParent(active->windowHandle());
    // Qt would focus the first child.
    if (isWindow() && !focusWidget())
        impl->ui.editor->setFocus();
}

void ZRuntimeStylesheetEditor::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        impl->picker->stop();
}

void ZRuntimeStylesheetEditor::closeEvent(QCloseEvent* event)
{
    if (!isModified()) {
        QWidget::closeEvent(event);
        return;
    }
    event->ignore();
    impl->ui.saveChangesBar->ask([this] {
        if (isModified())
            impl->setUnmodified(QString()); // discarded
        close();
    });
}
