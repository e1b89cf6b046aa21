#include <Support/ScriptedEngine.h>

#include <Zelkor/StandIn/CaptureEngine.h>

namespace Support {

void ScriptedDevice::GetSettings(std::vector<boost::intrusive_ptr<Acquis::ICaptureSettings>>& list, unsigned) const
{
    list.clear();
    if (timesAsked++ == 0 || !deniesItsModes)
        list = modes;
}

boost::intrusive_ptr<ScriptedDevice> OrdinaryDevice(int rate)
{
    boost::intrusive_ptr<ScriptedDevice> device(new ScriptedDevice);
    device->modes.emplace_back(new ScriptedMode("only", {{rate, 1}}));
    return device;
}

void ScriptedReader::CreateOutput(boost::intrusive_ptr<Acquis::ICaptureOutput>& output, const std::string& name, int)
{
    if (onOutput)
        onOutput();
    outputName = name;
    output = this;
}

void ScriptedReader::ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame)
{
    ++reads;
    frame = read ? read() : nullptr;
}

ScriptedSession::ScriptedSession(ScriptedEngine& engine) : engine(engine)
{
    ++engine.created;
    ++engine.alive;
}

ScriptedSession::~ScriptedSession()
{
    --engine.alive;
}

void ScriptedSession::Start(const std::shared_ptr<Acquis::ICaptureSessionObserver>& newObserver)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        observer = newObserver;
    }
    ++engine.starts;
    if (engine.onStart)
        engine.onStart(this);
}

void ScriptedSession::Stop()
{
    ++engine.stops;
    if (engine.onStop)
        engine.onStop(this);
    else
        ReportStopped();
}

void ScriptedSession::GetDeviceSettings(std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>>& handles) const
{
    handles = engine.deviceSettings;
}

void ScriptedSession::ReportStarted(const boost::intrusive_ptr<ScriptedReader>& reader)
{
    if (const auto current = Observer())
        current->handleStarted(*this, 0, reader);
}

void ScriptedSession::ReportError(int code)
{
    if (const auto current = Observer())
        current->handleError(*this, code);
}

void ScriptedSession::ReportStopped()
{
    if (const auto current = Observer())
        current->handleStopped();
}

std::shared_ptr<Acquis::ICaptureSessionObserver> ScriptedSession::Observer() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return observer;
}

class ScriptedEngine::Factory : public RefCounted<Acquis::ICaptureFactory>
{
public:
    explicit Factory(ScriptedEngine& engine) : engine(engine) {}

    void CreateSession(boost::intrusive_ptr<Acquis::ICaptureSession>& session, const Acquis::CaptureSessionInitializer&,
                       const std::string&) override
    {
        session = engine.refusesSessions ? nullptr : new ScriptedSession(engine);
    }

private:
    ScriptedEngine& engine;
};

ScriptedEngine::ScriptedEngine()
{
    StandIn::OverrideCaptureFactory(new Factory(*this));
}

ScriptedEngine::~ScriptedEngine()
{
    Join();
    StandIn::OverrideCaptureFactory(nullptr);
}

void ScriptedEngine::OnThread(std::function<void()> work)
{
    const std::lock_guard<std::mutex> lock(mutex);
    threads.emplace_back(std::move(work));
}

void ScriptedEngine::Join()
{
    std::vector<std::thread> joined;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        joined.swap(threads);
    }
    for (std::thread& thread : joined)
        thread.join();
}

} // namespace Support
