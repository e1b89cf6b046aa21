#pragma once

#include <QSlider>
#include <QStringList>
#include <QVector>

#include <memory>

class ZSliderThumb;

/// A slider with any number of named thumbs, each with its own value; for trimming and timelines.
///
/// Values grow from the left or from the top in every layout direction. The thumb "default" follows the value of the
/// slider and sets it. A press on the groove moves the selected thumb, or the default one. At most one thumb is
/// selected (checked) at a time.
///
/// Keys: Tab moves the focus to the slider and out of it. Ctrl with an arrow key moves the focus from thumb to thumb in
/// the order of their values, Space selects the focused thumb, and arrow keys step it. When the slider itself has the
/// focus, keys act on the selected thumb, or change the value of the slider if no thumb was ever selected. On a
/// vertical slider, Up and Page Up decrease the value, because small values are at the top.
///
/// The groove is drawn from the style properties, not by the style of the application. Each of them holds style sheet
/// declarations without a selector. The slider owns its thumbs. GUI thread only.
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

public:
    /// A highlighted range of the groove, in values of the slider.
    struct Segment
    {
        int from;
        int to;        ///< may be less than `from`
        bool selected; ///< whether it is drawn in `grooveSelectedStyle` instead of `grooveNormalStyle`
    };

    /// Constructs a vertical slider with the default thumb.
    explicit ZSlider(QWidget* parent = nullptr);
    ~ZSlider() override;

    int grooveOffset() const; ///< space between either end of the slider and the groove in pixels; 6 by default
    void setGrooveOffset(int pixels);

    QString grooveEmptyStyle() const; ///< style of the groove outside of segments; empty by default
    void setGrooveEmptyStyle(const QString& style);
    QString grooveNormalStyle() const; ///< style of segments; empty by default
    void setGrooveNormalStyle(const QString& style);
    QString grooveSelectedStyle() const; ///< style of selected segments; empty by default
    void setGrooveSelectedStyle(const QString& style);
    QString grooveBorderStyle() const; ///< style of the first and last pixel of a segment; empty by default
    void setGrooveBorderStyle(const QString& style);
    QString addPageStyle() const; ///< style of the part after the value, over all of these; empty by default
    void setAddPageStyle(const QString& style);
    QString subPageStyle() const; ///< style of the part before the value, over all of these; empty by default
    void setSubPageStyle(const QString& style);

    /// Creates a thumb at the slider's minimum, or at its value for "default". Replaces the thumb of the same name.
    ZSliderThumb* addThumb(const QString& name);

    /// Deletes the thumb of that name at once, if there is one.
    void removeThumb(const QString& name);

    /// Returns the thumb of that name, or null.
    ZSliderThumb* thumb(const QString& name) const;

    /// Returns the names of all thumbs, sorted.
    QStringList thumbNames() const;

    /// Returns the thumb that follows the slider's value; null after it was removed.
    ZSliderThumb* defaultThumb() const;

    /// Returns the thumb that keys, the wheel and presses on the groove act on: the checked one, or the default one
    /// after a thumb was unchecked. Null until a thumb is selected for the first time.
    ZSliderThumb* selectedThumb() const;

    /// Checks a thumb, whether or not the user may select it. Null unchecks the checked one. Ignores thumbs of other
    /// sliders.
    void setSelectedThumb(ZSliderThumb* thumb);

    /// The highlighted segments; none by default. Values outside the range are drawn at its ends.
    QVector<Segment> segments() const;
    void setSegments(const QVector<Segment>& segments);
    void addSegment(int from, int to, bool selected = false);
    void clearSegments();

    /// Whether a thumb that is dragged near the default thumb snaps to its value; off by default.
    bool isSnapping() const;
    void setSnapping(bool on);

    /// The snapping distance in thousandths of the slider's maximum; 20 by default.
    int snapDistance() const;
    void setSnapDistance(int thousandths);

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
    friend class ZSliderThumb; ///< its constructor passes `impl` on as the SliderThumbHost

    /// Called after a thumb was dragged, with the position of the mouse in the slider.
    virtual void pointerMoved(const QPoint&) {}

    QSize withThumbs(const QSize& size) const;

    struct Impl;
    std::unique_ptr<Impl> impl;
};
