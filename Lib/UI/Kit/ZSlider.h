#pragma once

#include <UI/Kit/Internal/SliderGroove.h>

#include <QMap>
#include <QSlider>
#include <QStringList>
#include <QVector>

class ZSliderThumb;

namespace Zelkor::Vx::UI::Kit {
struct SliderTrack;
}

/// A slider with any number of named thumbs, each with a value of its own; for trimming and timelines.
///
/// Values grow from the left or from the top, in every layout direction. One thumb, "default", goes with the value of
/// the slider itself. A press on the groove moves the selected thumb, or the default one. At most one thumb is selected
/// (checked) at a time.
///
/// Keys: Tab reaches the slider and leaves it. Ctrl with an arrow key goes from thumb to thumb in the order of their
/// values, also where they lie over one another; the space bar selects; the arrow keys step the thumb that has the
/// keyboard. They go to the selected thumb while the slider itself has it, and move the slider's value while no thumb
/// was selected yet. Up and Page Up lead to the smaller values of a vertical slider, which lie higher.
///
/// The groove is not that of the application's style. The style properties are declarations of a style sheet for its
/// looks: empty, the segments normal and selected, their borders, and the pages after and before the value over all of
/// these. The slider owns its thumbs. GUI thread only.
class ZSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(int grooveOffset READ grooveOffset WRITE setGrooveOffset)
    Q_PROPERTY(QString grooveEmptyStyle READ grooveEmptyStyle WRITE setGrooveEmptyStyle)
    Q_PROPERTY(QString grooveNormalStyle READ grooveNormalStyle WRITE setGrooveNormalStyle)
    Q_PROPERTY(QString grooveSelectedStyle READ grooveSelectedStyle WRITE setGrooveSelectedStyle)
    Q_PROPERTY(QString grooveBorderStyle READ grooveBorderStyle WRITE setGrooveBorderStyle)
    Q_PROPERTY(QString addPageStyle READ addPageStyle WRITE setAddPageStyle)
    Q_PROPERTY(QString subPageStyle READ subPageStyle WRITE setSubPageStyle)

    using SliderGroove = Zelkor::Vx::UI::Kit::SliderGroove;
    using SliderTrack = Zelkor::Vx::UI::Kit::SliderTrack;

public:
    /// A highlighted stretch of the groove, in values of the slider.
    struct Segment
    {
        int from;
        int to;
        bool selected; ///< shows the look of selected segments instead of the normal one
    };

    /// Vertical, with the default thumb.
    explicit ZSlider(QWidget* parent = nullptr);
    ~ZSlider() override;

    /// What the groove leaves free at both ends, in pixels; 6 by default.
    int grooveOffset() const { return groove.offset(); }
    void setGrooveOffset(int pixels);

    /// Declarations of a style sheet, without a selector; empty by default.
    QString grooveEmptyStyle() const { return groove.style(SliderGroove::EMPTY); }
    void setGrooveEmptyStyle(const QString& style) { setStyle(SliderGroove::EMPTY, style); }
    QString grooveNormalStyle() const { return groove.style(SliderGroove::NORMAL); }
    void setGrooveNormalStyle(const QString& style) { setStyle(SliderGroove::NORMAL, style); }
    QString grooveSelectedStyle() const { return groove.style(SliderGroove::SELECTED); }
    void setGrooveSelectedStyle(const QString& style) { setStyle(SliderGroove::SELECTED, style); }
    QString grooveBorderStyle() const { return groove.style(SliderGroove::BORDER); }
    void setGrooveBorderStyle(const QString& style) { setStyle(SliderGroove::BORDER, style); }
    QString addPageStyle() const { return groove.style(SliderGroove::ADD_PAGE); }
    void setAddPageStyle(const QString& style) { setStyle(SliderGroove::ADD_PAGE, style); }
    QString subPageStyle() const { return groove.style(SliderGroove::SUB_PAGE); }
    void setSubPageStyle(const QString& style) { setStyle(SliderGroove::SUB_PAGE, style); }

    /// A new thumb at the slider's minimum, or at its value for "default". It replaces the one of that name.
    ZSliderThumb* addThumb(const QString& name);

    /// Deletes a thumb, at once; nothing when there is none of that name.
    void removeThumb(const QString& name);

    /// The thumb of that name, or null.
    ZSliderThumb* thumb(const QString& name) const { return thumbs.value(name); }

    /// The names of all thumbs, in order.
    QStringList thumbNames() const { return thumbs.keys(); }

    /// The thumb that goes with the slider's value; null when it was removed.
    ZSliderThumb* defaultThumb() const { return valueThumb; }

    /// The thumb that keys, wheel and presses on the groove go to: the checked one, or the default one once a thumb was
    /// unchecked. Null as long as nothing was selected.
    ZSliderThumb* selectedThumb() const { return selected; }

    /// Checks a thumb, also one that a person cannot select, or with null the one that is checked no more. Thumbs of
    /// other sliders are ignored.
    void setSelectedThumb(ZSliderThumb* thumb);

    /// The highlighted stretches; none by default. Values beyond the range are drawn at its ends, and the two values of
    /// a segment may come in any order.
    QVector<Segment> segments() const { return stretches; }
    void setSegments(const QVector<Segment>& segments);
    void addSegment(int from, int to, bool selected = false);
    void clearSegments();

    /// Whether a thumb that is dragged close to the default thumb takes its value; off by default.
    bool isSnapping() const { return snapping; }
    void setSnapping(bool on) { snapping = on; }

    /// How close that is, in thousandths of the slider's maximum; 20 by default.
    int snapDistance() const { return snapThousandths; }
    void setSnapDistance(int thousandths) { snapThousandths = thousandths; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void sliderChange(SliderChange change) override;

private Q_SLOTS:
    void thumbToggled(bool flag);
    void defaultSliderSetValue(int value);
    void defaultSliderValueChanged(int value);

private:
    friend class ZSliderThumb;

    /// Called after a thumb was dragged, with the place of the mouse in the slider.
    virtual void pointerMoved(const QPoint&) {}

    enum class Follower { NONE, THUMB, SLIDER };

    SliderTrack track() const;
    int valueAt(const QPoint& point) const;
    int snapped(const ZSliderThumb& thumb, int value) const;
    ZSliderThumb* grooveThumb() const;
    ZSliderThumb* keyThumb() const { return selected ? selected : valueThumb; }
    bool hasOtherThumbAt(const QPoint& point, const ZSliderThumb& thumb) const;
    bool moveFocus(QKeyEvent& event, ZSliderThumb* from);
    void pressValueKey(QKeyEvent& event);
    void forget(ZSliderThumb* thumb);
    void layOut();
    void setZOrder(ZSliderThumb& thumb, int order);
    void restack();
    void synchronise(Follower follower, int value);
    void finishGrooveDrag();
    void setStyle(SliderGroove::Part part, const QString& style);
    QSize withThumbs(const QSize& size) const;
    void paintSegments(QPainter& painter);

    SliderGroove groove;
    ZSliderThumb* selected = nullptr;
    ZSliderThumb* valueThumb = nullptr; ///< the one named "default"
    QVector<Segment> stretches;
    QMap<QString, ZSliderThumb*> thumbs;
    QMap<QPair<int, QString>, ZSliderThumb*> stacking; ///< by order and name, the lowest thumb first
    bool draggingFromGroove = false;
    bool synchronising = false;
    Follower pending = Follower::NONE; ///< who is behind after what happened while synchronising
    bool snapping = false;
    int snapThousandths = 20;
};
