#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

namespace Zelkor::Recorder {

/// A simulated recording: a countdown, then the elapsed time. Writes no file.
///
/// GUI thread.
class Recording : public QObject
{
    Q_OBJECT

public:
    enum class State { Idle, CountingDown, Running };

    /// `second` is the length of a second, which tests shorten.
    explicit Recording(QObject* parent = nullptr, std::chrono::milliseconds second = std::chrono::seconds(1));

    State GetState() const { return state; }

    /// The remaining seconds of the countdown or the elapsed ones of the recording; 0 when idle.
    int Seconds() const { return seconds; }

    /// Starts recording after a countdown, at once if that is 0 or less. Does nothing unless idle.
    void Start(int countdownSeconds);

    /// Stops the recording or its countdown.
    void Stop();

Q_SIGNALS:
    /// Emitted when the state or the seconds change.
    void Changed();

private:
    void Tick();
    void Set(State newState, int newSeconds);

    QTimer timer;
    State state = State::Idle;
    int seconds = 0;
};

} // namespace Zelkor::Recorder
