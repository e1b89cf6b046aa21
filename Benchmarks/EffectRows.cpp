#include "SpeedTable.h"

#include <UI/Widgets/CursorHighlightPreviewWidget.h>
#include <UI/Widgets/PixmapWidget.h>
#include <UI/Widgets/VolumeSlider.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QPainter>

#include <cstdio>
#include <memory>

using namespace Zelkor;

namespace SpeedTable {

namespace {

constexpr QSize LARGE(1920, 1080);
constexpr int SHADOW_WIDTH = 12;

// A plain widget, so that the effect dominates the time.
class Surface : public QWidget
{
public:
    explicit Surface(const QSize& size) { resize(size); }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::white); }
};

std::function<void()> Render(QWidget& widget)
{
    const auto canvas = std::make_shared<QImage>(widget.size(), QImage::Format_RGB32);
    return [canvas, &widget] { widget.render(canvas.get(), QPoint(), QRegion(), QWidget::RenderFlags()); };
}

ZGraphicsShadowEffect* AddRim(QWidget& widget)
{
    auto* effect = new ZGraphicsShadowEffect(&widget);
    effect->SetOffset(SHADOW_WIDTH);
    effect->SetBrightnessLevel(1);
    widget.setGraphicsEffect(effect);
    return effect;
}

Rounds ShadowEffect()
{
    Surface ours(LARGE);
    AddRim(ours);
    Surface theirs(LARGE);
    auto* effect = new QGraphicsDropShadowEffect(&theirs);
    effect->setBlurRadius(SHADOW_WIDTH);
    theirs.setGraphicsEffect(effect);
    return Interleave(Render(ours), Render(theirs), 9, 10);
}

// Processes pending paint events.
void PaintNow()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

constexpr char SLIDER_SHEET[] = "QSlider::groove { background: transparent; width: 6px }"
                                "QSlider::handle { background: white; border: 1px solid gray; border-radius: 6px;"
                                " height: 12px; margin: 0 -3px }";

void Prepare(QSlider& slider)
{
    slider.setStyleSheet(SLIDER_SHEET);
    slider.resize(30, 200);
    slider.show();
    PaintNow();
}

Rounds VolumeStep()
{
    Vx::VolumeSlider ours(nullptr);
    Prepare(ours);
    QSlider theirs(Qt::Vertical);
    Prepare(theirs);
    float level = 0;
    return Interleave(
        [&] {
            level = level < 0.9F ? level + 0.05F : 0.1F;
            ours.SetVolumes(0, level);
            PaintNow();
        },
        [&] {
            theirs.update();
            PaintNow();
        },
        61, 100);
}

// Not a time: the number of paint events, relative to one.
Rounds VolumeAtRest()
{
    struct PaintCounter : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
        int paints = 0;
    } counter;
    Vx::VolumeSlider constant(nullptr);
    Prepare(constant);
    constant.SetVolumes(0, 0.5F);
    PaintNow();
    Vx::VolumeSlider hidden(nullptr);
    constant.installEventFilter(&counter);
    hidden.installEventFilter(&counter);
    for (int i = 0; i < 1000; ++i) {
        constant.SetVolumes(0, 0.5F);
        hidden.SetVolumes(0, float(i % 100) / 100);
        PaintNow();
    }
    return {{double(counter.paints)}, {1}};
}

