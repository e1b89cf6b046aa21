#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Support {

using namespace Zelkor;

/// A mode with the given rates, which records the rate that is set.
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

/// A device of no real engine, with scripted modes.
class ScriptedDevice : public RefCounted<Acquis::ICaptureDevice>
{
public:
    void GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& list, unsigned) const override;

    std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>> modes;
    bool deniesItsModes = false; ///< lists its modes on the first request only
    mutable int timesAsked = 0;
};

/// Creates a device with the mode "only" in one rate.
boost::intrusive_ptr<ScriptedDevice> OrdinaryDevice(int rate = 100);

/// A provider, output and reader in one, which reads the frames of the script.
class ScriptedReader : public RefCounted<Acquis::IFrameProvider, Acquis::ICaptureOutput, Acquis::IFrameReader>
{
public:
    using Read = std::function<boost::intrusive_ptr<Proc::IDataVideo>()>;

    explicit ScriptedReader(Read read) : read(std::move(read)) {}

    void CreateOutput(boost::intrusive_ptr<Acquis::ICaptureOutput>& output, const std::string& name, int) override;
    void SetTimeShift(const boost::intrusive_ptr<Acquis::TimeShift>& newShift) override { shift = newShift; }
    boost::intrusive_ptr<Acquis::IFrameReader> GetFrameReader() override { return this; }
    void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) override;

    std::function<void()> onOutput; ///< called when an output is requested
    std::atomic<int> reads{0};
    std::string outputName;
    boost::intrusive_ptr<Acquis::TimeShift> shift;

private:
    Read read;
};

class ScriptedEngine;

/// A session that follows the script of its engine.
class ScriptedSession : public RefCounted<Acquis::ICaptureSession>
{
public:
    explicit ScriptedSession(ScriptedEngine& engine);
    ~ScriptedSession() override;

    void Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& newObserver) override;
    void Stop() override;
    void GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const override;

    // Call the last observer on the calling thread, even after the session has ended.
    void ReportStarted(const boost::intrusive_ptr<ScriptedReader>& reader);
    void ReportError(int code);
    void ReportStopped();

private:
    std::shared_ptr<Acquis::ICaptureSessionObserver> Observer() const;

    ScriptedEngine& engine;
    mutable std::mutex mutex;
    std::shared_ptr<Acquis::ICaptureSessionObserver> observer;
};

/// Replaces the capture engine during its lifetime, to simulate faults.
class ScriptedEngine
{
public:
    using Session = boost::intrusive_ptr<ScriptedSession>;

    ScriptedEngine();
    ~ScriptedEngine();

    /// Runs `work` on an engine thread, which `Join` and the destructor join.
    void OnThread(std::function<void()> work);
    void Join();

    // Called in Start and Stop of a session. By default Start does nothing and Stop calls ReportStopped.
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
