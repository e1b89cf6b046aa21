#pragma once

#include <Zelkor/Acquis/CaptureFactory.h>
#include <Zelkor/StandIn/CaptureDevice.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <vector>

namespace Support {

using namespace Zelkor;

/// A device of no real engine, with scripted modes.
class ScriptedDevice : public RefCounted<Acquis::ICaptureDevice>
{
public:
    void GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& list, unsigned) const override
    {
        list.clear();
        if (timesAsked++ == 0 || !deniesItsModes)
            list = modes;
    }

    std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>> modes;
    bool deniesItsModes = false; ///< lists its modes on the first request only
    mutable int timesAsked = 0;
};

/// Creates a device with the mode "only" in one rate.
inline boost::intrusive_ptr<ScriptedDevice> OrdinaryDevice(int rate = 100)
{
    boost::intrusive_ptr<ScriptedDevice> device(new ScriptedDevice);
    device->modes.emplace_back(new StandIn::VideoMode("only", {}, {{rate, 1}}));
    return device;
}

/// A provider, output and reader in one, which reads the frames of the script.
class ScriptedReader : public RefCounted<Acquis::IFrameProvider, Acquis::ICaptureOutput, Acquis::IFrameReader>
{
public:
    explicit ScriptedReader(std::function<boost::intrusive_ptr<Proc::IDataVideo>()> read) : read(std::move(read)) {}

    void CreateOutput(boost::intrusive_ptr<Acquis::ICaptureOutput>& output, const std::string& name, int) override
    {
        onOutput();
        outputName = name;
        output = this;
    }

    void SetTimeShift(const boost::intrusive_ptr<Acquis::TimeShift>& newShift) override { shift = newShift; }
    boost::intrusive_ptr<Acquis::IFrameReader> GetFrameReader() override { return this; }
    void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) override
    {
        ++reads;
        frame = read();
    }

    const std::function<boost::intrusive_ptr<Proc::IDataVideo>()> read;
    std::function<void()> onOutput = [] {}; ///< called when an output is requested
    std::atomic<int> reads{0};
    std::string outputName;
    boost::intrusive_ptr<Acquis::TimeShift> shift;
};

class ScriptedSession;

/// Replaces the capture engine during its lifetime, to simulate faults.
class ScriptedEngine
{
public:
    using Session = boost::intrusive_ptr<ScriptedSession>;

    ScriptedEngine() { StandIn::OverrideCaptureFactory(new Factory(*this)); }
    ~ScriptedEngine()
    {
        Join();
        StandIn::OverrideCaptureFactory(nullptr);
    }

    /// Runs `work` on an engine thread, which `Join` and the destructor wait for.
    void OnThread(std::function<void()> work)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        running.push_back(std::async(std::launch::async, std::move(work)));
    }

    void Join()
    {
        std::vector<std::future<void>> joined; // destroyed after the mutex is unlocked
        const std::lock_guard<std::mutex> lock(mutex);
        joined.swap(running);
    }

    // Called in Start and Stop of a session. By default Start does nothing and Stop calls ReportStopped.
    std::function<void(const Session&)> onStart = [](auto&) {};
    std::function<void(const Session&)> onStop;
    bool refusesSessions = false;
    std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>> deviceSettings;

    std::atomic<int> alive{0};
    std::atomic<int> starts{0};

private:
    struct Factory : RefCounted<Acquis::ICaptureFactory>
    {
        explicit Factory(ScriptedEngine& engine) : engine(engine) {}
        void CreateSession(boost::intrusive_ptr<Acquis::ICaptureSession>& session,
                           const Acquis::CaptureSessionInitializer&, const std::string&) override;
        ScriptedEngine& engine;
    };

    std::mutex mutex;
    std::vector<std::future<void>> running; ///< wait when they are destroyed
};

/// A session that follows the script of its engine.
class ScriptedSession : public RefCounted<Acquis::ICaptureSession>
{
public:
    explicit ScriptedSession(ScriptedEngine& engine) : engine(engine) { ++engine.alive; }
    ~ScriptedSession() override { --engine.alive; }

    void Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& newObserver) override
    {
        std::atomic_store(&observer, newObserver);
        ++engine.starts;
        engine.onStart(this);
    }

    void Stop() override
    {
        if (engine.onStop)
            engine.onStop(this);
        else if (std::atomic_load(&observer)) // it may not have been started yet
            ReportStopped();
    }

    void GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const override
    {
        handles = engine.deviceSettings;
    }

    // Call the last observer on the calling thread, even after the session has ended.
    void ReportError(int code) { std::atomic_load(&observer)->handleError(*this, code); }
    void ReportStopped() { std::atomic_load(&observer)->handleStopped(); }
    void ReportStarted(const boost::intrusive_ptr<ScriptedReader>& reader)
    {
        std::atomic_load(&observer)->handleStarted(*this, 0, reader);
    }

private:
    ScriptedEngine& engine;
    std::shared_ptr<Acquis::ICaptureSessionObserver> observer;
};

inline void ScriptedEngine::Factory::CreateSession(boost::intrusive_ptr<Acquis::ICaptureSession>& session,
                                                   const Acquis::CaptureSessionInitializer&, const std::string&)
{
    session = engine.refusesSessions ? nullptr : new ScriptedSession(engine);
}

} // namespace Support
