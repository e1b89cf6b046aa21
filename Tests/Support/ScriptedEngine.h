#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Support {

using namespace Zelkor;

/// A mode with the rates it is told to have, which remembers the rate it was set to.
class ScriptedMode : public RefCounted<Acquis::IVideoCaptureSettings>
{
public:
    ScriptedMode(std::string name, std::vector<Acquis::Rational> rates) : name(std::move(name)), rates(std::move(rates))
    {}

    unsigned GetKind() const override { return Acquis::SETTINGS_KIND_VIDEO; }
    bool IsGeneric() const override { return false; }
    std::string GetName() const override { return name; }
    void GetFrameRates(std::vector<Acquis::Rational>& list) const override { list = rates; }
    void SetFrameRate(const Acquis::Rational& rate) override { chosen = rate; }

    std::string name;
    std::vector<Acquis::Rational> rates;
    Acquis::Rational chosen{-1, 1};
};

class ScriptedDevice : public RefCounted<Acquis::ICaptureDevice>
{
public:
    void GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& list, unsigned) const override;

    std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>> modes;
    bool deniesItsModes = false; ///< lists them once, and then no more
    mutable int timesAsked = 0;
};

/// A device with one mode of one rate.
boost::intrusive_ptr<ScriptedDevice> OrdinaryDevice(int rate = 100);

/// Output and reader in one, which reads whatever the engine's script says.
class ScriptedReader : public RefCounted<Acquis::IFrameProvider, Acquis::ICaptureOutput, Acquis::IFrameReader>
{
public:
    using Read = std::function<boost::intrusive_ptr<Proc::IDataVideo>()>;

    explicit ScriptedReader(Read read) : read(std::move(read)) {}

    void CreateOutput(boost::intrusive_ptr<Acquis::ICaptureOutput>& output, const std::string& name, int) override;
    void SetTimeShift(const boost::intrusive_ptr<Acquis::TimeShift>& newShift) override { shift = newShift; }
    boost::intrusive_ptr<Acquis::IFrameReader> GetFrameReader() override { return this; }
    void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) override;

    std::function<void()> onOutput; ///< what happens when an output is asked for
    std::atomic<int> reads{0};
    std::string outputName;
    boost::intrusive_ptr<Acquis::TimeShift> shift;

private:
    Read read;
};

class ScriptedEngine;

/// A session that does what the engine's script says and reports what it is told to.
class ScriptedSession : public RefCounted<Acquis::ICaptureSession>
{
public:
    explicit ScriptedSession(ScriptedEngine& engine);
    ~ScriptedSession() override;

    void Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& newObserver) override;
    void Stop() override;
    void GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const override;

    // Reports on the calling thread, however late it may be.
    void ReportStarted(const boost::intrusive_ptr<ScriptedReader>& reader);
    void ReportError(int code);
    void ReportStopped();

private:
    std::shared_ptr<Acquis::ICaptureSessionObserver> Observer() const;

    ScriptedEngine& engine;
    mutable std::mutex mutex;
    std::shared_ptr<Acquis::ICaptureSessionObserver> observer;
};

/// A capture engine for faults. While it lives, it is the one that the library gets.
class ScriptedEngine
{
public:
    using Session = boost::intrusive_ptr<ScriptedSession>;

    ScriptedEngine();
    ~ScriptedEngine();

    /// Runs `work` on an engine thread, which is joined when the engine dies or `Join` is called.
    void OnThread(std::function<void()> work);
    void Join();

    // The script: what happens inside Start and Stop of a session. Start defaults to nothing, Stop to ReportStopped.
    std::function<void(const Session&)> onStart;
    std::function<void(const Session&)> onStop;
    bool refusesSessions = false;
    std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>> deviceSettings;

    std::atomic<int> created{0};
    std::atomic<int> alive{0};
    std::atomic<int> starts{0};
    std::atomic<int> stops{0};

private:
    class Factory;

    std::mutex mutex;
    std::vector<std::thread> threads;
};

} // namespace Support
