#include "generate/EngineTextMarks.h"

#include "io/Cp1252.h"

namespace vorlane {

std::vector<EngineTextMark> engineTextMarks(std::u32string_view text)
{
    std::vector<EngineTextMark> marks;
    marks.reserve(text.size());
    for (char32_t cp : text) {
        if (cp == U'*')
            marks.push_back(EngineTextMark::Terminator);
        else if (!cp1252Holds(cp))
            marks.push_back(EngineTextMark::NotCp1252);
        else
            marks.push_back(EngineTextMark::Readable);
    }
    return marks;
}

} // namespace vorlane
