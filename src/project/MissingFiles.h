#pragma once

#include "project/ProjectCheck.h"

#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// What a file's first bytes say it is, as far as the pictures go.
enum class FileSignature { Missing, Picture, Other };

// Whether the file at `path` exists (a regular file, links followed) and whether its first
// bytes are those of a picture the previews read: PNG, BMP, JPEG, GIF, PBM, PGM or PPM.
FileSignature fileSignature(const std::string &path);

// The files the game will not find, as warnings in checkProject's form (`FILE: KIND "ID":
// PROBLEM`, `FILE: application: PROBLEM`): the settings' window icon and, when the splash is
// on, its picture; every listed object's path (images, fonts, music, sound effects), in the
// order of the project file. Paths are resolved by resolveObjectPath; a file that does not
// exist is reported, and an image or splash picture that is not a picture Vorlane reads.
std::vector<ProjectProblem> missingFileWarnings(const Document &doc, std::string_view file);

} // namespace vorlane
