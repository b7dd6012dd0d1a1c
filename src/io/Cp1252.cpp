#include "io/Cp1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vorlane {

namespace {

// Unicode code points of the bytes 0x80..0x9F; the five unassigned bytes map to themselves.
constexpr std::array<char32_t, 32> High{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char byte)
{
    if (byte >= 0x80 && byte <= 0x9F)
        return High[byte - 0x80];
    return byte;
}

int byteOf(char32_t cp)
{
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
        return static_cast<int>(cp);
    for (size_t i = 0; i < High.size(); ++i)
        if (High[i] == cp)
            return static_cast<int>(0x80 + i);
    return '?';
}

void appendCodePoint(std::string &out, char32_t cp)
{
    if (cp < 0x80) {
        out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

// One character of UTF-8 text: its code point and length in bytes; a malformed sequence
// (a stray or truncated byte, an overlong form, a surrogate, a code point past U+10FFFF) is
// one invalid byte.
struct Decoded
{
    char32_t cp = 0;
    size_t length = 1;
    bool valid = false;
};

Decoded decodeUtf8(std::string_view utf8, size_t i)
{
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80)
        return {lead, 1, true};
    size_t length = 0;
    char32_t cp = 0;
    char32_t least = 0;
    if ((lead & 0xE0) == 0xC0) {
        length = 2;
        cp = lead & 0x1F;
        least = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        cp = lead & 0x0F;
        least = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        cp = lead & 0x07;
        least = 0x10000;
    }
    if (length == 0 || i + length > utf8.size())
        return {};
    for (size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(utf8[i + k]);
        if ((next & 0xC0) != 0x80)
            return {};
        cp = (cp << 6) | (next & 0x3F);
    }
    if (cp < least || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        return {};
    return {cp, length, true};
}

} // namespace

void appendCp1252(std::string &out, std::string_view utf8)
{
    size_t i = 0;
    while (i < utf8.size()) {
        const Decoded next = decodeUtf8(utf8, i);
        out.push_back(next.valid ? static_cast<char>(byteOf(next.cp)) : '?');
        i += next.length;
    }
}

bool fitsCp1252(std::string_view utf8)
{
    size_t i = 0;
    while (i < utf8.size()) {
        if (static_cast<unsigned char>(utf8[i]) < 0x80) {
            ++i;
            continue;
        }
        const Decoded next = decodeUtf8(utf8, i);
        if (next.valid && byteOf(next.cp) == '?')
            return false;
        i += next.length;
    }
    return true;
}

std::vector<std::string> charactersOutsideCp1252(std::string_view utf8)
{
    std::vector<std::string> found;
    size_t i = 0;
    while (i < utf8.size()) {
        const Decoded next = decodeUtf8(utf8, i);
        if (next.valid && next.cp >= 0x80 && byteOf(next.cp) == '?') {
            std::string character(utf8.substr(i, next.length));
            if (std::find(found.begin(), found.end(), character) == found.end())
                found.push_back(std::move(character));
        }
        i += next.length;
    }
    return found;
}

void appendCleanUtf8(std::string &out, std::string_view utf8)
{
    size_t i = 0;
    while (i < utf8.size()) {
        const Decoded next = decodeUtf8(utf8, i);
        if (next.valid)
            out.append(utf8.substr(i, next.length));
        else
            out.push_back('?');
        i += next.length;
    }
}

void appendUtf8(std::string &out, std::string_view bytes)
{
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80)
            out.push_back(c);
        else
            appendCodePoint(out, codePointOf(byte));
    }
}

std::string toCp1252(std::string_view utf8)
{
    std::string out;
    out.reserve(utf8.size());
    appendCp1252(out, utf8);
    return out;
}

std::string toUtf8(std::string_view cp1252)
{
    std::string out;
    out.reserve(cp1252.size());
    appendUtf8(out, cp1252);
    return out;
}

} // namespace vorlane
