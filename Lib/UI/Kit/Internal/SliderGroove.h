#pragma once

#include <QPixmap>
#include <QPointer>

#include <array>
#include <optional>

class QSlider;

namespace Zelkor::Vx::UI::Kit {

/// The groove of a ZSlider, rendered from plain sliders that are never shown, through style sheets that are filled with
/// fragments.
///
/// There are four looks of it. Each is rendered when it is asked for, and again only when what it shows changes: a
/// style sheet is read anew for another style, size or range, not for another value.
class SliderGroove
{
public:
    /// The fragments: one for each look, and the two that all looks share.
    enum Part { EMPTY, NORMAL, SELECTED, BORDER, ADD_PAGE, SUB_PAGE, PARTS };
    static constexpr int LOOKS = BORDER + 1;

    /// Renders what `slider` is: its size, range, value, state, font and palette. The hidden sliders have no parent:
    /// one that arranges its children would make room for them.
    explicit SliderGroove(const QSlider& slider);
    ~SliderGroove();
    Q_DISABLE_COPY_MOVE(SliderGroove)

    QString style(Part part) const { return styles[part]; }

    /// The declarations of one part. They may end their rule and begin another one. A text whose braces would tear the
    /// sheet around it gives a warning and counts as empty.
    void setStyle(Part part, const QString& text);

    int offset() const { return inset; }

    /// What the groove leaves free at both ends, in pixels.
    void setOffset(int pixels);

    /// Everything is to be rendered anew.
    void invalidate();

    /// Whether another value of the slider makes another picture of what was rendered.
    bool followsValue();

    /// A look of the groove over the whole slider, as this is now; null when that has no area, or more than any screen.
    QPixmap pixmap(Part look);

private:
    struct Canvas
    {
        QPointer<QSlider> slider;
        bool styled = false;
        std::optional<bool> followsValue; ///< once somebody asked
        bool isCurrent = false;           ///< whether the picture shows what the slider is
        QPixmap pixmap;                   ///< stays when out of date: its memory serves again
    };

    /// What a style sheet and a picture depend on, beside the fragments.
    struct Scene
    {
        QSize size;
        qreal ratio = 0;
        int orientation = 0;
        int minimum = 0;
        int maximum = 0;
        bool enabled = true;

        bool operator==(const Scene& other) const;
    };

    void refresh();
    bool followsValue(Canvas& canvas);
    void prepare(Canvas& canvas, Part look);
    void render(QSlider& slider, int value, QPixmap& pixmap) const;
    QString sheet(Part look) const;

    const QSlider& owner;
    std::array<QString, PARTS> styles;
    std::array<QString, PARTS> usableStyles;
    int inset = 6;
    Scene scene;
    int shownValue = 0;
    std::array<Canvas, LOOKS> canvases;
};

} // namespace Zelkor::Vx::UI::Kit
