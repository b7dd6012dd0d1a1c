#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlane {

// A growable run of bytes in large memory (model/LargeMemory.h). Unlike std::string it never clears
// the room it makes: every byte is written once, by whoever fills it.
class ByteBuffer
{
public:
    ByteBuffer() = default;
    explicit ByteBuffer(std::string_view bytes);
    ByteBuffer(ByteBuffer &&other) noexcept;
    ByteBuffer &operator=(ByteBuffer &&other) noexcept;
    ByteBuffer(const ByteBuffer &) = delete;
    ByteBuffer &operator=(const ByteBuffer &) = delete;
    ~ByteBuffer();

    char *data() { return m_data; }
    const char *data() const { return m_data; }
    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    std::size_t capacity() const { return m_capacity; }
    std::string_view view() const { return {m_data, m_size}; }
    operator std::string_view() const { return view(); }
    std::string str() const { return std::string(view()); }

    // Makes room for at least `capacity` bytes in all, keeping the bytes up to size().
    void reserve(std::size_t capacity);
    // Sets the size to `size`, which must not exceed capacity(); bytes beyond the old size
    // hold whatever was written there.
    void setSize(std::size_t size) { m_size = size; }
    void clear() { m_size = 0; }
    // Adds `bytes` at the end, making room as needed.
    void append(std::string_view bytes);

    friend bool operator==(const ByteBuffer &a, std::string_view b) { return a.view() == b; }

private:
    char *m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace vorlane
