#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorlane {

// Measures what EngineLine would write, from above: the same calls, adding up the most bytes
// each item can take, so that one buffer of that size holds the whole file.
class EngineLineSize
{
public:
    static constexpr bool writes = false;

    // Separator, sign position and five digits, or ten beyond the 16-bit range. A short
    // number may store up to three bytes past its digits, which the next item overwrites.
    EngineLineSize &number(int32_t value)
    {
        return add(value >= -32768 && value <= 32767 ? 7 : 12);
    }
    // Windows-1252 never needs more bytes than the UTF-8 text it comes from.
    EngineLineSize &text(std::string_view utf8) { return add(1 + utf8.size()); }
    EngineLineSize &starred(std::string_view utf8) { return add(3 + utf8.size()); }
    EngineLineSize &joint() { return *this; }
    void endStarred(std::string_view utf8) { add(4 + utf8.size()); }
    void end() { add(2); }
    void numberLine(int32_t value)
    {
        number(value);
        end();
    }
    void countLine(std::size_t) { add(14); }
    // Room for `count` lines holding one 16-bit number each.
    void numberLines(std::size_t count) { add(count * 9); }

    std::size_t size() const { return m_size; }

private:
    EngineLineSize &add(std::size_t bytes)
    {
        m_size += bytes;
        return *this;
    }

    std::size_t m_size = 0;
};

} // namespace vorlane
