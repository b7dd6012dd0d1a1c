#pragma once

#include "io/ChunkSink.h"
#include "model/modGlobal.h"

#include <functional>
#include <string>
#include <string_view>

namespace vorlane {

// Called after each object record written to an engine data file.
using RecordWritten = std::function<void()>;

// Writes the bytes of app.cfg to `sink`; `dataFolderRel` is the output folder relative to
// the application root folder.
void writeAppCfg(ChunkSink &sink, const AppSettingsRec &settings, std::string_view dataFolderRel);
// Writes the bytes of log.cfg to `sink`.
void writeLogCfg(ChunkSink &sink, const AppSettingsRec &settings);
// Writes the bytes of the engine data file of `kind` to `sink`, its objects in list order,
// calling `recordWritten` after each object.
void writeDataFile(ChunkSink &sink,
                   const Document &doc,
                   Kind kind,
                   const RecordWritten &recordWritten = {});

// The bytes of each engine file (Windows-1252, CR LF).
std::string appCfg(const AppSettingsRec &settings, std::string_view dataFolderRel);
std::string logCfg(const AppSettingsRec &settings);
std::string dataFile(const Document &doc, Kind kind);
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
