#pragma once

#include "json/ProjectJson.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// A place in a text: 1-based line and column, columns counting characters (UTF-8 sequences).
struct TextPosition
{
    int line = 1;
    int column = 1;

    bool operator==(const TextPosition &) const = default;
};

// The position of the byte at `offset` in `text` (the end of the text when it lies beyond).
TextPosition positionOf(std::string_view text, size_t offset);

// Where the value at the JSON pointer `pointer` begins in the JSON `text`; nothing when the
// text holds no such value or does not parse that far.
std::optional<TextPosition> locateJsonValue(std::string_view text, std::string_view pointer);

// Why a JSON text was refused: where, the JSON pointer of the value (empty for the whole
// text) and what was wrong.
struct JsonProblem
{
    TextPosition position;
    std::string pointer;
    std::string message;
};

// "FILE:LINE:COLUMN: POINTER: MESSAGE" (the pointer part left out when it is empty).
std::string problemText(std::string_view file, const JsonProblem &problem);

// Parses the JSON `text` into `json`; a syntax error comes back with its place.
std::optional<JsonProblem> parseJson(std::string_view text, Json &json);

// Fills `doc`, a new document, from the JSON form of a project in `text`; a text that does
// not parse, or a value that makes no project file, comes back with its place.
std::optional<JsonProblem> projectFromJsonText(std::string_view text, Document &doc);

} // namespace vorlane
