#include <StandIn/Frames/BufferPool.h>

#include <new>

namespace Zelkor::StandIn {

namespace {

constexpr std::align_val_t ALIGNMENT{64};

void Free(std::uint8_t* data) noexcept
{
    ::operator delete(data, ALIGNMENT);
}

} // namespace

std::shared_ptr<BufferPool> BufferPool::Create()
{
    return std::shared_ptr<BufferPool>(new BufferPool);
}

BufferPool::~BufferPool()
{
    FreeIdle();
}

std::shared_ptr<std::uint8_t> BufferPool::Take(std::size_t size)
{
    std::uint8_t* data = nullptr;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (size != bufferSize) {
            FreeIdle();
            bufferSize = size;
        }
        if (idleCount > 0)
            data = idle[--idleCount];
    }
    if (!data)
        data = static_cast<std::uint8_t*>(::operator new(size, ALIGNMENT));
    return std::shared_ptr<std::uint8_t>(
        data, [pool = shared_from_this(), size](std::uint8_t* returned) { pool->Return(returned, size); });
}

void BufferPool::Close() noexcept
{
    const std::lock_guard<std::mutex> lock(mutex);
    FreeIdle();
    bufferSize = 0;
}

void BufferPool::Return(std::uint8_t* data, std::size_t size) noexcept
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (size == bufferSize && idleCount < MAX_IDLE) {
            idle[idleCount++] = data;
            return;
        }
    }
    Free(data);
}

void BufferPool::FreeIdle() noexcept
{
    while (idleCount > 0)
        Free(idle[--idleCount]);
}

} // namespace Zelkor::StandIn
