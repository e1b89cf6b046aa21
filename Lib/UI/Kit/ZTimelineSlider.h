#pragma once

#include <UI/Kit/ZSlider.h>

#include <optional>

/// A slider for a time within a span, all in milliseconds. Optional bounds narrow the span: the slider shows the range
/// between them or, while they are ignored, the whole span with the default thumb limited to the bounds.
///
/// A tool tip shows the time under the mouse, modulo 24 hours, relative to the start of the shown range.
///
/// The range of values, 0 to 1000 by default, is the resolution of the time. Without a left bound, value 0 is time 0
/// wherever the span starts. GUI thread only.
class ZTimelineSlider : public ZSlider
{
    Q_OBJECT
    Q_PROPERTY(qint64 startTime READ startTime WRITE setStartTime)
    Q_PROPERTY(qint64 endTime READ endTime WRITE setEndTime)
    Q_PROPERTY(qint64 leftBound READ leftBound WRITE setLeftBound)
    Q_PROPERTY(qint64 rightBound READ rightBound WRITE setRightBound)
    Q_PROPERTY(qint64 time READ time WRITE setTime)
    Q_PROPERTY(QString styleTag READ styleTag WRITE setStyleTag)
    Q_PROPERTY(QStringList displayFormatList READ displayFormatList WRITE setDisplayFormatList)

public:
    /// Constructs a vertical slider with an empty span at 0 and no bounds.
    explicit ZTimelineSlider(QWidget* parent = nullptr);

    // Changes of span and bounds keep the time, within the new range and the resolution of the values.

    /// Start of the span in milliseconds; 0 by default.
    qint64 startTime() const { return spanStart; }
    void setStartTime(qint64 milliseconds) { setSpan(milliseconds, spanEnd); }

    /// End of the span in milliseconds; 0 by default.
    qint64 endTime() const { return spanEnd; }
    void setEndTime(qint64 milliseconds) { setSpan(spanStart, milliseconds); }

    /// Sets both ends at once.
    void setSpan(qint64 start, qint64 end);

    /// Left bound and lower limit of the default thumb in milliseconds; negative for none; -1 by default.
    qint64 leftBound() const { return lowerBound; }
    void setLeftBound(qint64 milliseconds) { setBounds(milliseconds, upperBound); }

    /// Right bound and upper limit of the default thumb in milliseconds; negative for none; -1 by default.
    qint64 rightBound() const { return upperBound; }
    void setRightBound(qint64 milliseconds) { setBounds(lowerBound, milliseconds); }

    /// Sets both bounds at once.
    void setBounds(qint64 left, qint64 right);
    void resetBounds();

    /// Whether the slider shows the whole span despite the bounds, which still limit the time; false by default.
    bool areBoundsIgnored() const { return boundsIgnored; }
    void setBoundsIgnored(bool on);

    /// Time of the slider's value in milliseconds; 0 by default. Setting a time of the current value has no effect.
    qint64 time() const { return currentTime; }
    void setTime(qint64 milliseconds);

    /// Sets value and time to 0 without signals.
    void resetTime();

    /// Tag for selectors of style sheets; empty by default.
    QString styleTag() const { return currentStyleTag; }
    void setStyleTag(const QString& tag);

    /// Formats of the tool tip, which uses the one that loses least precision; empty, for "hh:mm:ss", by default.
    QStringList displayFormatList() const { return formats; }
    void setDisplayFormatList(const QStringList& list) { formats = list; }

    /// Returns the value of a time, which is first clamped to the span and the bounds.
    int valueOf(qint64 milliseconds) const;

    /// Returns the time of a value: exactly the bound if the value is a limit of the default thumb.
    qint64 timeAt(int value) const;

Q_SIGNALS:
    /// Emitted when the time changes. During a drag, a slot must use deleteLater() to delete the slider.
    void timeChanged(qint64 milliseconds);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void updateTime(int value);

private:
    struct Scale;

    void pointerMoved(const QPoint& point) override;

    Scale scale() const;
    std::optional<int> limitOf(qint64 bound) const;
    std::optional<qint64> boundAt(int value) const;
    void setThumbLimits(int lower, int upper);
    void refit();

    QString currentStyleTag;
    QStringList formats;
    qint64 spanStart = 0;
    qint64 spanEnd = 0;
    qint64 lowerBound = -1;
    qint64 upperBound = -1;
    qint64 currentTime = 0;
    bool boundsIgnored = false;
};
