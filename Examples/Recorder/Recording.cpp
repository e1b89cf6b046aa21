#include "Recording.h"

namespace Zelkor::Recorder {

Recording::Recording(QObject* parent, std::chrono::milliseconds second) : QObject(parent)
{
    timer.setInterval(second);
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &Recording::Tick);
}

void Recording::Start(int countdownSeconds)
{
    if (state != State::Idle)
        return;
    timer.start();
    Set(countdownSeconds > 0 ? State::CountingDown : State::Running, qMax(0, countdownSeconds));
}

void Recording::Stop()
{
    if (state == State::Idle)
        return;
    timer.stop();
    Set(State::Idle, 0);
}

void Recording::Tick()
{
    if (state == State::Running)
        Set(State::Running, seconds + 1);
    else if (seconds > 1)
        Set(State::CountingDown, seconds - 1);
    else
        Set(State::Running, 0);
}

void Recording::Set(State newState, int newSeconds)
{
    state = newState;
    seconds = newSeconds;
    Q_EMIT Changed();
}

} // namespace Zelkor::Recorder
