#include "rules/AppSettingsRules.h"

namespace vorlane {

TextOutcome windowCaptionRule(std::string_view text)
{
    return defaultedTextRule(text, DefaultWindowCaption);
}

bool windowIconEditable(int16_t screenType)
{
    return screenType != ScreenTypeFullscreen;
}

} // namespace vorlane
