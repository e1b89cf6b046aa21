#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

namespace Zelkor::Recorder {

/// A recording as the recorder shows it: a countdown first, then the time that has gone by. Nothing is written.
///
/// GUI thread.
class Recording : public QObject
{
    Q_OBJECT

public:
    enum class State { Idle, CountingDown, Running };

    /// `second` is how long a second takes.
    explicit Recording(QObject* parent = nullptr, std::chrono::milliseconds second = std::chrono::seconds(1));

    State GetState() const { return state; }

    /// What is left of the countdown, or how long the recording runs; 0 when there is none.
    int Seconds() const { return seconds; }

    /// Begins after a countdown; at once when it is 0 or less. Does nothing unless idle.
    void Start(int countdownSeconds);

    /// Ends the recording or its countdown.
    void Stop();

Q_SIGNALS:
    /// The state or the seconds are others.
    void Changed();

private:
    void Tick();
    void Set(State newState, int newSeconds);

    QTimer timer;
    State state = State::Idle;
    int seconds = 0;
};

} // namespace Zelkor::Recorder
