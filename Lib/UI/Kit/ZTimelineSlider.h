#pragma once

#include <UI/Kit/ZSlider.h>

#include <optional>

/// A slider for a time within a span, both in milliseconds. Bounds can narrow the span: then the slider shows what lies
/// between them or, while they are ignored, the whole span with the default thumb confined to the bounds.
///
/// The time under the mouse shows as a tool tip, counted from the start of what the slider shows and along its width,
/// as timelines lie. It begins anew after each 24 hours.
///
/// The slider starts with values 0 to 1000, and time is as fine as they are. Without a left bound, value 0 stands for
/// time 0 wherever the span starts. GUI thread only.
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
    /// Vertical like any ZSlider, with an empty span at 0 and no bounds.
    explicit ZTimelineSlider(QWidget* parent = nullptr);

    /// The ends of the span. The time is kept as far as the new span and the slider's values allow, and so it is by
    /// every change of the bounds.
    qint64 startTime() const { return spanStart; }
    void setStartTime(qint64 milliseconds) { setSpan(milliseconds, spanEnd); }
    qint64 endTime() const { return spanEnd; }
    void setEndTime(qint64 milliseconds) { setSpan(spanStart, milliseconds); }

    /// Both ends in one step.
    void setSpan(qint64 start, qint64 end);

    /// The bounds, which are also the limits of the default thumb; negative for none.
    qint64 leftBound() const { return lowerBound; }
    void setLeftBound(qint64 milliseconds) { setBounds(milliseconds, upperBound); }
    qint64 rightBound() const { return upperBound; }
    void setRightBound(qint64 milliseconds) { setBounds(lowerBound, milliseconds); }

    /// Both bounds in one step.
    void setBounds(qint64 left, qint64 right);
    void resetBounds();

    /// Whether the slider shows the whole span even if there are bounds; off by default. They go on limiting the time.
    bool areBoundsIgnored() const { return boundsIgnored; }
    void setBoundsIgnored(bool on);

    /// The time of the slider's value. Setting one within the same value changes nothing.
    qint64 time() const { return currentTime; }
    void setTime(qint64 milliseconds);

    /// Back to value and time 0, without a signal.
    void resetTime();

    /// For selectors of a style sheet.
    QString styleTag() const { return currentStyleTag; }
    void setStyleTag(const QString& tag);

    /// Formats for the tool tip, of which it takes the one that loses least of the shown time. "hh:mm:ss" when empty.
    QStringList displayFormatList() const { return formats; }
    void setDisplayFormatList(const QStringList& list) { formats = list; }

    /// The value for a time, which is brought into the span and the bounds first.
    int valueOf(qint64 milliseconds) const;

    /// The time for a value. The end of the default thumb's way is exactly the bound that is there.
    qint64 timeAt(int value) const;

Q_SIGNALS:
    /// While a person drags, the slider is not done yet when it tells that: a slot that wants it gone calls
    /// deleteLater().
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
