#include "CaptureBar.h"
#include "RecorderModel.h"

#include <Examples/Support/FramelessWindow.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/ButtonWithPopUpList.h>
#include <UI/Widgets/ClickSoundComboBox.h>
#include <UI/Widgets/ColorButton.h>
#include <UI/Widgets/FastPresetButton.h>

#include <QAction>
#include <QColorDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <utility>

using Zelkor::Vx::ButtonWithPopUpList;
using Zelkor::Vx::ColorButton;
using Zelkor::Vx::UI::ClickSoundComboBox;
using Zelkor::Vx::UI::FastPresetButton;

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

using Mode = RecorderModel::RecordingMode;
using Sound = RecorderModel::ClickSound;

constexpr int SPACING = 8;
constexpr int SOUND_CHARACTERS = 6; ///< minimum width of a click sound's name
constexpr int LARGEST_SOUND_WIDTH = 140;
constexpr int SOUND_STRETCH = 1000; ///< greater than that of the stretch beside it

constexpr int BEFORE_CHOICES = 1; ///< index of the space between presets and choices

struct ModeLook
{
    Mode mode;
    const char* icon;
    const char* presetType; ///< for style sheet selectors; null for a mode without a preset
};

// In the order of the list. The shortcuts of the presets are Ctrl+1, Ctrl+2 and so on.
constexpr ModeLook MODES[] = {
    {Mode::FullScreen, "full-screen", "FullScreen"},
    {Mode::Window, "window", "Window"},
    {Mode::Region, "region", "Region"},
    {Mode::AroundPointer, "pointer", nullptr},
    {Mode::SoundOnly, "sound", nullptr},
};

QString NameOf(Mode mode)
{
    switch (mode) {
    case Mode::FullScreen:
        return CaptureBar::tr("Full screen");
    case Mode::Window:
        return CaptureBar::tr("Window");
    case Mode::Region:
        return CaptureBar::tr("Region");
    case Mode::AroundPointer:
        return CaptureBar::tr("Around pointer");
    case Mode::SoundOnly:
        break;
    }
    return CaptureBar::tr("Sound only");
}

QString NameOf(Sound sound)
{
    switch (sound) {
    case Sound::None:
        return CaptureBar::tr("No click sound");
    case Sound::SoftClick:
        return CaptureBar::tr("Soft click");
    case Sound::MechanicalKeyboard:
        return CaptureBar::tr("Mechanical keyboard");
    case Sound::Typewriter:
        break;
    }
    return CaptureBar::tr("Typewriter");
}

} // namespace

CaptureBar::CaptureBar(RecorderModel* model, QWidget* parent)
    : QWidget(parent), model(model), row(new QHBoxLayout(this)), presetGroup(new QWidget)
{
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(SPACING);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    AddPresets();
    row->addStretch();
    AddChoices();
    row->addStretch();
    Connect();
    Retranslate();
}

void CaptureBar::AddPresets()
{
    auto* layout = new QHBoxLayout(presetGroup);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    for (const ModeLook& look : MODES) {
        if (!look.presetType)
            continue;
        auto* action = new QAction(this);
        action->setProperty("PresetType", look.presetType);
        action->setData(int(look.mode));
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + presets.size())));
        addAction(action);
        auto* button = new FastPresetButton(action, "Recorder", presetGroup);
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
        layout->addWidget(button);
        presets.append(button);
    }
    // Lets the bar become narrower than the presets, which it then hides.
    presetGroup->setMinimumWidth(1);
    row->addWidget(presetGroup);
}

void CaptureBar::AddChoices()
{
    modes = new ButtonWithPopUpList;
    modes->setObjectName("recordingModes");
    modes->setFocusPolicy(Qt::StrongFocus);
    modes->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    color = new ColorButton;
    color->setObjectName("drawingColor");
    color->setIcon(ZStyleSheet::icon("palette"));
    color->SetAlphaEnabled(true);
    color->SetMaximumAlpha(RecorderModel::MAXIMUM_DRAWING_ALPHA);
    sound = new ClickSoundComboBox;
    sound->setObjectName("clickSound");
    StyleItems(sound);
    sound->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    sound->setMinimumContentsLength(SOUND_CHARACTERS);
    // Gives all controls the height of the tallest one.
    modes->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    color->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    sound->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    sound->setMaximumWidth(LARGEST_SOUND_WIDTH);
    row->addWidget(modes);
    row->addWidget(color);
    row->addWidget(sound, SOUND_STRETCH);
}

