#include "SceneBar.h"

#include <Examples/Support/Appearance.h>
#include <Examples/Support/WidgetTexts.h>
#include <Gallery/Palette/PaletteEditor.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QMessageBox>
#include <QStyle>
#include <QToolButton>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int MARGIN = 8;
constexpr int SPACING = 4;
constexpr double SCALES[] = {1, 1.25, 1.5, 2};

QString ScaleText(double scale)
{
    return SceneBar::tr("%1 %").arg(qRound(scale * 100));
}

// Without the arrow of QToolButton, for buttons of equal width.
QMenu* MakeMenu(QToolButton* button)
{
    auto* menu = new QMenu(button);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    return menu;
}

void Name(QToolButton* button, const QString& text, const QString& toolTip)
{
    SetTextBesideIcon(button, text);
    button->setToolTip(toolTip);
}

// Style sheets evaluate property selectors when they polish.
void SetButtonStyle(QToolButton* button, Qt::ToolButtonStyle style)
{
    if (button->toolButtonStyle() == style)
        return;
    button->setToolButtonStyle(style);
    button->style()->polish(button);
}

} // namespace

SceneBar::SceneBar(Appearance* appearance, double scale, QWidget* parent)
    : QWidget(parent), appearance(appearance), scale(scale), style(AddButton("palette", false)),
      direction(AddButton("direction", true)), language(AddButton("globe", false)), scaling(AddButton("zoom", false)),
      enabled(AddButton("check", true)), styleEditor(AddButton("style", false)), inspector(AddButton("inspector", true))
{
    setObjectName("sceneBar");
    // A narrow window shows icons only.
    setMinimumWidth(1);
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    for (QToolButton* button : buttons) {
        if (button == styleEditor)
            layout->addStretch();
        layout->addWidget(button);
    }
    enabled->setChecked(true);
    FillMenus();
    connect(direction, &QToolButton::clicked, this,
            [](bool on) { QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight); });
    connect(enabled, &QToolButton::toggled, this, &SceneBar::EnabledChanged);
    connect(styleEditor, &QToolButton::clicked, this, &SceneBar::StyleEditorRequested);
    connect(inspector, &QToolButton::clicked, this, &SceneBar::InspectorRequested);
    connect(appearance, &Appearance::LanguageChanged, this, &SceneBar::ShowAppearance);
    connect(appearance, &Appearance::StyleNameChanged, this, &SceneBar::ShowAppearance);
    Retranslate();
}

QToolButton* SceneBar::AddButton(const char* icon, bool checkable)
{
    auto* button = new QToolButton(this);
    button->setIcon(ZStyleSheet::icon(icon));
    button->setCheckable(checkable);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    buttons.append(button);
    return button;
}

void SceneBar::FillMenus()
{
    style->setObjectName("styleButton");
    language->setObjectName("languageButton");
    scaling->setObjectName("scaleButton");
    QMenu* languages = MakeMenu(language);
    for (const Language& item : AllLanguages()) {
        QAction* action = languages->addAction(item.name);
        action->setData(item.code);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, code = item.code] {
            appearance->SetLanguage(code);
            ShowAppearance();
        });
    }
    FillStyleMenu();
    QMenu* scales = MakeMenu(scaling);
    for (const double factor : SCALES) {
        QAction* action = scales->addAction(QString());
        action->setData(factor);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, action, factor] {
            action->setChecked(factor == scale);
            if (factor != scale)
                Q_EMIT RestartRequested(factor);
        });
    }
}

void SceneBar::FillStyleMenu()
{
    QMenu* styles = MakeMenu(style);
    for (const Style& item : Appearance::AllStyles()) {
        QAction* action = styles->addAction(QString());
        action->setData(item.name);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, name = item.name] {
            appearance->SetStyle(name);
            ShowAppearance();
        });
    }
    styles->addSeparator();
    openSheet = styles->addAction(QString(), this, &SceneBar::OpenStyleSheet);
    editPalette = styles->addAction(QString(), this, &SceneBar::EditPalette);
    editPalette->setObjectName("editPalette");
}

void SceneBar::OpenStyleSheet()
{
    auto* dialog = new QFileDialog(this, tr("Open a style sheet"), QString(), tr("Style sheets (*.qss)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& file) {
        QString error;
        if (appearance->SetStyle(file, &error))
            return;
        auto* message = new QMessageBox(QMessageBox::Warning, tr("Open a style sheet"), error, QMessageBox::Ok, this);
        message->setAttribute(Qt::WA_DeleteOnClose);
        message->open();
    });
    dialog->open();
}

// The window has a single palette editor.
void SceneBar::EditPalette()
{
    auto* editor = window()->findChild<PaletteEditor*>();
    if (!editor)
        editor = new PaletteEditor(appearance, window());
    editor->show();
    editor->activateWindow();
}

void SceneBar::SetForWidgets(bool on)
{
    enabled->setEnabled(on);
    inspector->setEnabled(on);
}

void SceneBar::ShowInspectorState(bool visible)
{
    inspector->setChecked(visible);
}

bool SceneBar::AreWidgetsEnabled() const
{
    return enabled->isChecked();
}

void SceneBar::Retranslate()
{
    setAccessibleName(tr("Scene"));
    openSheet->setText(tr("Open a style sheet..."));
    editPalette->setText(tr("Edit the palette..."));
    Name(direction, tr("Right to left"), tr("Lay out from right to left"));
    Name(scaling, ScaleText(scale), tr("Scale. Another one starts the gallery anew, with this page."));
    Name(enabled, tr("Enabled"), tr("Enable the widgets of the page"));
    Name(styleEditor, tr("Style sheet"), tr("Edit the style sheet (F12)"));
    Name(inspector, tr("Inspector"), tr("Properties, signals and objects of a widget"));
    for (QAction* action : scaling->menu()->actions()) {
        const double factor = action->data().toDouble();
        const QString text = ScaleText(factor);
        action->setText(factor == scale ? text : tr("%1 (starts anew)").arg(text));
        action->setChecked(factor == scale);
    }
    ShowAppearance();
}

void SceneBar::ShowAppearance()
{
    Name(style, tr("File"), tr("Appearance"));
    const QVector<Style> styles = Appearance::AllStyles();
    for (int i = 0; i < styles.size(); ++i) {
        QAction* action = style->menu()->actions().at(i);
        action->setText(styles[i].title);
        action->setChecked(styles[i].name == appearance->StyleName());
        if (action->isChecked())
            Name(style, styles[i].title, tr("Appearance"));
    }
    direction->setChecked(QApplication::layoutDirection() == Qt::RightToLeft);
    QString name = appearance->Language();
    for (QAction* action : language->menu()->actions()) {
        const bool isCurrent = action->data() == appearance->Language();
        action->setChecked(isCurrent);
        if (isCurrent)
            name = action->text();
    }
    Name(language, name, tr("Language"));
    ShowTexts();
}

// Shows icons only if the texts do not fit.
void SceneBar::ShowTexts()
{
    int wanted = 2 * MARGIN + SPACING * buttons.size();
    for (QToolButton* button : buttons) {
        SetButtonStyle(button, Qt::ToolButtonTextBesideIcon);
        wanted += button->sizeHint().width();
    }
    if (wanted <= width())
        return;
    for (QToolButton* button : buttons)
        SetButtonStyle(button, Qt::ToolButtonIconOnly);
}

void SceneBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ShowTexts();
}

} // namespace Zelkor::Gallery
