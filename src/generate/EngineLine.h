#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorlane {

// Writes the lines of an engine file into a buffer that EngineLineSize has measured. Items
// are joined by one blank; a number carries its own sign position (a blank, or "-"), so two
// positive numbers stand two blanks apart. Texts are converted to Windows-1252 and every line
// ends with CR LF.
class EngineLine
{
public:
    explicit EngineLine(char *out)
        : m_pos(out)
    {}

    static constexpr bool writes = true;

    // A number in the engine's signed-decimal form.
    EngineLine &number(int32_t value);
    // A text as it stands, without quotes or escaping.
    EngineLine &text(std::string_view utf8);
    // A text closed by "* "; the next item follows it without a separator.
    EngineLine &starred(std::string_view utf8);
    // The next number follows with only its own leading blank (the joints of text.dat).
    EngineLine &joint()
    {
        m_separate = false;
        return *this;
    }
    // Ends the line with a text closed by "*".
    void endStarred(std::string_view utf8);
    // Ends the line.
    void end()
    {
        *m_pos++ = '\r';
        *m_pos++ = '\n';
        m_separate = false;
    }
    // The count line of an object file: a bare "0" for an empty list, else the number form.
    void countLine(std::size_t count);

    // Where the next byte goes.
    char *position() const { return m_pos; }

private:
    void separate()
    {
        if (m_separate)
            *m_pos++ = ' ';
        m_separate = true;
    }
    void put(std::string_view utf8);

    char *m_pos;
    bool m_separate = false;
};

} // namespace vorlane
