#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

namespace Zelkor::StandIn {

/// Recycles picture buffers of one size.
///
/// A buffer returns to the pool when its last owner releases it, on any thread and even after the user of the pool is
/// destroyed: each buffer keeps the pool alive. The pool keeps up to MAX_IDLE idle buffers of the size that was
/// requested last.
class BufferPool : public std::enable_shared_from_this<BufferPool>
{
public:
    static std::shared_ptr<BufferPool> Create();
    ~BufferPool();

    /// Returns `size` uninitialized bytes, aligned to 64. Throws `std::bad_alloc`.
    std::shared_ptr<std::uint8_t> Take(std::size_t size);

    /// Frees the idle buffers, and from now on all that are returned.
    void Close() noexcept;

private:
    // For the picture that is shown, the one that is next and the one that is converted.
    static constexpr std::size_t MAX_IDLE = 3;

    BufferPool() = default;

    void Return(std::uint8_t* data, std::size_t size) noexcept;
    void FreeIdle() noexcept;

    std::mutex mutex;
    std::array<std::uint8_t*, MAX_IDLE> idle{};
    std::size_t idleCount = 0;
    std::size_t bufferSize = 0; ///< of the idle buffers; 0 in a closed pool
};

} // namespace Zelkor::StandIn
