#pragma once

#include <string_view>
#include <vector>

namespace vorlane {

// What the engine makes of one character of a text it reads from its files.
enum class EngineTextMark {
    Readable,
    Terminator, // "*" closes a text in the engine's files: the engine stops reading there
    NotCp1252,  // the engine files hold Windows-1252 only: the character is written as "?"
};

// The mark of each character of `text`, one per code point.
std::vector<EngineTextMark> engineTextMarks(std::u32string_view text);

} // namespace vorlane
