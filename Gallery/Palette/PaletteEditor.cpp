#include "PaletteEditor.h"

#include <Examples/Support/Appearance.h>
#include <Examples/Support/WidgetTexts.h>
#include <Gallery/Inspector/ColorField.h>
#include <UI/Kit/ZComboBox.h>

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr QSize WINDOW_SIZE(360, 640);
constexpr int SPACING = 8;
constexpr int FIELD_WIDTH = 120;
constexpr int PAUSE_MS = 150; ///< collects the changes of a colour that is chosen with the mouse
const QString SHEET = QStringLiteral("Own");

// Returns the palette of a style that is linked into the program: HighContrast for "high-contrast", for "system" that
// with the colour of the windows. Returns an empty text for a file.
QString BuiltInPaletteOf(const QString& style)
{
    for (const QString& name : Palette::BuiltInNames()) {
        const bool isApplied =
            Palette::BuiltIn(name).Color("window") == QApplication::palette().color(QPalette::Window);
        if (style == "system" ? isApplied : !name.compare(QString(style).remove('-'), Qt::CaseInsensitive))
            return name;
    }
    return QString();
}

} // namespace

PaletteEditor::PaletteEditor(Appearance* appearance, QWidget* parent)
    : QDialog(parent), appearance(appearance), base(new ZComboBox), area(new QScrollArea), message(new QLabel),
      openButton(new QPushButton), saveButton(new QPushButton)
{
    resize(WINDOW_SIZE);
    base->addItems(Palette::BuiltInNames());
    base->setMouseWheelEnabled(false);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    message->setWordWrap(true);
    message->hide();
    for (QPushButton* button : {openButton, saveButton})
        button->setAutoDefault(false);
    auto* layout = new QGridLayout(this);
    layout->addWidget(base, 0, 0, 1, 2);
    layout->addWidget(area, 1, 0, 1, 2);
    layout->addWidget(message, 2, 0, 1, 2);
    layout->addWidget(openButton, 3, 0);
    layout->addWidget(saveButton, 3, 1);
    applyTimer.setSingleShot(true);
    applyTimer.setInterval(PAUSE_MS);
    connect(&applyTimer, &QTimer::timeout, this, &PaletteEditor::Apply);
    connect(base, QOverload<int>::of(&QComboBox::activated), this, [this] {
        if (!ConfirmDiscard())
            return base->setCurrentIndex(shownBase);
        shownBase = base->currentIndex();
        SetPalette(Palette::BuiltIn(base->currentText()));
        Apply();
    });
    connect(openButton, &QPushButton::clicked, this, [this] {
        if (!ConfirmDiscard())
            return;
        auto* dialog = new QFileDialog(this, openButton->text());
        dialog->setFileMode(QFileDialog::ExistingFile);
        connect(dialog, &QFileDialog::fileSelected, this, &PaletteEditor::Load);
        OpenDialog(dialog);
    });
    connect(saveButton, &QPushButton::clicked, this, [this] {
        auto* dialog = new QFileDialog(this, saveButton->text());
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->setDefaultSuffix("palette");
        connect(dialog, &QFileDialog::fileSelected, this, &PaletteEditor::Save);
        OpenDialog(dialog);
    });
    SetPalette(Palette::BuiltIn(base->currentText()));
    ShowStyle();
    Retranslate();
}

void PaletteEditor::OpenDialog(QFileDialog* dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilter(tr("Palettes (*.palette)"));
    dialog->open();
}

void PaletteEditor::Retranslate()
{
    setWindowTitle(tr("Palette"));
    base->setAccessibleName(tr("Palette to start from"));
    base->setToolTip(base->accessibleName());
    openButton->setText(tr("Open a palette..."));
    saveButton->setText(tr("Save the palette..."));
}

