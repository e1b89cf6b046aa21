#include "TrimPage.h"

#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZSliderThumb.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Kit/ZTimeEdit.h>
#include <UI/Kit/ZTimelineSlider.h>
#include <UI/Widgets/CountdownIndicatorWidget.h>

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

constexpr int MARGIN = 24;
constexpr int SPACING = 8;
constexpr int CARD_SPACING = 16;
constexpr int DURATION = 5 * 60 * 1000;
constexpr int TIMELINE_STEPS = 6000; ///< of 50 milliseconds
constexpr qint64 KEY_STEP = 1000;    ///< milliseconds
constexpr int STEP_UNITS = 120;      ///< that a thumb reports per step
const QStringList TIME_FORMATS = {"mm:ss", "mm:ss.zzz", "hh:mm:ss.zzz"};
const QString CUT_MARK = "mark";

QTime TimeOf(qint64 milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(int(milliseconds));
}

QLabel* CreateText(const char* objectName)
{
    auto* label = new QLabel;
    label->setObjectName(objectName);
    AlignAtStart(label);
    return label;
}

} // namespace

TrimPage::TrimPage(QWidget* parent) : QWidget(parent), model(DURATION)
{
    title = CreateText("title");
    description = CreateText("description");
    description->setWordWrap(true);
    position = new Vx::CountdownIndicatorWidget(nullptr);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    layout->addWidget(title);
    layout->addWidget(description);
    layout->addStretch();
    layout->addWidget(position, 0, Qt::AlignCenter);
    layout->addStretch();
    auto* card = new ZFrame;
    card->setProperty("role", QStringLiteral("card"));
    auto* cardLayout = new QVBoxLayout(card);
    cardLayout->setSpacing(CARD_SPACING);
    cardLayout->addWidget(CreateTimeline());
    cardLayout->addWidget(CreateControls());
    layout->addWidget(card);

    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &TrimPage::CancelDrag);
    connect(&model, &TrimModel::Changed, this, &TrimPage::Show);
    Retranslate();
    ShowPosition();
}

// A thumb ends its drag when it is hidden, which ~QWidget() causes after the model is destroyed.
TrimPage::~TrimPage()
{
    start->disconnect(this);
    end->disconnect(this);
}

QWidget* TrimPage::CreateTimeline()
{
    timeline = new ZTimelineSlider;
    timeline->setObjectName("timeline");
    timeline->setProperty("role", QStringLiteral("trim"));
    timeline->setOrientation(Qt::Horizontal);
    timeline->setRange(0, TIMELINE_STEPS);
    timeline->setSpan(0, DURATION);
    timeline->setDisplayFormatList(TIME_FORMATS);
    timeline->setSnapping(true);
    timeline->setSnapDistance(5);
    start = AddBracket("left", &TrimModel::SetStart);
    end = AddBracket("right", &TrimModel::SetEnd);
    connect(timeline, &ZTimelineSlider::timeChanged, this, &TrimPage::ShowPosition);
    connect(timeline->defaultThumb(), &ZSliderThumb::stepped, this,
            [this](int units) { timeline->setTime(timeline->time() + KEY_STEP * units / STEP_UNITS); });
    return timeline;
}

ZSliderThumb* TrimPage::AddBracket(const char* name, Setter set)
{
    ZSliderThumb* thumb = timeline->addThumb(name);
    connect(thumb, &ZSliderThumb::dragStarted, this, [this] {
        dragCancelled = false;
        model.StartStep();
    });
    connect(thumb, &ZSliderThumb::dragFinished, this, [this] {
        if (model.HasOpenStep())
            model.FinishStep();
        dragCancelled = false;
        Show();
    });
    connect(thumb, &ZSliderThumb::valueChanged, this, [this, set](int value) {
        if (!showing && !dragCancelled)
            (model.*set)(timeline->timeAt(value));
    });
    connect(thumb, &ZSliderThumb::stepped, this,
            [this, thumb, set](int units) { (model.*set)(BracketTime(thumb) + KEY_STEP * units / STEP_UNITS); });
    return thumb;
}

