#include "io/ByteBuffer.h"

#include "model/LargeMemory.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vorlane {

ByteBuffer::ByteBuffer(std::string_view bytes)
{
    reserve(bytes.size());
    if (!bytes.empty())
        std::memcpy(m_data, bytes.data(), bytes.size());
    m_size = bytes.size();
}

ByteBuffer::ByteBuffer(ByteBuffer &&other) noexcept
    : m_data(std::exchange(other.m_data, nullptr))
    , m_size(std::exchange(other.m_size, 0))
    , m_capacity(std::exchange(other.m_capacity, 0))
{}

ByteBuffer &ByteBuffer::operator=(ByteBuffer &&other) noexcept
{
    if (this != &other) {
        freeLarge(m_data, m_capacity);
        m_data = std::exchange(other.m_data, nullptr);
        m_size = std::exchange(other.m_size, 0);
        m_capacity = std::exchange(other.m_capacity, 0);
    }
    return *this;
}

ByteBuffer::~ByteBuffer()
{
    freeLarge(m_data, m_capacity);
}

void ByteBuffer::reserve(std::size_t capacity)
{
    if (capacity <= m_capacity && m_data)
        return;
    // Everything the mapping holds is usable room.
    const std::size_t room = largeBlockSize(capacity);
    auto *data = static_cast<char *>(allocateLarge(room));
    if (m_size != 0)
        std::memcpy(data, m_data, m_size);
    freeLarge(m_data, m_capacity);
    m_data = data;
    m_capacity = room;
}

void ByteBuffer::append(std::string_view bytes)
{
    if (m_capacity - m_size < bytes.size())
        reserve(std::max(m_capacity * 2, m_size + bytes.size()));
    if (!bytes.empty())
        std::memcpy(m_data + m_size, bytes.data(), bytes.size());
    m_size += bytes.size();
}

} // namespace vorlane