// Shows the palette of the current style, if it has one.
void PaletteEditor::ShowStyle()
{
    const QString builtIn = BuiltInPaletteOf(appearance->CurrentStyle());
    const QString style = builtIn.isEmpty() ? appearance->CurrentStyle() : builtIn;
    // Keeps colours that were not saved.
    if (style == shownStyle || isModified)
        return;
    shownStyle = style;
    applyTimer.stop();
    base->setCurrentText(builtIn);
    shownBase = base->currentIndex();
    const auto current = builtIn.isEmpty() ? Palette::Beside(style) : Palette::BuiltIn(builtIn);
    if (current)
        SetPalette(*current);
}

void PaletteEditor::SetPalette(const Palette& newPalette)
{
    palette = newPalette;
    isModified = false;
    area->setWidget(new QWidget);
    area->widget()->setAutoFillBackground(false);
    auto* grid = new QGridLayout(area->widget());
    grid->setContentsMargins(0, 0, SPACING, 0);
    grid->setColumnStretch(0, 1);
    for (const Palette::Group& group : palette.Groups()) {
        auto* heading = new QLabel(group.comment);
        heading->setObjectName("caption");
        heading->setWordWrap(true);
        heading->setContentsMargins(0, SPACING, 0, 0);
        AlignAtStart(heading);
        grid->addWidget(heading, grid->rowCount(), 0, 1, 2);
        for (const QString& name : group.names)
            AddColor(name, grid->rowCount());
    }
    grid->setRowStretch(grid->rowCount(), 1);
    // Puts the fields before the buttons, which are older.
    QWidget* last = base;
    for (auto* field : area->widget()->findChildren<ColorField*>()) {
        setTabOrder(last, field);
        last = field;
    }
}

void PaletteEditor::AddColor(const QString& name, int row)
{
    auto* label = new QLabel(name);
    auto* field = new ColorField;
    AlignAtStart(label);
    label->setBuddy(field);
    field->setObjectName(name);
    field->setAccessibleName(name);
    field->setFixedWidth(FIELD_WIDTH);
    field->SetAlphaEnabled(false);
    field->SetColor(palette.Color(name));
    connect(field, &ColorField::ColorChanged, this, [this, name](const QColor& color) {
        palette.SetColor(name, color);
        isModified = true;
        applyTimer.start();
    });
    auto* grid = static_cast<QGridLayout*>(area->widget()->layout());
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
}

void PaletteEditor::Apply()
{
    applyTimer.stop();
    QDir own(folder.path());
    const QString previous = QString::number(generation);
    const QString current = QString::number(++generation);
    own.mkpath(current);
    QString error;
    const QString sheet = WriteStyleSheet(palette, SHEET, own.filePath(current), &error);
    // The fields show its palette already.
    shownStyle = sheet;
    if (error.isEmpty() && appearance->SetStyle(sheet, &error))
        QDir(own.filePath(previous)).removeRecursively();
    message->setText(error);
    message->setVisible(!error.isEmpty());
}

bool PaletteEditor::Load(const QString& fileName)
{
    QString error;
    const auto loaded = Palette::Read(fileName, &error);
    message->setText(error);
    message->setVisible(!loaded);
    if (!loaded)
        return false;
    SetPalette(*loaded);
    Apply();
    return true;
}

bool PaletteEditor::Save(const QString& fileName)
{
    QFile file(fileName);
    const QByteArray bytes = palette.Text().toUtf8();
    const bool isSaved = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    message->setText(isSaved ? QString() : file.errorString());
    message->setVisible(!isSaved);
    isModified &= !isSaved;
    return isSaved;
}

bool PaletteEditor::ConfirmDiscard()
{
    return !isModified || QMessageBox::question(this, windowTitle(), tr("There are colours that were not saved."),
                                                QMessageBox::Discard | QMessageBox::Cancel,
                                                QMessageBox::Cancel) == QMessageBox::Discard;
}

void PaletteEditor::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    // Appearance sends the event before it returns the new style.
    if (event->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &PaletteEditor::ShowStyle, Qt::QueuedConnection);
}

} // namespace Zelkor::Gallery
