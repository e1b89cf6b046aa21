#pragma once

#include <Zelkor/Proc/IDataVideo.h>

namespace Zelkor::Proc {

/// What an effect can be told; each effect accepts its own kind.
class VX_HOST_INTERFACE IEffectSettings
{
public:
    virtual ~IEffectSettings() = default;
};

/// A step that turns one frame into another. An effect serves one thread at a time, not always the same one.
class VX_HOST_INTERFACE IEffect : public virtual IRefCountable
{
public:
    /// Replaces `frame` by the processed one. A frame that the effect cannot read (null, unknown format, planes too
    /// small) is replaced by null; the host logs the first of a row of such frames.
    virtual void Process(boost::intrusive_ptr<IDataVideo>& frame) = 0;

    /// Takes a copy of `settings` for the frames to come. Settings of another kind of effect are logged and ignored.
    virtual void ApplySettings(const IEffectSettings& settings) = 0;
};

} // namespace Zelkor::Proc
