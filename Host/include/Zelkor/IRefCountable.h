#pragma once

#include <Zelkor/HostExport.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <atomic>

namespace Zelkor {

/// Base class of all objects of the media core and the capture engine.
///
/// The objects count their references atomically and are held by `boost::intrusive_ptr`. A new object has no
/// references. Releasing the last reference destroys the object on the calling thread.
class VX_HOST_INTERFACE IRefCountable
{
public:
    virtual void AddRef() const noexcept = 0;
    /// Destroys the object when this was the last reference.
    virtual void Release() const noexcept = 0;
    /// The number of references now; another thread may change it at any time.
    virtual int GetRefCount() const noexcept = 0;

protected:
    virtual ~IRefCountable() = default;
};

inline void intrusive_ptr_add_ref(const IRefCountable* object) noexcept
{
    object->AddRef();
}

inline void intrusive_ptr_release(const IRefCountable* object) noexcept
{
    object->Release();
}

/// Implements reference counting for a class that derives from the given interfaces.
template<class... Interfaces>
class RefCounted : public virtual Interfaces...
{
public:
    void AddRef() const noexcept final { count.fetch_add(1, std::memory_order_relaxed); }

    void Release() const noexcept final
    {
        if (count.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

    int GetRefCount() const noexcept final { return count.load(std::memory_order_relaxed); }

protected:
    RefCounted() = default;
    RefCounted(const RefCounted&) = delete;
    RefCounted& operator=(const RefCounted&) = delete;

private:
    mutable std::atomic<int> count{0};
};

} // namespace Zelkor
