#pragma once

#include "generate/FileOutput.h"
#include "generate/GenerateFailure.h"
#include "rules/ProgressSink.h"
#include "model/modGlobal.h"

#include <optional>
#include <string_view>

namespace vorlane {

// The names of the engine files, in the order they are written.
inline constexpr std::string_view AppCfgName = "app.cfg";
inline constexpr std::string_view LogCfgName = "log.cfg";

// Drops the never-opened objects from the lists, then writes app.cfg, the nine data files and
// log.cfg into ProjectInfo.generatePath, one after another, each replaced whole. Stops at the
// first file that cannot be written and returns it, with the files already replaced; that file
// stays as it was. Refuses, before anything changes, a folder another generation holds and a
// folder where an engine file is the project file opened or saved.
std::optional<GenerateFailure> GenData(Document &doc,
                                       std::string_view dataFolderRel,
                                       ProgressSink &progress,
                                       FileOutput &files = diskFileOutput());

} // namespace vorlane
