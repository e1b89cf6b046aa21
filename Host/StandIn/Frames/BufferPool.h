#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

namespace Zelkor::StandIn {

/// Memory for pictures of one size at a time, which is used again when its last reader lets go.
///
/// Buffers may come back on any thread and long after the pool's user is gone: each keeps the pool alive. Few idle
/// buffers are kept, none of another size than was asked for last, and none once the pool is closed.
class BufferPool : public std::enable_shared_from_this<BufferPool>
{
public:
    static std::shared_ptr<BufferPool> Create();
    ~BufferPool();

    /// `size` bytes, aligned to 64, whose contents are left over from whatever. Throws `std::bad_alloc`.
    std::shared_ptr<std::uint8_t> Take(std::size_t size);

    /// Frees what is idle now, and from now on what comes back.
    void Close() noexcept;

private:
    // A reader each for the picture that shows, the one that waits and the one that is computed.
    static constexpr std::size_t MAX_IDLE = 3;

    BufferPool() = default;

    void Return(std::uint8_t* data, std::size_t size) noexcept;
    void FreeIdle() noexcept;

    std::mutex mutex;
    std::array<std::uint8_t*, MAX_IDLE> idle{};
    std::size_t idleCount = 0;
    std::size_t bufferSize = 0; ///< of the idle buffers; 0 in a closed pool, to which no buffer belongs
};

} // namespace Zelkor::StandIn
