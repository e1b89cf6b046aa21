#include "QtWindows.h"

#include <UI/Kit/ZStyleSheet.h>

#include <QtWidgets>

#include <climits>
#include <memory>

namespace Zelkor::Catalogue {

namespace {

QListWidget* CreateList(QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->addItems({"Item", "Selected item", "Checked item", "Disabled item", "Item with an icon"});
    list->setCurrentRow(1);
    list->item(2)->setCheckState(Qt::Checked);
    list->item(3)->setFlags(Qt::NoItemFlags);
    list->item(4)->setIcon(ZStyleSheet::icon("pen"));
    return list;
}

QTreeWidget* CreateTree(QWidget* parent)
{
    auto* tree = new QTreeWidget(parent);
    tree->setHeaderLabels({"Name", "Kind"});
    auto* branch = new QTreeWidgetItem(tree, {"Branch", "Folder"});
    auto* inner = new QTreeWidgetItem(branch, {"Inner branch", "Folder"});
    auto* leaf = new QTreeWidgetItem(inner, {"Selected leaf", "File"});
    (new QTreeWidgetItem(inner, {"Partly checked", "File"}))->setCheckState(0, Qt::PartiallyChecked);
    (new QTreeWidgetItem(branch, {"Disabled leaf", "Disabled"}))->setDisabled(true);
    auto* closed = new QTreeWidgetItem(tree, {"Closed branch", "Folder"});
    new QTreeWidgetItem(closed, {"Hidden leaf", "File"});
    tree->expandItem(branch);
    tree->expandItem(inner);
    tree->setCurrentItem(leaf);
    tree->setSortingEnabled(true);
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    tree->sortItems(0, Qt::AscendingOrder);
    return tree;
}

QTableWidget* CreateTable(QWidget* parent)
{
    auto* table = new QTableWidget(4, 2, parent);
    table->setHorizontalHeaderLabels({"Name", "Value"});
    table->setAlternatingRowColors(true);
    const QStringList texts{"Cell", "1", "Selected", "2", "Checked", "3", "Disabled", "Disabled"};
    for (int i = 0; i < texts.size(); ++i)
        table->setItem(i / 2, i % 2, new QTableWidgetItem(texts[i]));
    table->setCurrentCell(1, 0);
    table->item(2, 0)->setCheckState(Qt::Checked);
    table->item(3, 0)->setFlags(Qt::NoItemFlags);
    table->item(3, 1)->setFlags(Qt::NoItemFlags);
    return table;
}

QWidget* CreateViews(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* grid = new QGridLayout(page);
    grid->addWidget(CreateList(page), 0, 0);
    grid->addWidget(CreateTree(page), 0, 1);
    grid->addWidget(CreateTable(page), 1, 0);
    auto* disabled = CreateTree(page);
    disabled->setEnabled(false);
    grid->addWidget(disabled, 1, 1);
    auto* columns = new QColumnView;
    columns->setModel(CreateTree(columns)->model());
    columns->findChild<QTreeWidget*>()->hide();
    auto* stack = new QUndoStack(page);
    stack->push(new QUndoCommand("First step"));
    stack->push(new QUndoCommand("Second step"));
    grid->addWidget(columns, 2, 0);
    grid->addWidget(new QUndoView(stack), 2, 1);
    for (QWidget* view : page->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        view->setFixedSize(260, 190);
    return page;
}

QWidget* CreateCalendars(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* row = new QVBoxLayout(page);
    for (const bool on : {true, false}) {
        auto* calendar = new QCalendarWidget;
        calendar->setSelectedDate(QDate(2024, 2, 29));
        calendar->setGridVisible(!on);
        calendar->setEnabled(on);
        row->addWidget(calendar);
    }
    return page;
}

QTabWidget* CreateTabs(QTabWidget::TabPosition position)
{
    auto* tabs = new QTabWidget;
    tabs->setTabPosition(position);
    for (const char* title : {"Selected", "Disabled", "Other", "One more"})
        tabs->addTab(new QLabel("Page"), title);
    tabs->setTabEnabled(1, false);
    return tabs;
}

QWidget* CreateContainers(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* grid = new QGridLayout(page);
    int count = 0;
    const auto add = [&](QWidget* widget) {
        widget->setFixedSize(260, 170);
        grid->addWidget(widget, count / 2, count % 2);
        ++count;
    };
    for (const auto position : {QTabWidget::North, QTabWidget::South, QTabWidget::West, QTabWidget::East})
        add(CreateTabs(position));
    auto* closable = CreateTabs(QTabWidget::North);
    closable->setTabsClosable(true);
    closable->setTabIcon(0, ZStyleSheet::icon("pen"));
    closable->setMovable(true);
    add(closable);
    auto* document = CreateTabs(QTabWidget::North);
    document->setDocumentMode(true);
    add(document);
    auto* box = new QToolBox;
    box->addItem(new QLabel("The open page"), "Open");
    box->addItem(new QLabel, "Closed");
    box->setItemEnabled(box->addItem(new QLabel, "Disabled"), false);
    add(box);
    auto* splitter = new QSplitter;
    splitter->addWidget(new QListWidget);
    auto* inner = new QSplitter(Qt::Vertical);
    inner->addWidget(new QListWidget);
    inner->addWidget(new QListWidget);
    splitter->addWidget(inner);
    add(splitter);
    return page;
}

void FillMenu(QMenu* menu)
{
    menu->addAction(ZStyleSheet::icon("pen"), "With an icon")->setShortcut(QKeySequence("Ctrl+E"));
    menu->addAction("Disabled")->setEnabled(false);
    menu->addSection("Section");
    menu->addSeparator();
    for (const bool exclusive : {false, true}) {
        auto* group = new QActionGroup(menu);
        group->setExclusive(exclusive);
        for (const bool checked : {true, false}) {
            QAction* action = menu->addAction(exclusive ? "One of two" : "Check mark");
            action->setActionGroup(group);
            action->setCheckable(true);
            action->setChecked(checked);
        }
    }
    QMenu* sub = menu->addMenu("Submenu");
    sub->addAction("Inner action");
    QMenu* disabled = menu->addMenu("Disabled submenu");
    disabled->setEnabled(false);
}

QWidget* CreateMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->setWindowFlags(Qt::Widget);
    FillMenu(menu);
    menu->setActiveAction(menu->actions().constFirst());
    return menu;
}

void AddToolBars(QMainWindow* window)
{
    auto* bar = window->addToolBar("Tools");
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(ZStyleSheet::icon("pen"), "Edit");
    QAction* checked = bar->addAction(ZStyleSheet::icon("grid"), "Checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    bar->addSeparator();
    bar->addAction(ZStyleSheet::icon("cut"), "Disabled")->setEnabled(false);
    auto* combo = new QComboBox;
    combo->addItems({"Choice"});
    bar->addWidget(combo);
    for (int i = 0; i < 10; ++i)
        bar->addAction(ZStyleSheet::icon("text"), "Overflow");
}

void AddDocks(QMainWindow* window)
{
    auto* first = new QDockWidget("Dock");
    first->setWidget(CreateList(first));
    window->addDockWidget(Qt::LeftDockWidgetArea, first);
    auto* second = new QDockWidget("Upright title");
    second->setFeatures(QDockWidget::DockWidgetFeatures(0x0f));
    second->setWidget(new QLabel("Content"));
    window->addDockWidget(Qt::RightDockWidgetArea, second);
    auto* behind = new QDockWidget("Tabbed");
    behind->setWidget(new QLabel("Behind"));
    window->addDockWidget(Qt::LeftDockWidgetArea, behind);
    window->tabifyDockWidget(first, behind);
    first->raise();
}

QWidget* CreateMainWindow(QWidget* parent)
{
    auto* window = new QMainWindow(parent);
    window->setWindowFlags(Qt::Widget);
    FillMenu(window->menuBar()->addMenu("File"));
    FillMenu(window->menuBar()->addMenu("Edit"));
    window->menuBar()->addMenu("Disabled")->setEnabled(false);
    window->menuBar()->setNativeMenuBar(false);
    AddToolBars(window);
    AddDocks(window);
    auto* area = new QMdiArea;
    for (const char* title : {"Document", "Active document"}) {
        QMdiSubWindow* document = area->addSubWindow(new QTextEdit(title));
        document->setWindowTitle(title);
        document->setGeometry(16 + 40 * (area->subWindowList().size() - 1),
                              16 + 50 * (area->subWindowList().size() - 1), 180, 140);
    }
    window->setCentralWidget(area);
    window->statusBar()->showMessage("A message");
    window->statusBar()->addPermanentWidget(new QLabel("Permanent"));
    window->statusBar()->setSizeGripEnabled(true);
    window->setFixedSize(620, 400);
    return window;
}

template<class Dialog>
Dialog* CreateDialog(QWidget* parent)
{
    auto* dialog = new Dialog(parent);
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

/// A temporary folder with the same files on every computer.
struct SampleFolder
{
    SampleFolder()
    {
        QDir(folder.path()).mkdir("Recordings");
        for (const char* name : {"Notes.txt", "Picture.png"}) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::WriteOnly))
                file.resize(2048);
        }
    }

