#pragma once

#include <Zelkor/Acquis/ICaptureSession.h>

#include <atomic>
#include <memory>

namespace Zelkor::StandIn {

/// The settings of the test picture. Written by the dialog, read by the sources on their threads.
struct TestPictureSettings
{
    std::atomic<int> speedPercent{100};   ///< 0 to 400, default 100
    std::atomic<bool> showsCounter{true}; ///< default true
};

/// Creates the handle of the dialog that edits `settings`. At most one dialog is open at a time.
boost::intrusive_ptr<Acquis::IDeviceSettings>
CreateTestPictureDialog(const std::shared_ptr<TestPictureSettings>& settings);

} // namespace Zelkor::StandIn
