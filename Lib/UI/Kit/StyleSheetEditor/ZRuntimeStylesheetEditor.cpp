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
#include <QCheckBox>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <utility>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::Kit;
using StyleSheetChecker::Mistake;
using StyleSheetChecker::Scope;

namespace {

constexpr QSize WINDOW_SIZE(640, 600);
constexpr int PAUSE = 300; ///< milliseconds without a key before the text is looked at

QString Place(int line, int column)
{
    return ZRuntimeStylesheetEditor::tr("Line %1, column %2").arg(line).arg(column);
}

/// The editor may be part of another window.
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
    explicit Impl(ZRuntimeStylesheetEditor* window);

    void connectParts();
    void connectCommands();
    void retranslate();

    void say(std::function<QString()> message, bool isProblem = false);
    const QVector<Mistake>& mistakes() const { return view.editor->mistakes(); }
    QString mistake() const;
    void showPlace();
    void check();
    void checkAndFollow();
    void goToNextMistake();

    void chooseTarget(QWidget* widget);
    void applyText();
    void readUntouched();

    void settle(const QString& file);
    void whenSettled(std::function<void()> action);
    void showFileDialog(bool saving);
    void saveAgain();

    ZRuntimeStylesheetEditor* const window;
    StyleSheetEditorUi view;
    WidgetPicker* const picker;
    StyleSheetTarget target;
    QString fileName;
    bool hasByteOrderMark = false; ///< in the file
    bool saysMistake = false;
    int seenRevision = -1; ///< of the text, when it was looked at last
    QTimer pause;
    QObject context; ///< of all connections to this record, which the window's parts outlive
};

ZRuntimeStylesheetEditor::Impl::Impl(ZRuntimeStylesheetEditor* window)
    : window(window), view(window), picker(new WidgetPicker(window, window))
{
    pause.setSingleShot(true);
    pause.setInterval(PAUSE);
    connectParts();
    connectCommands();
}

ZRuntimeStylesheetEditor::ZRuntimeStylesheetEditor(QWidget* parent)
    : QWidget(parent), impl(std::make_unique<Impl>(this))
{
    Common::AccessibleFactory<ZRuntimeStylesheetEditor, AccessibleEditor>::Install();
    resize(WINDOW_SIZE);
    impl->retranslate();
    impl->readUntouched();
}

ZRuntimeStylesheetEditor::~ZRuntimeStylesheetEditor() = default;

void ZRuntimeStylesheetEditor::Impl::connectParts()
{
    connect(&pause, &QTimer::timeout, &context, [this] { checkAndFollow(); });
    // New colours are no new text.
    connect(view.editor, &QPlainTextEdit::textChanged, &context, [this] {
        if (view.editor->document()->revision() != seenRevision)
            pause.start();
    });
    connect(view.editor, &QPlainTextEdit::modificationChanged, window, &QWidget::setWindowModified);
    connect(view.editor, &QPlainTextEdit::cursorPositionChanged, &context, [this] { showPlace(); });
    connect(view.typingBox, &QCheckBox::toggled, &context, [this] { pause.start(); });
    // Whoever hears of it may delete the window, which the box would not survive before it is done.
    connect(view.typingBox, &QCheckBox::toggled, window, &ZRuntimeStylesheetEditor::applyingWhileTypingChanged,
            Qt::QueuedConnection);
    connect(view.question, &SaveChangesBar::saveWanted, &context, [this] { saveAgain(); });
    connect(view.targetBox, &StyleSheetTargetComboBox::chosen, &context,
            [this](QWidget* widget) { chooseTarget(widget); });
    connect(view.targetBox, &StyleSheetTargetComboBox::gone, &context, [this] {
        say([] { return ZRuntimeStylesheetEditor::tr("The widget is gone. Choose another one."); }, true);
    });
    connect(view.pickButton, &QToolButton::toggled, &context, [this](bool on) {
        if (!on)
            return picker->stop();
        picker->start();
        say([] { return ZRuntimeStylesheetEditor::tr("Click on a widget of the application, or press Escape."); });
    });
    connect(picker, &WidgetPicker::pointed, &context,
            [this](QWidget* widget) { say([name = StyleSheetTargetComboBox::nameOf(widget)] { return name; }); });
    connect(picker, &WidgetPicker::stopped, &context, [this] {
        view.pickButton->setChecked(false);
        say({});
    });
    connect(picker, &WidgetPicker::picked, &context, [this](QWidget* widget) {
        window->setTarget(widget);
        // The click has brought the picked window to the front, and one picks in order to write.
        window->window()->raise();
        window->activateWindow();
        view.editor->setFocus();
    });
}