    QTemporaryDir folder;
};

QWidget* CreateFileDialog(QWidget* parent)
{
    auto* dialog = CreateDialog<QFileDialog>(parent);
    const auto sample = std::make_shared<SampleFolder>();
    QObject::connect(dialog, &QObject::destroyed, [sample] {});
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setDirectory(sample->folder.path());
    dialog->setNameFilters({"All files (*)", "Pictures (*.png)"});
    dialog->setViewMode(QFileDialog::Detail);
    return dialog;
}

QWidget* CreateColorDialog(QWidget* parent)
{
    auto* dialog = CreateDialog<QColorDialog>(parent);
    dialog->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
    dialog->setCurrentColor(QColor(0x35, 0x67, 0xe0));
    return dialog;
}

QWidget* CreateFontDialog(QWidget* parent)
{
    auto* dialog = CreateDialog<QFontDialog>(parent);
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    return dialog;
}

QWidget* CreateWizard(QWidget* parent)
{
    auto* wizard = CreateDialog<QWizard>(parent);
    wizard->setWizardStyle(QWizard::ModernStyle);
    for (const char* title : {"First step", "Second step"}) {
        auto* page = new QWizardPage;
        page->setTitle(title);
        page->setSubTitle("What the step asks for");
        auto* layout = new QVBoxLayout(page);
        layout->addWidget(new QCheckBox("A question"));
        wizard->addPage(page);
    }
    wizard->setOption(QWizard::HaveHelpButton);
    return wizard;
}

QWidget* CreateSmallDialogs(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* grid = new QGridLayout(page);
    auto* message = CreateDialog<QMessageBox>(page);
    message->setIcon(QMessageBox::Warning);
    message->setText("A warning");
    message->setInformativeText("What can be done about it.");
    message->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    auto* input = CreateDialog<QInputDialog>(page);
    input->setLabelText("A value:");
    auto* progress = CreateDialog<QProgressDialog>(page);
    progress->setLabelText("Work in progress");
    progress->setMinimumDuration(INT_MAX);
    progress->setValue(40);
    auto* error = CreateDialog<QErrorMessage>(page);
    grid->addWidget(message, 0, 0);
    grid->addWidget(input, 0, 1);
    grid->addWidget(progress, 1, 0);
    grid->addWidget(error, 1, 1);
    return page;
}

} // namespace

WidgetGroups QtWindowGroups()
{
    return {{"Item views", CreateViews},
            {"Calendar", CreateCalendars},
            {"Containers", CreateContainers},
            {"Main window", CreateMainWindow},
            {"Menu", CreateMenu},
            {"File dialog", CreateFileDialog},
            {"Colour dialog", CreateColorDialog},
            {"Font dialog", CreateFontDialog},
            {"Wizard", CreateWizard},
            {"Small dialogs", CreateSmallDialogs}};
}

} // namespace Zelkor::Catalogue
