#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace vorlane {

// Writes the lines of an engine file into a buffer that EngineLineSize has measured. Items
// are joined by one blank; a number carries its own sign position (a blank, or "-"), so two
// positive numbers stand two blanks apart. Texts are converted to Windows-1252 and every line
// ends with CR LF. Everything but the conversion of non-ASCII text is inline: the writers
// call it for every field of up to some hundred thousand lines.
class EngineLine
{
public:
    // The digits of 0 to 9999, left-aligned in four bytes, and their count.
    struct SmallNumber
    {
        char text[4];
        uint32_t length;
    };
    static constexpr uint32_t SmallNumbers = 10000;
    static const std::array<SmallNumber, SmallNumbers> SmallNumberTable;

    explicit EngineLine(char *out)
        : m_pos(out)
    {}

    static constexpr bool writes = true;

    // A number in the engine's signed-decimal form.
    EngineLine &number(int32_t value)
    {
        char *p = startItem();
        // The sign position: a blank, or the minus sign.
        *p++ = value < 0 ? '-' : ' ';
        const uint32_t magnitude =
            value < 0 ? 0u - static_cast<uint32_t>(value) : static_cast<uint32_t>(value);
        if (magnitude < SmallNumbers) {
            // Nearly every number written: four bytes copied, as many kept as there are digits.
            const SmallNumber &digits = SmallNumberTable[magnitude];
            std::memcpy(p, digits.text, 4);
            m_pos = p + digits.length;
        } else {
            m_pos = std::to_chars(p, p + 10, magnitude).ptr;
        }
        return *this;
    }
    // A whole line holding `value` alone, in the number form; at the start of a line. The
    // same as number(value).end() in one step: sprite.dat holds a line like this per frame.
    void numberLine(int32_t value)
    {
        char *p = m_pos;
        *p++ = value < 0 ? '-' : ' ';
        const uint32_t magnitude =
            value < 0 ? 0u - static_cast<uint32_t>(value) : static_cast<uint32_t>(value);
        if (magnitude < SmallNumbers) {
            const SmallNumber &digits = SmallNumberTable[magnitude];
            std::memcpy(p, digits.text, 4);
            p += digits.length;
        } else {
            p = std::to_chars(p, p + 10, magnitude).ptr;
        }
        p[0] = '\r';
        p[1] = '\n';
        m_pos = p + 2;
    }
    // A text as it stands, without quotes or escaping.
    EngineLine &text(std::string_view utf8)
    {
        put(startItem(), utf8);
        return *this;
    }
    // A text closed by "* "; the next item follows it without a separator.
    EngineLine &starred(std::string_view utf8)
    {
        text(utf8);
        append('*', ' ');
        m_separate = false;
        return *this;
    }
    // The next number follows with only its own leading blank (the joints of text.dat).
    EngineLine &joint()
    {
        m_separate = false;
        return *this;
    }
    // Ends the line with a text closed by "*".
    void endStarred(std::string_view utf8)
    {
        text(utf8);
        *m_pos++ = '*';
        end();
    }
    // Ends the line.
    void end()
    {
        append('\r', '\n');
        m_separate = false;
    }
    // The count line of an object file: a bare "0" for an empty list, else the number form.
    void countLine(std::size_t count)
    {
        if (count == 0)
            *m_pos++ = '0';
        else
            number(static_cast<int32_t>(count));
        end();
    }

    // Where the next byte goes.
    char *position() const { return m_pos; }

private:
    // Where the next item goes, after its separator. The writers work on a local pointer and
    // store it back once: a store through a char pointer may alias the members, so the
    // compiler would otherwise reload them after every byte.
    char *startItem()
    {
        char *p = m_pos;
        if (m_separate)
            *p++ = ' ';
        m_separate = true;
        return p;
    }
    void append(char first, char second)
    {
        char *p = m_pos;
        p[0] = first;
        p[1] = second;
        m_pos = p + 2;
    }
    void put(char *p, std::string_view utf8)
    {
        // Plain ASCII is by far the common case and needs no conversion.
        for (const char c : utf8) {
            if (static_cast<unsigned char>(c) >= 0x80) {
                m_pos = putConverted(p, utf8);
                return;
            }
        }
        if (!utf8.empty())
            std::memcpy(p, utf8.data(), utf8.size());
        m_pos = p + utf8.size();
    }
    static char *putConverted(char *p, std::string_view utf8);

    char *m_pos;
    bool m_separate = false;
};

} // namespace vorlane
