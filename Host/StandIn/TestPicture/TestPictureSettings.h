#pragma once

#include <Zelkor/Acquis/ICaptureSession.h>

#include <atomic>
#include <memory>

namespace Zelkor::StandIn {

/// How the test picture moves. The dialog writes, the sources read.
struct TestPictureSettings
{
    std::atomic<int> speedPercent{100};
    std::atomic<bool> showsCounter{true};
};

/// The dialog that changes `settings`. At most one is open at a time.
boost::intrusive_ptr<Acquis::IDeviceSettings>
CreateTestPictureDialog(const std::shared_ptr<TestPictureSettings>& settings);

} // namespace Zelkor::StandIn
