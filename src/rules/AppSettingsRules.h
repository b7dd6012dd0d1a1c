#pragma once

#include "rules/FieldRules.h"

#include <cstdint>
#include <string_view>

namespace vorlane {

// The window caption of a new project, and what an emptied caption box shows.
inline constexpr std::string_view DefaultWindowCaption = "QTA Application";

// The codes `screenType` holds.
inline constexpr int16_t ScreenTypeFullscreen = 1;
inline constexpr int16_t ScreenTypeWindowed = 2;

// The window caption box: the field takes the text; an emptied box shows "QTA Application".
TextOutcome windowCaptionRule(std::string_view text);

// Whether the window icon can be set: a full-screen program shows no window to carry it.
bool windowIconEditable(int16_t screenType);

} // namespace vorlane
