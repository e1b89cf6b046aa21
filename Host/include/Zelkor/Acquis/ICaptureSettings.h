#pragma once

#include <Zelkor/IRefCountable.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Zelkor::Acquis {

/// An exact fraction, a frame rate for instance. A denominator that is not positive means "no value".
struct Rational
{
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;
};

/// Kinds of settings, as `ICaptureSettings::GetKind` gives them.
enum SettingsKind : unsigned {
    SETTINGS_KIND_VIDEO = 4,
};

/// One of the modes that a device can be captured in.
class VX_HOST_INTERFACE ICaptureSettings : public virtual IRefCountable
{
public:
    virtual unsigned GetKind() const = 0;

    /// True for settings that belong to no device and suit any.
    virtual bool IsGeneric() const = 0;

    /// Name by which a person or a configuration tells this mode from the others of the device; UTF-8.
    virtual std::string GetName() const = 0;
};

/// A mode that gives video.
class VX_HOST_INTERFACE IVideoCaptureSettings : public virtual ICaptureSettings
{
public:
    /// Replaces `rates` by the frame rates of this mode, in frames per second.
    virtual void GetFrameRates(std::vector<Rational>& rates) const = 0;

    /// Sets the rate for sessions that are started from now on.
    virtual void SetFrameRate(const Rational& rate) = 0;
};

} // namespace Zelkor::Acquis
