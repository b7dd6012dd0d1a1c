#pragma once

#include "model/modGlobal.h"

#include <string>

namespace vorlane {

// The names of the steps as Edit > Undo and Redo show them.

// The kind as a step names it: "Button", "Image", "SFX".
std::string kindStepName(Kind kind);
// An editor's session: Edit Button "btnPlay".
std::string editStepName(Kind kind, const std::string &id);
// Add: Add Button.
std::string addStepName(Kind kind);
// Remove: Remove Image "imgHero".
std::string removeStepName(Kind kind, const std::string &id);
// Rename Object: Rename Image "imgHero", the name the object had.
std::string renameStepName(Kind kind, const std::string &oldId);
// Open of `path`: Open "game.dvb", the file's name without its folder.
std::string openStepName(const std::string &path);
// New, after its OK.
inline constexpr const char *NewStepName = "New Project";
// Save and Generate taking never-opened objects off the lists.
inline constexpr const char *RemoveNewObjectsStepName = "Remove New Objects";
// A run of typing in the application root folder box.
inline constexpr const char *RootFolderStepName = "Type Root Folder";

} // namespace vorlane
