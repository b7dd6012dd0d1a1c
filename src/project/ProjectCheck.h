#pragma once

#include "model/modGlobal.h"
#include "rules/References.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// The problems of the project in `doc` that would break the engine's reading of the generated
// files or the next Open, one line each as `FILE: KIND "ID": PROBLEM` (`FILE: application:
// PROBLEM` for the settings, `FILE: custom filter N: PROBLEM` for the log filters), in the
// order of the project file; `file` is the FILE part. Only the objects of the nine lists are
// checked and can be referred to; lines of new objects (never opened, dropped before saving
// and generating) are left out. Empty when nothing is wrong.
std::vector<std::string> checkProject(const Document &doc, std::string_view file);

// A problem line of checkProject, and whether the project file itself is hit by it: saved as
// it stands, the file will not read back as the project is (a text the file cannot carry, a
// count that disagrees with the slots in use, two list lines naming one slot).
struct ProjectProblem
{
    std::string line;
    bool breaksProjectFile = false;
    // The listed object the line is about; none for the settings, the lists and the filters.
    std::optional<ObjectRef> object;
    // A file the game will not find (missingFileWarnings): reported, yet the project is sound.
    bool warning = false;
};

// checkProject's lines, each with what it hits.
std::vector<ProjectProblem> findProjectProblems(const Document &doc, std::string_view file);

// The lines of checkProject that hit the project file only: what a Save shows at once.
std::vector<std::string> projectFileProblems(const Document &doc, std::string_view file);

// checkProject's problems followed by the warnings about files (missingFileWarnings): what
// Check Project, the problems panel and `vorlane-cli check` report.
std::vector<ProjectProblem> fullProjectCheck(const Document &doc, std::string_view file);

// Whether the project file carries `text` back intact: it holds no line break and no double
// quote directly followed by a comma, as nothing in a text is escaped.
bool projectFileCarries(std::string_view text);

} // namespace vorlane
