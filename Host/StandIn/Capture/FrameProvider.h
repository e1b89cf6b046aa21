#pragma once

#include <StandIn/Capture/LatestFrame.h>

#include <Zelkor/Acquis/IFrameProvider.h>

#include <memory>

namespace Zelkor::StandIn {

/// Creates a provider whose outputs read `latest`. It keeps neither the session nor the device alive.
boost::intrusive_ptr<Acquis::IFrameProvider> CreateFrameProvider(std::shared_ptr<const LatestFrame> latest);

} // namespace Zelkor::StandIn