void ZRuntimeStylesheetEditor::Impl::connectCommands()
{
    const auto on = [this](QAction* action, auto slot) { connect(action, &QAction::triggered, &context, slot); };
    on(view.open, [this] { whenSettled([this] { showFileDialog(false); }); });
    on(view.save, [this] { saveAgain(); });
    on(view.saveAs, [this] { showFileDialog(true); });
    on(view.find, [this] { window->openSearch(); });
    on(view.findNext, [this] { view.search->findNext(); });
    on(view.findPrevious, [this] { view.search->findPrevious(); });
    on(view.nextMistake, [this] { goToNextMistake(); });
    on(view.complete, [this] { view.editor->complete(); });
    on(view.apply, [this] { window->apply(); });
    on(view.revert, [this] { window->revert(); });
    on(view.read, [this] { window->readFromTarget(); });
    on(view.pick, [this] { view.pickButton->toggle(); });
    connect(view.applyButton, &QPushButton::clicked, window, &ZRuntimeStylesheetEditor::apply);
    connect(view.revertButton, &QPushButton::clicked, window, &ZRuntimeStylesheetEditor::revert);
}

void ZRuntimeStylesheetEditor::Impl::retranslate()
{
    view.retranslate();
    const QString file = QFileInfo(fileName).fileName();
    const QString title = (file.isEmpty() ? QString() : file + QStringLiteral(" - ")) +
                          ZRuntimeStylesheetEditor::tr("Style sheet editor");
    window->setWindowTitle(title + QStringLiteral("[*]"));
    window->setAccessibleName(title);
    showPlace();
}

// What the window says

void ZRuntimeStylesheetEditor::Impl::say(std::function<QString()> message, bool isProblem)
{
    saysMistake = false;
    view.say(std::move(message), isProblem);
}

QString ZRuntimeStylesheetEditor::Impl::mistake() const
{
    if (mistakes().isEmpty())
        return {};
    const Mistake& first = mistakes().first();
    const QString text = ZRuntimeStylesheetEditor::tr("%1: %2").arg(Place(first.line, first.column),
                                                                    StyleSheetChecker::Describe(first.problem));
    if (mistakes().size() == 1)
        return text;
    return text + QLatin1Char(' ') + ZRuntimeStylesheetEditor::tr("(and %n more)", nullptr, mistakes().size() - 1);
}

QString ZRuntimeStylesheetEditor::message() const
{
    return impl->view.messageLabel->text();
}

void ZRuntimeStylesheetEditor::Impl::showPlace()
{
    const QTextCursor cursor = view.editor->textCursor();
    view.placeLabel->setText(Place(cursor.blockNumber() + 1, cursor.positionInBlock() + 1));
}

void ZRuntimeStylesheetEditor::Impl::check()
{
    pause.stop();
    const bool isChanged = seenRevision != view.editor->document()->revision();
    seenRevision = view.editor->document()->revision();
    view.editor->check();
    // What was said of an earlier text does not hold for this one; that the target is gone or sought does.
    if (!mistakes().isEmpty())
        say([this] { return mistake(); }, true);
    else if (saysMistake || (isChanged && target.exists() && !picker->isRunning()))
        say({});
    saysMistake = !mistakes().isEmpty();
}

void ZRuntimeStylesheetEditor::Impl::checkAndFollow()
{
    check();
    if (window->isApplyingWhileTyping() && mistakes().isEmpty() && target.exists() && target.sheet() != window->text())
        applyText();
}

void ZRuntimeStylesheetEditor::Impl::goToNextMistake()
{
    check();
    if (mistakes().isEmpty())
        say([] { return ZRuntimeStylesheetEditor::tr("There are no mistakes."); });
    view.editor->goToNextMistake();
}

// Target

void ZRuntimeStylesheetEditor::setTarget(QWidget* widget)
{
    impl->view.targetBox->setTarget(widget);
    impl->chooseTarget(widget);
}

void ZRuntimeStylesheetEditor::Impl::chooseTarget(QWidget* widget)
{
    target.set(widget);
    say({});
    view.editor->setScope(widget ? Scope::WIDGET : Scope::APPLICATION);
    readUntouched();
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
    return impl->view.typingBox->isChecked();
}

void ZRuntimeStylesheetEditor::setApplyingWhileTyping(bool on)
{
    impl->view.typingBox->setChecked(on);
}

