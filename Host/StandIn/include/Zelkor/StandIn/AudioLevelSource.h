#pragma once

#include <Zelkor/HostExport.h>

#include <QObject>

#include <memory>

namespace Zelkor::StandIn {

/// Measures the audio level of the microphone about thirty times a second.
///
/// The microphone is opened on a worker thread, so no call blocks. A generated signal with the dynamics of speech
/// replaces a microphone that is missing or fails. The source can be stopped or destroyed at any time. GUI thread only.
class VX_HOST_EXPORT AudioLevelSource : public QObject
{
    Q_OBJECT

public:
    /// What is measured.
    enum class Input {
        Microphone, ///< the default microphone, or the generated signal when there is none
        TestSignal, ///< the generated signal
    };

    /// The lowest peak, in decibels relative to full scale.
    static constexpr double SILENCE_DB = -100;

    explicit AudioLevelSource(Input input, QObject* parent = nullptr);
    ~AudioLevelSource() override;

    /// Starts to measure. A new source is stopped. Does nothing while the source runs.
    void Start();
    /// Stops at once: no peak is emitted afterwards. The microphone is closed in the background.
    void Stop();

    /// Returns true when the last peak was one of the generated signal. False before the first peak.
    bool IsTestSignal() const;

Q_SIGNALS:
    /// Emitted with the highest peak since the last emission, in decibels relative to full scale, from `SILENCE_DB` to
    /// 0.
    void PeakMeasured(double decibels);

private:
    void EmitPeak();

    struct Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::StandIn
