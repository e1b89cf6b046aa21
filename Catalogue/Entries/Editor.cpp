#include <Catalogue/Catalogue.h>
#include <UI/Kit/ZRuntimeStylesheetEditor.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace Zelkor::Catalogue {

namespace {

constexpr QSize BENCH_SIZE(520, 480);
constexpr int DISTANCE = 12;

const char SHEET[] = "/* This sheet styles the sample above. */\n"
                     "QPushButton {\n"
                     "    color: #ffffff;\n"
                     "    background-color: #3567e0;\n"
                     "    border-radius: 6px;\n"
                     "    qproperty-text: \"Record\";\n"
                     "}\n"
                     "\n"
                     "QPushButton#stop:focus, QPushButton:focus {\n"
                     "    border: 2px solid rgba(255, 255, 255, 90%);\n"
                     "}\n";

const char SHEET_WITH_MISTAKES[] = "QPushButton {\n"
                                   "    color: #fffff;\n"
                                   "    background-color: blue\n"
                                   "    border-radius: 6px;\n"
                                   "\n"
                                   "QCheckBox {\n"
                                   "    color: gray;\n"
                                   "}\n";

/// The editor, embedded in the page, with a sample that it styles instead of the application.
class EditorBench : public QWidget
{
public:
    explicit EditorBench(QWidget* parent)
        : QWidget(parent), sample(new QWidget), editor(new ZRuntimeStylesheetEditor(this))
    {
        sample->setObjectName(QStringLiteral("sample"));
        auto* row = new QHBoxLayout(sample);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(new QPushButton(EntryText::tr("Start")));
        auto* stop = new QPushButton(EntryText::tr("Stop"));
        stop->setObjectName(QStringLiteral("stop"));
        row->addWidget(stop);
        row->addWidget(new QCheckBox(EntryText::tr("Microphone")));
        row->addStretch();
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(DISTANCE);
        layout->addWidget(sample);
        layout->addWidget(editor, 1);
        setFixedSize(BENCH_SIZE);
        editor->setTarget(sample);
    }

    QWidget* sample;
    ZRuntimeStylesheetEditor* editor;
};

State EditorState(const QString& name, void (*apply)(EditorBench&))
{
    return MakeState<EditorBench>(name, apply);
}

void WearSheet(EditorBench& bench)
{
    bench.editor->setText(QString::fromLatin1(SHEET));
    bench.editor->setApplyingWhileTyping(true);
    bench.editor->apply();
}

void Search(EditorBench& bench)
{
    WearSheet(bench);
    bench.editor->openSearch();
}

Entry RuntimeStylesheetEditorEntry()
{
    return {
        "ZRuntimeStylesheetEditor",
        EntryText::tr("Kit"),
        EntryText::tr(
            "An editor for the style sheet of the running application; here it works on the sample above it."),
        "ZRuntimeStylesheetEditor",
        "style",
        [](QWidget* parent) -> QWidget* { return new EditorBench(parent); },
        {
            EditorState(EntryText::tr("With a sheet"), WearSheet),
            EditorState(EntryText::tr("With mistakes"),
                        [](EditorBench& bench) {
                            bench.editor->setText(QString::fromLatin1(SHEET_WITH_MISTAKES));
                            bench.editor->apply();
                        }),
            EditorState(EntryText::tr("Find and replace"), Search),
            EditorState(EntryText::tr("Empty"), [](EditorBench&) {}),
            DisabledState(),
        },
        MakeBare<ZRuntimeStylesheetEditor>,
    };
}

} // namespace

QVector<Entry> EditorEntries()
{
    return {NotInForms(RuntimeStylesheetEditorEntry(), "it edits the application that shows it")};
}

} // namespace Zelkor::Catalogue
