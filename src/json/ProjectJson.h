#pragma once

#include "model/modGlobal.h"
#include "project/ProjectReader.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string>
#include <string_view>

namespace vorlane {

// The JSON form of a project: objects keep the order in which they are written.
using Json = nlohmann::ordered_json;

// The JSON key of each kind's array, and the name of one object of it in messages.
struct JsonKind
{
    Kind kind;
    const char *key;    // "buttons", "soundEffects"
    const char *name;   // "button", "sound effect"
    const char *plural; // "buttons", "music tracks"
};

// The value of the JSON form's "format" field.
inline constexpr const char *ProjectJsonFormat = "vorlane-project-1";

// The nine kinds in file order, as the JSON form lists them.
const std::array<JsonKind, KindCount> &jsonKinds();

// What the project file holds, read from its bytes: the reader's document, except that a hot
// spot keeps the cursor of its line and splashEnabled keeps its value (Open drops both).
// Returns the reader's result.
ProjectReadResult readProjectForJson(std::string_view bytes, Document &doc);

// The JSON form of what the writer writes for `doc`: every object of each list in list order
// with the fields of its line by name, animations with their frames, scenes with their layers,
// the settings and the log filters. Counts the file carries are the lengths of the arrays.
Json projectToJson(const Document &doc);

// The text of `json`: two spaces of indentation, one value a line, and a final line end.
std::string jsonText(const Json &json);

// A value of the JSON form that does not make a project file; `pointer` is its JSON pointer.
struct JsonValueError
{
    std::string pointer;
    std::string message;
};

// Fills `doc`, a new document, with the project `json` describes, as the reader would have
// filled it from the file the JSON form was made from. Throws JsonValueError.
void projectFromJson(const Json &json, Document &doc);

} // namespace vorlane
