#include "CodePane.h"

#include <Catalogue/Catalogue.h>
#include <Catalogue/Code/FormFragment.h>
#include <Catalogue/Code/SampleCode.h>
#include <UI/Kit/ZCodeEditor.h>
#include <UI/Widgets/HorizontalTabBar.h>

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>
#include <QUrl>

namespace Zelkor::Gallery {

namespace {

constexpr int MARGIN = 12;
constexpr int SPACING = 4;
constexpr int SMALLEST_HEIGHT = 48;

// Returns the first place that exists in a folder above the program, which is that of the build or of an installation.
QString FindFile(const QStringList& places)
{
    QDir folder(QCoreApplication::applicationDirPath());
    do {
        for (const QString& place : places) {
            if (QFileInfo::exists(folder.filePath(place)))
                return folder.filePath(place);
        }
    } while (folder.cdUp());
    return QString();
}

} // namespace

CodePane::CodePane(QWidget* parent)
    : QWidget(parent), tabs(new Vx::HorizontalTabBar(this)), head(new QWidget), text(new ZCodeEditor),
      files(new QMenu(this))
{
    setObjectName("codePane");
    tabs->addTab(QStringLiteral("C++"));
    tabs->addTab(QStringLiteral(".ui"));
    tabs->setDrawBase(false);
    tabs->setExpanding(false);
    tabs->setUsesScrollButtons(false);
    tabs->setAccessibleName(tr("Code"));
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(SPACING);
    row->addWidget(tabs);
    row->addStretch();
    auto* open = AddButton("openFile", tr("Open"), tr("Open a file that this page comes from"));
    open->setMenu(files);
    open->setPopupMode(QToolButton::InstantPopup);
    link = AddButton("copyLink", tr("Copy link"), QString());
    copy = AddButton("copyCode", tr("Copy"), tr("Copy all of the code"));
    text->setObjectName("code");
    text->setReadOnly(true);
    text->setAccessibleName(tr("Code"));
    text->setMinimumHeight(SMALLEST_HEIGHT);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN, SPACING, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    layout->addWidget(head);
    layout->addWidget(text);

    connect(tabs, &QTabBar::currentChanged, this, &CodePane::ShowCode);
    connect(copy, &QToolButton::clicked, this, [this] { Copy(text->toPlainText(), copy); });
    connect(link, &QToolButton::clicked, this, [this] { Copy(commandLine, link); });
}

void CodePane::ShowState(const Catalogue::Entry& entry, int state)
{
    code = CodeOf(entry, state).Text();
    setVisible(!code.isEmpty());
    form = FormOf(entry, entry.states[state]);
    if (form.isEmpty()) {
        const QString reason = entry.form.reasonAgainst;
        form = reason.isEmpty() ? tr("Forms cannot contain it.") : tr("Forms cannot contain it: %1.").arg(reason);
    }
    commandLine = QString("%1 --page %2 --state %3")
                      .arg(QFileInfo(QCoreApplication::applicationFilePath()).fileName(), entry.className)
                      .arg(state + 1);
    link->setToolTip(tr("Copy the command that opens this page and state:\n%1").arg(commandLine));
    files->clear();
    const QString name = HeaderOf(entry);
    AddFile(tr("Header"), {"Lib/" + name, "include/" + name, "include/VxUiWidgets/" + name});
    AddFile(tr("Document"), {"Docs/html/widget_" + entry.className + ".html"});
    AddFile(tr("Source of the catalogue"), {SourceFileOf(entry)});
    ShowCode();
}

QToolButton* CodePane::AddButton(const char* objectName, const QString& label, const QString& toolTip)
{
    auto* button = new QToolButton;
    button->setObjectName(objectName);
    button->setText(label);
    button->setToolTip(toolTip);
    head->layout()->addWidget(button);
    return button;
}

// Adds a menu item that opens the first place that exists. Its path is copied if nothing opens it.
void CodePane::AddFile(const QString& title, const QStringList& places)
{
    if (places[0].isEmpty())
        return;
    const QString file = FindFile(places);
    QAction* action = files->addAction(QString("%1: %2").arg(title, QDir::toNativeSeparators(places[0])));
    action->setEnabled(!file.isEmpty());
    connect(action, &QAction::triggered, this, [this, file] {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
            Copy(file, this);
    });
}

void CodePane::ShowCode()
{
    const bool isForm = tabs->currentIndex() == 1;
    text->setPlainText(isForm ? form : code);
    copy->setEnabled(!isForm || form.startsWith('<'));
}

void CodePane::Copy(const QString& copied, QWidget* from) const
{
    QApplication::clipboard()->setText(copied);
    QToolTip::showText(from->mapToGlobal(QPoint(0, from->height())), tr("Copied"), from);
}

} // namespace Zelkor::Gallery
