#pragma once

#include "model/modGlobal.h"

#include <functional>
#include <string>
#include <string_view>

namespace vorlane {

// Called after each object record written to an engine data file.
using RecordWritten = std::function<void()>;

// The bytes of each engine file (Windows-1252, CR LF). app.cfg: `dataFolderRel` is the output
// folder relative to the application root folder.
std::string appCfg(const AppSettingsRec &settings, std::string_view dataFolderRel);
std::string logCfg(const AppSettingsRec &settings);
// The engine data file of `kind`, its objects in list order, calling `recordWritten` after
// each object.
std::string dataFile(const Document &doc, Kind kind, const RecordWritten &recordWritten = {});
std::string buttonDat(const Document &doc);
std::string imageDat(const Document &doc);
std::string cursorDat(const Document &doc);
std::string textDat(const Document &doc);
std::string fontDat(const Document &doc);
std::string musicDat(const Document &doc);
std::string sfxDat(const Document &doc);
std::string spriteDat(const Document &doc);
std::string sceneDat(const Document &doc);

} // namespace vorlane
