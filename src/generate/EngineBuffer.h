#pragma once

#include "project/LargeBuffer.h"

#include <cstddef>
#include <memory>

namespace vorlane {

// The bytes of one engine file while it is being written. New room is not cleared first, and
// the room of a file is kept for the next one, so every byte is written once.
class EngineBuffer
{
public:
    // Room for at least `size` bytes; what the buffer held before is not kept.
    char *room(std::size_t size)
    {
        if (size > m_capacity) {
            m_data = std::make_unique_for_overwrite<char[]>(size);
            adviseLargeBuffer(m_data.get(), size);
            m_capacity = size;
        }
        return m_data.get();
    }

private:
    std::unique_ptr<char[]> m_data;
    std::size_t m_capacity = 0;
};

} // namespace vorlane