void CaptureBar::Connect()
{
    for (QAction* action : actions())
        connect(action, &QAction::triggered, this,
                [this, action] { model->ChooseRecordingMode(Mode(action->data().toInt())); });
    // A click on the current preset unchecks it.
    for (FastPresetButton* button : std::as_const(presets))
        connect(button, &FastPresetButton::Clicked, this, &CaptureBar::Refresh);
    connect(modes, &ButtonWithPopUpList::CurrentIndexChanged, this,
            [this] { model->ChooseRecordingMode(Mode(modes->CurrentData().toInt())); });
    connect(modes, &QToolButton::clicked, modes, &QToolButton::showMenu);
    connect(color, &ColorButton::ColorDialogWillBeOpened, this,
            [this] { ReplaceFrame(color->findChild<QColorDialog*>()); });
    connect(color, &ColorButton::ColorChanged, model, &RecorderModel::ChooseDrawingColor);
    connect(sound, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { model->ChooseClickSound(Sound(sound->itemData(index).toInt())); });
    connect(model, &RecorderModel::RecordingChanged, this, &CaptureBar::Refresh);
}

void CaptureBar::Refresh()
{
    const Mode mode = model->CurrentRecordingMode();
    for (int i = 0; i < presets.size(); ++i)
        presets[i]->setChecked(Mode(actions()[i]->data().toInt()) == mode);

    const int index = modes->ItemIndex(int(mode));
    if (modes->CurrentIndex() != index)
        modes->SetCurrentIndex(index);
    modes->setIcon(ZStyleSheet::icon(MODES[index].icon));
    SetTextBesideIcon(modes, NameOf(mode));
    color->SetColor(model->CurrentDrawingColor());
    sound->setCurrentIndex(sound->findData(int(model->CurrentClickSound())));
}

void CaptureBar::Retranslate()
{
    for (QAction* action : actions()) {
        action->setText(NameOf(Mode(action->data().toInt())));
        action->setToolTip(tr("Recording mode: %1").arg(action->text()));
    }
    {
        // Filling the lists is not user input.
        const QSignalBlocker blocker(modes);
        modes->Clear();
        int width = 0;
        for (const ModeLook& look : MODES) {
            modes->AppendItem(NameOf(look.mode), int(look.mode));
            modes->setIcon(ZStyleSheet::icon(look.icon));
            SetTextBesideIcon(modes, NameOf(look.mode));
            width = qMax(width, modes->sizeHint().width());
        }
        // Keeps the width for all choices.
        modes->setMinimumWidth(width);
    }
    sound->clear();
    for (const Sound item : {Sound::None, Sound::SoftClick, Sound::MechanicalKeyboard, Sound::Typewriter})
        sound->addItem(NameOf(item), int(item));
    modes->setToolTip(tr("Chooses what is recorded"));
    color->setToolTip(tr("Chooses the colour of drawings"));
    color->setAccessibleName(tr("Drawing colour"));
    sound->setToolTip(tr("Chooses what is heard when you click"));
    sound->setAccessibleName(tr("Click sound"));
    Refresh();
}

// The size hint includes the presets even while they are hidden.
QSize CaptureBar::sizeHint() const
{
    return QSize(FullWidth(), row->sizeHint().height());
}

int CaptureBar::FullWidth() const
{
    int width = 4 * SPACING + presetGroup->sizeHint().width();
    for (const QWidget* widget : {static_cast<QWidget*>(modes), static_cast<QWidget*>(color)})
        width += widget->sizeHint().expandedTo(widget->minimumSize()).width();
    return width + LARGEST_SOUND_WIDTH;
}

void CaptureBar::ShowWhatFits()
{
    const bool presetsFit = width() >= FullWidth();
    presetGroup->setVisible(presetsFit);
    // Aligns the choices at the end beside the presets, otherwise at the start.
    row->setStretch(BEFORE_CHOICES, presetsFit);
    row->setStretch(row->count() - 1, !presetsFit);
}

void CaptureBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ShowWhatFits();
}

bool CaptureBar::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        ShowWhatFits();
    else if (event->type() == QEvent::LanguageChange)
        Retranslate();
    return QWidget::event(event);
}

} // namespace Zelkor::Recorder