bool ZRuntimeStylesheetEditor::apply()
{
    impl->check();
    if (!hasTarget()) {
        impl->say([] { return tr("Not applied: the widget is gone. Choose another one."); }, true);
        return false;
    }
    if (!impl->view.editor->isAccepted()) {
        impl->say([this] { return tr("Not applied. %1").arg(impl->mistake()); }, true);
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
        const QString done = name.isEmpty() ? ZRuntimeStylesheetEditor::tr("Applied to the application.")
                                            : ZRuntimeStylesheetEditor::tr("Applied to %1.").arg(name);
        return (done + QLatin1Char(' ') + mistake()).trimmed();
    };
    say(message, !mistakes().isEmpty());
    Q_EMIT window->applied();
}

void ZRuntimeStylesheetEditor::revert()
{
    // What was typed last would come back by itself.
    impl->pause.stop();
    if (!impl->target.revert()) {
        impl->say([] { return tr("Nothing was applied that could be reverted."); });
        return;
    }
    impl->say([] { return tr("Reverted."); });
    Q_EMIT reverted();
}

// Text and files

QString ZRuntimeStylesheetEditor::text() const
{
    return impl->view.editor->source();
}

void ZRuntimeStylesheetEditor::setText(const QString& text)
{
    impl->view.editor->replaceText(text);
    impl->check();
    if (isApplyingWhileTyping())
        impl->pause.start();
}

void ZRuntimeStylesheetEditor::readFromTarget()
{
    if (!hasTarget())
        return;
    impl->view.question->dismiss();
    impl->view.editor->replaceText(impl->target.sheet());
    impl->settle(QString());
}

// An unmodified text follows the target. It becomes the state at which undo ends: the text before it is not user input.
void ZRuntimeStylesheetEditor::Impl::readUntouched()
{
    if (window->isModified() || !fileName.isEmpty() || !target.exists() || target.sheet() == window->text())
        return;
    view.question->dismiss();
    view.editor->loadText(target.sheet());
    settle(QString());
}

bool ZRuntimeStylesheetEditor::isModified() const
{
    return impl->view.editor->document()->isModified();
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
        impl->say([error] { return error.describe(); }, true);
        return false;
    }
    impl->view.question->dismiss();
    impl->view.editor->loadText(contents->text);
    impl->hasByteOrderMark = contents->hasByteOrderMark;
    impl->settle(fileName);
    return true;
}

bool ZRuntimeStylesheetEditor::save(const QString& fileName)
{
    StyleSheetFile::Error error;
    if (!StyleSheetFile::Write(fileName, {text(), impl->hasByteOrderMark}, error)) {
        impl->say([error] { return error.describe(); }, true);
        return false;
    }
    impl->settle(fileName);
    impl->say([] { return tr("Saved."); });
    impl->view.question->proceed();
    return true;
}

// Marks the text as unmodified, as that of `file` or, when empty, of no file.
void ZRuntimeStylesheetEditor::Impl::settle(const QString& file)
{
    fileName = file;
    hasByteOrderMark = hasByteOrderMark && !file.isEmpty();
    view.editor->document()->setModified(false);
    // Loading an empty text, Qt says that it is modified, and not that it is not.
    window->setWindowModified(false);
    retranslate();
    say({});
    check();
}

void ZRuntimeStylesheetEditor::Impl::whenSettled(std::function<void()> action)
{
    if (window->isModified())
        view.question->ask(std::move(action));
    else
        action();
}

// The dialog stands beside the program and does not hold it up.
void ZRuntimeStylesheetEditor::Impl::showFileDialog(bool saving)
{
    auto* dialog = new QFileDialog(window,
                                   saving ? ZRuntimeStylesheetEditor::tr("Save the style sheet")
                                          : ZRuntimeStylesheetEditor::tr("Open a style sheet"),
                                   QFileInfo(fileName).path(),
                                   ZRuntimeStylesheetEditor::tr("Style sheets (*.qss);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setDefaultSuffix(QStringLiteral("qss"));
    connect(dialog, &QFileDialog::fileSelected, window,
            saving ? &ZRuntimeStylesheetEditor::save : &ZRuntimeStylesheetEditor::load);
    dialog->open();
}

void ZRuntimeStylesheetEditor::Impl::saveAgain()
{
    if (fileName.isEmpty())
        showFileDialog(true);
    else
        window->save(fileName);
}

void ZRuntimeStylesheetEditor::openSearch()
{
    impl->view.search->open();
}

// Events

void ZRuntimeStylesheetEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        impl->retranslate();
        impl->view.editor->markMistakes();
    }
}

void ZRuntimeStylesheetEditor::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    impl->readUntouched();
    // Qt would give the focus to the first field.
    if (isWindow() && !focusWidget())
        impl->view.editor->setFocus();
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
    impl->view.question->ask([this] {
        if (isModified())
            impl->settle(QString()); // discarded
        close();
    });
}
