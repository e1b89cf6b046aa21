#include <UI/Widgets/PreviewCapture.h>

#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/ImplNames.h>

namespace Zelkor::Vx::PreviewCapture {

namespace {

class NoTimeShift : public Acquis::TimeShift
{
public:
    std::int64_t MapTime(std::int64_t time) const override { return time; }
};

} // namespace

boost::intrusive_ptr<Acquis::ICaptureSession>
CreateSession(Acquis::ICaptureFactory& factory, const boost::intrusive_ptr<Acquis::ICaptureDevice>& device,
              const boost::intrusive_ptr<Acquis::IVideoCaptureSettings>& settings)
{
    boost::intrusive_ptr<Acquis::ICaptureSession> session;
    if (!device || !settings)
        return session;
    using Unit = Acquis::CaptureSessionInitializer::Unit;
    const Acquis::CaptureSessionInitializer initializer(
        {Unit(device, settings)}, Core::CoreManager::Instance().GetEffectFactory(), nullptr, Proc::PixFmt::None);
    factory.CreateSession(session, initializer, Proc::ImplNames::DEFAULT);
    return session;
}

boost::intrusive_ptr<Acquis::ICaptureOutput> CreateOutput(Acquis::IFrameProvider& provider)
{
    boost::intrusive_ptr<Acquis::ICaptureOutput> output;
    provider.CreateOutput(output, "WebCameraPreview", 0);
    if (output)
        output->SetTimeShift(new NoTimeShift);
    return output;
}

} // namespace Zelkor::Vx::PreviewCapture
