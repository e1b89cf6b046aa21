#pragma once

#include <Zelkor/HostExport.h>

#include <QObject>

#include <memory>

namespace Zelkor::StandIn {

/// Measures how loud something is, about thirty times a second.
///
/// A microphone is opened on a thread of the source's own, so nothing waits for it. Where there is none, a signal with
/// the loudness of speech takes its place. The source may be stopped or destroyed at any moment. GUI thread.
class VX_HOST_EXPORT AudioLevelSource : public QObject
{
    Q_OBJECT

public:
    enum class Input {
        Microphone, ///< the default one, else the signal
        TestSignal, ///< always the signal
    };

    /// What counts as silence; no peak is lower.
    static constexpr double SILENCE_DB = -100;

    explicit AudioLevelSource(Input input, QObject* parent = nullptr);
    ~AudioLevelSource() override;

    /// A source that is new does not run. One that runs is not started again.
    void Start();
    /// After this, no peak comes any more. The microphone is closed soon.
    void Stop();

    /// True when the last peak was one of the signal and not of a microphone.
    bool IsTestSignal() const;

Q_SIGNALS:
    /// The highest peak since the last one, in decibels of full scale, from `SILENCE_DB` to 0.
    void PeakMeasured(double decibels);

private:
    void EmitPeak();

    struct Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::StandIn
