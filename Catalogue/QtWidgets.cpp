#include "QtWidgets.h"
#include "QtWindows.h"

#include <UI/Kit/ZStyleSheet.h>

#include <QtWidgets>

namespace Zelkor::Catalogue {

namespace {

constexpr int COLUMNS = 3;

// A page of widgets in rows of COLUMNS.
class Page : public QWidget
{
public:
    explicit Page(QWidget* parent) : QWidget(parent), grid(new QGridLayout(this)) {}

    template<class Widget>
    Widget* Add(Widget* widget)
    {
        grid->addWidget(widget, count / COLUMNS, count % COLUMNS, Qt::AlignLeading | Qt::AlignVCenter);
        ++count;
        return widget;
    }

private:
    QGridLayout* grid;
    int count = 0;
};

QMenu* CreateSmallMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->addAction("First");
    menu->addAction("Second");
    return menu;
}

template<class Button>
Button* CreateButton(const QString& text, bool checked = false, bool enabled = true)
{
    auto* button = new Button;
    button->setText(text);
    button->setCheckable(checked || button->isCheckable());
    button->setChecked(checked);
    button->setEnabled(enabled);
    return button;
}

void AddPushButtons(Page& page)
{
    page.Add(CreateButton<QPushButton>("Normal"));
    page.Add(CreateButton<QPushButton>("Default"))->setDefault(true);
    page.Add(CreateButton<QPushButton>("Checked", true));
    page.Add(CreateButton<QPushButton>("Disabled", false, false));
    page.Add(CreateButton<QPushButton>("Icon"))->setIcon(ZStyleSheet::icon("pen"));
    page.Add(CreateButton<QPushButton>("Flat"))->setFlat(true);
    auto* menuButton = page.Add(CreateButton<QPushButton>("Menu"));
    menuButton->setMenu(CreateSmallMenu(menuButton));
    auto* defaultMenu = page.Add(CreateButton<QPushButton>("Default menu"));
    defaultMenu->setDefault(true);
    defaultMenu->setMenu(CreateSmallMenu(defaultMenu));
    auto* disabledMenu = page.Add(CreateButton<QPushButton>("Disabled", true, false));
    disabledMenu->setMenu(CreateSmallMenu(disabledMenu));
}

void AddToolButtons(Page& page)
{
    const auto add = [&page](const QString& text, QToolButton::ToolButtonPopupMode mode, bool hasMenu, bool on = true) {
        auto* button = page.Add(CreateButton<QToolButton>(text, false, on));
        button->setIcon(ZStyleSheet::icon("settings"));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        if (hasMenu)
            button->setMenu(CreateSmallMenu(button));
        button->setPopupMode(mode);
        return button;
    };
    add("Tool button", QToolButton::DelayedPopup, false);
    add("Delayed", QToolButton::DelayedPopup, true);
    add("Instant", QToolButton::InstantPopup, true);
    add("Menu button", QToolButton::MenuButtonPopup, true);
    add("Raised", QToolButton::DelayedPopup, false)->setAutoRaise(true);
    add("Under icon", QToolButton::InstantPopup, true)->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    add("Disabled", QToolButton::MenuButtonPopup, true, false);
    auto* icon = add({}, QToolButton::MenuButtonPopup, true);
    icon->setToolButtonStyle(Qt::ToolButtonIconOnly);
    icon->setAccessibleName("Icon only");
    for (const Qt::ArrowType arrow : {Qt::LeftArrow, Qt::RightArrow, Qt::UpArrow, Qt::DownArrow}) {
        auto* button = page.Add(new QToolButton);
        button->setArrowType(arrow);
        button->setEnabled(arrow != Qt::UpArrow);
    }
}

QWidget* CreateButtons(QWidget* parent)
{
    auto* page = new Page(parent);
    AddPushButtons(*page);
    AddToolButtons(*page);
    page->Add(new QCommandLinkButton("Command link", "What it does"));
    page->Add(new QCommandLinkButton("Disabled link", "A disabled description"))->setEnabled(false);
    auto* box = page->Add(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    box->button(QDialogButtonBox::Ok)->setDefault(true);
    return page;
}

QWidget* CreateChecks(QWidget* parent)
{
    auto* page = new Page(parent);
    for (const bool on : {true, false}) {
        const QString suffix = on ? QString() : QStringLiteral(", disabled");
        page->Add(CreateButton<QCheckBox>("Unchecked" + suffix, false, on));
        page->Add(CreateButton<QCheckBox>("Checked" + suffix, true, on));
        auto* partly = page->Add(CreateButton<QCheckBox>("Partly" + suffix, false, on));
        partly->setTristate();
        partly->setCheckState(Qt::PartiallyChecked);
        auto* radios = new QWidget;
        auto* column = new QVBoxLayout(radios);
        column->addWidget(CreateButton<QRadioButton>("Selected" + suffix, true, on));
        column->addWidget(CreateButton<QRadioButton>("Not selected" + suffix, false, on));
        page->Add(radios);
    }
    for (const int state : {0, 1, 2, 3}) {
        auto* group = page->Add(new QGroupBox(state == 3 ? "Disabled group" : "Group"));
        auto* layout = new QVBoxLayout(group);
        layout->addWidget(new QLabel(state < 2 ? "A label in it" : "A disabled label"));
        group->setCheckable(state != 0);
        group->setChecked(state != 2);
        group->setEnabled(state != 3);
    }
    return page;
}

void AddLineEdits(Page& page)
{
    page.Add(new QLineEdit("Text"));
    page.Add(new QLineEdit)->setPlaceholderText("Placeholder");
    page.Add(new QLineEdit("Read-only"))->setReadOnly(true);
    page.Add(new QLineEdit("Disabled"))->setEnabled(false);
    auto* cleared = page.Add(new QLineEdit("Clear button"));
    cleared->setClearButtonEnabled(true);
    cleared->addAction(ZStyleSheet::icon("search"), QLineEdit::LeadingPosition);
    page.Add(new QLineEdit("Password"))->setEchoMode(QLineEdit::Password);
    page.Add(new QLineEdit("Selected"))->selectAll();
    auto* empty = page.Add(new QLineEdit);
    empty->setPlaceholderText("Disabled placeholder");
    empty->setEnabled(false);
}

template<class Edit>
void AddTextEdits(Page& page)
{
    page.Add(new Edit("Text in several lines.\nThe second one."));
    page.Add(new Edit)->setPlaceholderText("Placeholder");
    auto* selected = page.Add(new Edit("Selected text"));
    selected->selectAll();
    page.Add(new Edit("Disabled text"))->setEnabled(false);
}

QWidget* CreateTexts(QWidget* parent)
{
    auto* page = new Page(parent);
    AddLineEdits(*page);
    AddTextEdits<QTextEdit>(*page);
    AddTextEdits<QPlainTextEdit>(*page);
    page->Add(new QTextBrowser)->setHtml("A <a href='#x'>link</a> in <b>rich</b> text<hr>and <code>code</code>.");
    page->Add(new QLabel("A label with a <a href='#x'>link</a>"));
    page->Add(new QLabel("A disabled label"))->setEnabled(false);
    page->Add(new QKeySequenceEdit(QKeySequence("Ctrl+K")));
    for (QAbstractScrollArea* area : page->findChildren<QAbstractScrollArea*>())
        area->setFixedSize(180, 84);
    return page;
}

template<class Edit, class Value>
Edit* Show(Edit* edit, void (Edit::*set)(Value), const std::decay_t<Value>& value)
{
    (edit->*set)(value);
    return edit;
}

QWidget* CreateSpins(QWidget* parent)
{
    auto* page = new Page(parent);
    const QDateTime time(QDate(2024, 2, 29), QTime(12, 30));
    page->Add(Show(new QSpinBox, &QSpinBox::setValue, 0))->setAccessibleName("At its minimum");
    page->Add(Show(new QDoubleSpinBox, &QDoubleSpinBox::setValue, 2.5))->setSuffix(" px");
    page->Add(new QSpinBox)->setButtonSymbols(QAbstractSpinBox::NoButtons);
    auto* disabled = page->Add(new QSpinBox);
    disabled->setPrefix("Disabled ");
    disabled->setEnabled(false);
    page->Add(new QDateEdit(time.date()));
    page->Add(new QTimeEdit(time.time()));
    page->Add(new QDateTimeEdit(time))->setCalendarPopup(true);
    auto* disabledDate = page->Add(new QDateEdit(time.date()));
    disabledDate->setCalendarPopup(true);
    disabledDate->setEnabled(false);
    const QStringList items{"First item", "Second item", "Third item"};
    for (const bool editable : {false, true}) {
        for (const bool on : {true, false}) {
            auto* combo = page->Add(new QComboBox);
            combo->setEditable(editable);
            combo->addItems(on ? items : QStringList("Disabled item"));
            combo->setEnabled(on);
            combo->setFixedWidth(180);
        }
    }
    auto* empty = page->Add(new QComboBox);
    empty->setEditable(true);
    empty->lineEdit()->setPlaceholderText("Placeholder");
    empty->setFixedWidth(180);
    page->Add(new QFontComboBox)->setFixedWidth(180);
    return page;
}

template<class Slider>
Slider* CreateSlider(Qt::Orientation orientation, bool enabled = true)
{
    auto* slider = new Slider;
    slider->setOrientation(orientation);
    slider->setRange(0, 10);
    slider->setValue(4);
    slider->setEnabled(enabled);
    slider->setFixedSize(orientation == Qt::Horizontal ? QSize(160, slider->sizeHint().height())
                                                       : QSize(slider->sizeHint().width(), 120));
    return slider;
}

QProgressBar* CreateProgress(int maximum, int value, bool enabled = true)
{
    auto* bar = new QProgressBar;
    bar->setRange(0, maximum);
    bar->setValue(value);
    bar->setFixedWidth(160);
    bar->setEnabled(enabled);
    return bar;
}

QWidget* CreateRanges(QWidget* parent)
{
    auto* page = new Page(parent);
    page->Add(CreateSlider<QSlider>(Qt::Horizontal));
    page->Add(CreateSlider<QSlider>(Qt::Horizontal, false));
    auto* ticks = page->Add(CreateSlider<QSlider>(Qt::Horizontal));
    ticks->setTickPosition(QSlider::TicksBothSides);
    ticks->setInvertedAppearance(true);
    ticks->setFixedHeight(32);
    page->Add(CreateSlider<QSlider>(Qt::Vertical));
    page->Add(CreateProgress(100, 60));
    page->Add(CreateProgress(100, 40, false))->setFormat("Disabled %p%");
    page->Add(CreateProgress(0, 0));
    for (const bool on : {true, false}) {
        auto* upright = page->Add(CreateProgress(100, 60, on));
        upright->setOrientation(Qt::Vertical);
        upright->setFixedSize(48, 120);
    }
    page->Add(CreateSlider<QScrollBar>(Qt::Horizontal));
    page->Add(CreateSlider<QScrollBar>(Qt::Horizontal, false));
    page->Add(CreateSlider<QScrollBar>(Qt::Vertical));
    auto* number = page->Add(new QLCDNumber);
    number->display(42.5);
    number->setFixedSize(120, 44);
    for (const bool on : {true, false}) {
        auto* dial = page->Add(CreateSlider<QDial>(Qt::Horizontal, on));
        dial->setFixedSize(80, 80);
        dial->setNotchesVisible(on);
    }
    return page;
}

QWidget* CreateFrames(QWidget* parent)
{
    auto* page = new Page(parent);
    for (const QFrame::Shape shape : {QFrame::Box, QFrame::Panel, QFrame::StyledPanel, QFrame::WinPanel}) {
        auto* frame = page->Add(new QFrame);
        frame->setFrameShape(shape);
        frame->setFixedSize(120, 40);
    }
    auto* line = page->Add(new QFrame);
    line->setFrameShape(QFrame::HLine);
    line->setFixedWidth(120);
    auto* upright = page->Add(new QFrame);
    upright->setFrameShape(QFrame::VLine);
    upright->setFixedHeight(40);
    auto* band = page->Add(new QRubberBand(QRubberBand::Rectangle));
    band->setFixedSize(120, 40);
    band->show();
    auto* area = page->Add(new QScrollArea);
    auto* content = new QLabel("A label that is larger than its scroll area,\nin both directions\n\n\n\nto its end.");
    area->setWidget(content);
    area->setFixedSize(180, 80);
    return page;
}

} // namespace

const Entry& QtWidgetsEntry()
{
    static const Entry ENTRY = [] {
        const WidgetGroups groups = {
            {"Buttons", CreateButtons}, {"Check boxes and groups", CreateChecks},
            {"Texts", CreateTexts},     {"Spin and combo boxes", CreateSpins},
            {"Ranges", CreateRanges},   {"Frames", CreateFrames},
        };
        Entry entry{"QtWidgets",   "Qt", "The widgets of Qt Widgets, dressed by the style sheet.", {}, "window",
                    CreateButtons, {}};
        for (const auto& group : groups + QtWindowGroups())
            entry.states.append(MadeState(group.first, group.second));
        entry.bare = [](QWidget* parent) -> QObject* { return new QWidget(parent); };
        return entry;
    }();
    return ENTRY;
}

} // namespace Zelkor::Catalogue