Rounds PixmapResizeStep()
{
    QPixmap picture(4000, 3000);
    picture.fill(Qt::darkCyan);
    Vx::PixmapWidget widget(nullptr, {});
    widget.SetMaskMode(Vx::PixmapWidget::MASK_ELLIPSE);
    widget.SetMaskAnchor(Vx::PixmapWidget::ANCHOR_CENTER);
    widget.SetPixmap(picture);
    const QImage part = picture.toImage().copy(500, 0, 3000, 3000);
    int ours = 300;
    int theirs = 300;
    QImage canvas(400, 400, QImage::Format_RGB32);
    widget.show();
    return Interleave(
        [&] {
            ours = ours < 380 ? ours + 1 : 300;
            widget.resize(ours, ours);
            widget.render(&canvas, QPoint(), QRegion(), QWidget::RenderFlags());
        },
        [&] {
            theirs = theirs < 380 ? theirs + 1 : 300;
            const QImage scaled = part.scaled(theirs, theirs, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QPainter(&canvas).drawImage(0, 0, scaled);
        },
        15, 4);
}

constexpr int SMALL_HIGHLIGHT = 60;
constexpr int LARGE_HIGHLIGHT = 512; // the largest disc

// Changes the colour of the disc at each call.
std::function<void()> ChangeHighlight(Vx::UI::CursorHighlightPreviewWidget& preview, int times)
{
    return [&preview, times, hue = 0]() mutable {
        for (int i = 0; i < times; ++i) {
            hue = (hue + 1) % 360;
            preview.SetColor(QColor::fromHsv(hue, 255, 255, 128));
        }
    };
}

Rounds LargeHighlight()
{
    Vx::UI::CursorHighlightPreviewWidget ours(nullptr);
    ours.SetRadius(LARGE_HIGHLIGHT);
    Vx::UI::CursorHighlightPreviewWidget theirs(nullptr);
    theirs.SetRadius(SMALL_HIGHLIGHT);
    // As many small discs as cover the area of the large one.
    const int many = LARGE_HIGHLIGHT * LARGE_HIGHLIGHT / (SMALL_HIGHLIGHT * SMALL_HIGHLIGHT);
    return Interleave(ChangeHighlight(ours, 1), ChangeHighlight(theirs, many), 31, 2);
}

Rounds UnchangedHighlight()
{
    Vx::UI::CursorHighlightPreviewWidget ours(nullptr);
    ours.SetRadius(LARGE_HIGHLIGHT);
    Vx::UI::CursorHighlightPreviewWidget theirs(nullptr);
    theirs.SetRadius(LARGE_HIGHLIGHT);
    const auto setAgain = [&] {
        ours.SetRadius(ours.GetRadius());
        ours.SetColor(ours.GetColor());
    };
    return Interleave(setAgain, ChangeHighlight(theirs, 1), 31, 2);
}

} // namespace

std::vector<Row> EffectRows()
{
    return {
        {"shadow", "shadow effect on a 1920x1080 widget, offset 12", "QGraphicsDropShadowEffect, blur 12", 0.08,
         ShadowEffect},
        {"volume-step", "volume slider, one level step", "plain QSlider repaint, same style sheet", 1.3, VolumeStep},
        {"volume-rest", "volume slider, level constant or hidden: paint events", "one paint event", 0, VolumeAtRest},
        {"pixmap-resize", "pixmap widget, ellipse, 4000x3000 source, one resize step",
         "QImage::scaled(Smooth) of the cut part", 1.2, PixmapResizeStep},
        {"highlight", "highlight preview, radius 512, one change", "the same area in discs of radius 60", 1.2,
         LargeHighlight},
        {"highlight-same", "highlight preview, radius 512, the same values again", "one change", 0.001,
         UnchangedHighlight},
    };
}

void PrintShadowCurve()
{
    std::printf("%12s %14s %14s %14s\n", "widget", "plain, ms", "with rim, ms", "rim alone, ms");
    for (const int edge : {125, 250, 500, 1000, 2000}) {
        Surface plain(QSize(edge, edge));
        Surface rimmed(QSize(edge, edge));
        AddRim(rimmed);
        // Renders the source through a pixmap without drawing a shadow over it.
        Surface sourceOnly(QSize(edge, edge));
        AddRim(sourceOnly)->SetOffset(0);
        const Rounds rounds = Interleave(Render(rimmed), Render(sourceOnly), 21, 4);
        const Rounds bare = Interleave(Render(plain), Render(plain), 21, 4);
        std::printf("%7dx%4d %14.4f %14.4f %14.4f\n", edge, edge, Median(bare.path) * 1e3, Median(rounds.path) * 1e3,
                    (Median(rounds.path) - Median(rounds.rival)) * 1e3);
    }
}

} // namespace SpeedTable
