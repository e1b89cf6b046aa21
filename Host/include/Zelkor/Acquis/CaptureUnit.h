#pragma once

#include <Zelkor/Acquis/ICaptureDevice.h>

#include <boost/exception/info.hpp>

#include <algorithm>
#include <stdexcept>

namespace Zelkor::Acquis {

/// A device together with the settings to capture it with.
template<class Device, class Settings>
class CaptureUnit
{
public:
    /// Either pointer may be null. Throws `std::logic_error` when both are set and the settings are neither generic nor
    /// among those of the device.
    CaptureUnit(const boost::intrusive_ptr<Device>& device, const boost::intrusive_ptr<Settings>& settings)
        : device(device), settings(settings)
    {
        if (device && settings && !AreCompatible(*device, *settings))
            throw boost::enable_error_info(std::logic_error("Incompatible device and settings"))
                << boost::throw_function(__func__) << boost::throw_file(__FILE__) << boost::throw_line(__LINE__);
    }

    const boost::intrusive_ptr<Device>& GetDevice() const { return device; }
    const boost::intrusive_ptr<Settings>& GetSettings() const { return settings; }

private:
    static bool AreCompatible(const Device& device, const Settings& settings)
    {
        if (settings.IsGeneric())
            return true;
        std::vector<boost::intrusive_ptr<ICaptureSettings>> own;
        device.GetSettings(own, settings.GetKind());
        return std::any_of(own.begin(), own.end(), [&](const auto& entry) { return entry.get() == &settings; });
    }

    boost::intrusive_ptr<Device> device;
    boost::intrusive_ptr<Settings> settings;
};

} // namespace Zelkor::Acquis
