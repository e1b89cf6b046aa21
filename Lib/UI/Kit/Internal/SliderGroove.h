#pragma once

#include <QPixmap>
#include <QPointer>

#include <array>
#include <optional>

class QSlider;

namespace Zelkor::Vx::UI::Kit {

/// Renders the groove of a ZSlider from hidden QSliders, whose style sheets are templates with the fragments inserted.
///
/// The groove has four looks. A look is rendered on demand and cached. The style sheet is parsed again only if a
/// fragment, the size or the range changes, not if the value does.
class SliderGroove
{
public:
    enum Part {
        EMPTY,    ///< look outside of segments
        NORMAL,   ///< look of segments
        SELECTED, ///< look of selected segments
        BORDER,   ///< look of the first and last pixel of a segment
        ADD_PAGE, ///< part after the value in all looks
        SUB_PAGE, ///< part before the value in all looks
        PARTS
    };
    static constexpr int LOOKS = BORDER + 1;

    /// Renders with the size, range, value, state, font and palette of `slider`. The hidden sliders have no parent,
    /// because a parent such as QSplitter would lay them out.
    explicit SliderGroove(const QSlider& slider);
    ~SliderGroove();
    Q_DISABLE_COPY_MOVE(SliderGroove)

    QString style(Part part) const { return styles[part]; }

    /// Sets the declarations of one part. They may end their rule and begin another one. Warns about a text with
    /// unmatched braces or quotes and renders the part without a style then.
    void setStyle(Part part, const QString& text);

    int offset() const { return inset; }

    /// Sets the space between either end of the slider and the groove, in pixels.
    void setOffset(int pixels);

    /// Discards everything that was rendered.
    void invalidate();

    /// Returns whether any rendered look depends on the value of the slider.
    bool followsValue();

    /// Returns a look with the current size of the slider; null if that is empty or larger than any screen.
    QPixmap pixmap(Part look);

private:
    struct Layer
    {
        QPointer<QSlider> slider;
        bool isPrepared = false;
        std::optional<bool> followsValue; ///< unknown until it is first needed
        bool isCurrent = false;           ///< whether the pixmap matches the slider
        QPixmap pixmap;                   ///< kept while outdated, to reuse its memory
    };

    /// What style sheets and pixmaps depend on besides the fragments.
    struct RenderInput
    {
        QSize size;
        qreal ratio = 0;
        int orientation = 0;
        int minimum = 0;
        int maximum = 0;
        bool enabled = true;

        bool operator==(const RenderInput& other) const;
    };

    void refresh();
    bool followsValue(Layer& layer);
    void prepare(Layer& layer, Part look);
    void render(QSlider& slider, int value, QPixmap& pixmap) const;
    QString plainStyle(Part look) const;
    QString sheet(Part look) const;

    const QSlider& owner;
    std::array<QString, PARTS> styles;
    std::array<QString, PARTS> usableStyles;
    int inset = 6;
    RenderInput input;
    int shownValue = 0;
    std::array<Layer, LOOKS> layers;
};

} // namespace Zelkor::Vx::UI::Kit