QWidget* TrimPage::CreateControls()
{
    auto* controls = new QWidget;
    auto* layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    startField = CreateField("startField", &TrimModel::SetStart);
    endField = CreateField("endField", &TrimModel::SetEnd);
    result = new ZLabel;
    result->setObjectName("statusText");
    result->setClickable(false);
    AlignAtStart(result);
    result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    cutButton = new QToolButton;
    undoButton = new QToolButton;
    redoButton = new QToolButton;
    AddAction(cutButton, "cut", QKeySequence(Qt::Key_X), &TrimPage::ToggleCut);
    AddAction(undoButton, "undo", QKeySequence::Undo, &TrimPage::Undo);
    AddAction(redoButton, "redo", QKeySequence::Redo, &TrimPage::Redo);

    layout->addWidget(startField);
    layout->addWidget(new QLabel("–"));
    layout->addWidget(endField);
    layout->addSpacing(SPACING);
    layout->addWidget(result, 1);
    for (QToolButton* button : {cutButton, undoButton, redoButton})
        layout->addWidget(button);
    return controls;
}

ZTimeEdit* TrimPage::CreateField(const char* name, Setter set)
{
    auto* field = new ZTimeEdit;
    field->setObjectName(name);
    field->setDisplayFormatList({"mm:ss.zzz"});
    field->setMaximumTime(TimeOf(DURATION));
    connect(field, &QTimeEdit::timeChanged, this, [this, set](const QTime& time) {
        if (!showing)
            (model.*set)(time.msecsSinceStartOfDay());
    });
    return field;
}

void TrimPage::AddAction(QToolButton* button, const char* icon, const QKeySequence& shortcut, void (TrimPage::*act)())
{
    auto* action = new QAction(this);
    action->setIcon(ZStyleSheet::icon(icon));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setDefaultAction(action);
}

qint64 TrimPage::BracketTime(const ZSliderThumb* thumb) const
{
    return thumb == start ? model.Current().kept.from : model.Current().kept.to;
}

// The first call marks the start of the cut, the second one its end.
void TrimPage::ToggleCut()
{
    const qint64 now = timeline->time();
    if (!cutFrom) {
        cutFrom = now;
        ZSliderThumb* mark = timeline->addThumb(CUT_MARK);
        mark->setDraggable(false);
        mark->setSelectable(false);
        mark->setValue(timeline->value());
    } else {
        timeline->removeThumb(CUT_MARK);
        const qint64 from = *cutFrom;
        cutFrom.reset();
        model.CutOut(from, now);
    }
    Retranslate();
}

// The mouse button is still pressed.
void TrimPage::CancelDrag()
{
    if (!model.HasOpenStep())
        return;
    dragCancelled = true;
    model.CancelStep();
}

void TrimPage::Show()
{
    const QScopedValueRollback<bool> guard(showing, true);
    const TrimModel::Range kept = model.Current().kept;
    start->setValue(timeline->valueOf(kept.from));
    end->setValue(timeline->valueOf(kept.to));
    startField->setTime(TimeOf(kept.from));
    endField->setTime(TimeOf(kept.to));
    QVector<ZSlider::Segment> segments;
    for (const TrimModel::Range& piece : model.Pieces())
        segments.append({timeline->valueOf(piece.from), timeline->valueOf(piece.to), true});
    timeline->setSegments(segments);
    result->setOriginalText(tr("Result: %1").arg(TimeOf(model.ResultDuration()).toString("mm:ss.zzz")));
    undoButton->defaultAction()->setEnabled(model.CanUndo());
    redoButton->defaultAction()->setEnabled(model.CanRedo());
}

void TrimPage::ShowPosition()
{
    position->SetSeconds(qulonglong(timeline->time() / 1000));
}

void TrimPage::Retranslate()
{
    setWindowTitle(tr("Trimmer"));
    title->setText(tr("Trim a recording"));
    description->setText(tr("Drag the brackets or type the times. A cut begins where the position is and ends where it "
                            "is the next time. Everything can be undone; Escape takes back a drag."));
    timeline->setAccessibleName(tr("Position"));
    timeline->defaultThumb()->setName(tr("Position"));
    start->setName(tr("Start"));
    end->setName(tr("End"));
    startField->setAccessibleName(tr("Start"));
    endField->setAccessibleName(tr("End"));
    position->setAccessibleName(tr("Position"));
    const auto name = [](QToolButton* button, const QString& text) {
        button->defaultAction()->setText(text);
        button->setAccessibleName(text);
    };
    name(cutButton, cutFrom ? tr("Cut to here") : tr("Cut from here"));
    name(undoButton, tr("Undo"));
    name(redoButton, tr("Redo"));
    Show();
}

void TrimPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Recorder
