#pragma once

#include <Zelkor/IRefCountable.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Zelkor::Acquis {

/// An exact fraction, for example a frame rate. A denominator of 0 or less means "no value".
struct Rational
{
    std::int64_t numerator = 0;   ///< default 0
    std::int64_t denominator = 1; ///< default 1
};

/// Kinds of settings, as returned by `ICaptureSettings::GetKind`.
enum SettingsKind : unsigned {
    SETTINGS_KIND_VIDEO = 4, ///< the settings are an `IVideoCaptureSettings`
};

/// A mode of a capture device.
class VX_HOST_INTERFACE ICaptureSettings : public virtual IRefCountable
{
public:
    /// One of `SettingsKind`.
    virtual unsigned GetKind() const = 0;

    /// Returns true for settings that belong to no device and fit every device.
    virtual bool IsGeneric() const = 0;

    /// The name that identifies this mode among those of the device, in UTF-8. Shown to the user and stored in
    /// settings.
    virtual std::string GetName() const = 0;
};

/// A mode that captures video.
class VX_HOST_INTERFACE IVideoCaptureSettings : public virtual ICaptureSettings
{
public:
    /// Replaces `rates` with the frame rates of this mode, in frames per second.
    virtual void GetFrameRates(std::vector<Rational>& rates) const = 0;

    /// Sets the frame rate of sessions that start from now on.
    virtual void SetFrameRate(const Rational& rate) = 0;
};

} // namespace Zelkor::Acquis
