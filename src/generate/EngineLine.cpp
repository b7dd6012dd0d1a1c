#include "generate/EngineLine.h"

#include "model/Cp1252.h"

#include <charconv>
#include <cstring>
#include <string>

namespace vorlane {

void EngineLine::put(std::string_view utf8)
{
    // Plain ASCII is by far the common case and needs no conversion.
    for (const char c : utf8) {
        if (static_cast<unsigned char>(c) >= 0x80) {
            // One scratch buffer per thread, so converting allocates only when it grows.
            static thread_local std::string converted;
            converted.clear();
            appendCp1252(converted, utf8);
            std::memcpy(m_pos, converted.data(), converted.size());
            m_pos += converted.size();
            return;
        }
    }
    if (!utf8.empty())
        std::memcpy(m_pos, utf8.data(), utf8.size());
    m_pos += utf8.size();
}

EngineLine &EngineLine::number(int32_t value)
{
    separate();
    if (value >= 0)
        *m_pos++ = ' ';
    // to_chars writes the minus sign itself, in the place of the blank.
    m_pos = std::to_chars(m_pos, m_pos + 11, value).ptr;
    return *this;
}

EngineLine &EngineLine::text(std::string_view utf8)
{
    separate();
    put(utf8);
    return *this;
}

EngineLine &EngineLine::starred(std::string_view utf8)
{
    separate();
    put(utf8);
    *m_pos++ = '*';
    *m_pos++ = ' ';
    m_separate = false;
    return *this;
}

void EngineLine::endStarred(std::string_view utf8)
{
    separate();
    put(utf8);
    *m_pos++ = '*';
    end();
}

void EngineLine::countLine(std::size_t count)
{
    if (count == 0)
        *m_pos++ = '0';
    else
        number(static_cast<int32_t>(count));
    end();
}

} // namespace vorlane
