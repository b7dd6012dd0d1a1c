#pragma once

#include "generate/FileOutput.h"
#include "generate/GenerateFailure.h"
#include "generate/GenerateState.h"
#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "model/modGlobal.h"

#include <optional>
#include <string>

namespace vorlane {

// How a generate command ended.
enum class GenerateOutcome {
    Unavailable, // "Generate Data" before any "Generate Data As...": nothing asked or done
    Declined,    // No at the confirmation: nothing changed
    Cancelled,   // the folder dialog was cancelled: nothing generated
    OutsideRoot, // the chosen folder lies outside the application root folder
    Generated,   // all eleven files written
    Failed,      // a file could not be written; the files before it stay
};

struct GenerateResult
{
    GenerateOutcome outcome = GenerateOutcome::Declined;
    std::optional<GenerateFailure> failure; // set when Failed
    std::string folder;                     // the chosen folder, set from OutsideRoot on
    int filesWritten = 0;                   // engine files written whole, from Generated on
};

inline constexpr const char *GenerateTitle = "Generate Data";
inline constexpr const char *GenerateConfirmText =
    "Any new objects not opened in an editor window will be removed. Continue?";
inline constexpr const char *GenerateProposedName = "[no filename needed]";

// "Generate Data As...": confirmation, folder choice, then generation into that folder.
GenerateResult generateDataAs(Document &doc,
                              GenerateState &state,
                              UserInterface &ui,
                              ProgressSink &progress,
                              FileOutput &files = diskFileOutput());

// "Generate Data": confirmation, then generation into the folder chosen last.
GenerateResult generateDataAgain(Document &doc,
                                 const GenerateState &state,
                                 UserInterface &ui,
                                 ProgressSink &progress,
                                 FileOutput &files = diskFileOutput());

// The text of the message shown when the chosen folder lies outside the root folder.
// What the status bar says once generation wrote its files: "Generated 11 files into
// /games/quest/data/"; `folder` as generation has it, with its closing separator.
std::string generatedText(int filesWritten, const std::string &folder);

std::string outsideRootText(const std::string &folder, const std::string &rootFolder);
// The text of the message shown when an engine file could not be written.
std::string writeFailureText(const GenerateFailure &failure);

} // namespace vorlane
