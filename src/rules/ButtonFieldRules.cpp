#include "rules/ButtonFieldRules.h"

#include "rules/FieldRules.h"

namespace vorlane {

void setButtonDefaults(ButtonRec &button)
{
    button.templateId = NullText;
    button.iconId = NullText;
    button.captionTextId = NullText;
    button.cursorId = NullText;
    button.soundUp = NullText;
    button.soundOver = NullText;
    button.soundDown = NullText;
    button.soundDisabled = NullText;
    button.captionVisible = 1;
    button.iconVisible = 1;
    button.visible = 1;
    button.isHotSpot = 0;
    button.currentFrame = 1;
    button.frameUp = 1;
    button.frameDown = 0;
    button.frameOver = 0;
    button.frameDisabled = 0;
    button.templateRows = 0;
    button.templateColumns = 0;
    button.hotSpotWidth = 0;
    button.hotSpotHeight = 0;
    button.x = 0;
    button.y = 0;
}

namespace {

template<class Button>
auto &cellOf(Button &button, ButtonState state)
{
    switch (state) {
    case ButtonState::Up:
        return button.frameUp;
    case ButtonState::Over:
        return button.frameOver;
    case ButtonState::Down:
        return button.frameDown;
    case ButtonState::Disabled:
        break;
    }
    return button.frameDisabled;
}

} // namespace

int16_t &stateCell(ButtonRec &button, ButtonState state)
{
    return cellOf(button, state);
}

int16_t stateCell(const ButtonRec &button, ButtonState state)
{
    return cellOf(button, state);
}

std::optional<ButtonState> chosenState(const ButtonRec &button)
{
    for (ButtonState state : StateSearchOrder)
        if (stateCell(button, state) == button.currentFrame)
            return state;
    return std::nullopt;
}

SwitchCaptions switchCaptions(bool hotSpot)
{
    if (hotSpot)
        return {"Hot Spot Size", "Width", "Height"};
    return {"Template Cells", "Rows", "Columns"};
}

int16_t *switchField(ButtonRec &button, int box, std::string_view label)
{
    const SwitchCaptions hotSpot = switchCaptions(true);
    const SwitchCaptions graphic = switchCaptions(false);
    if (box == 1) {
        if (label == hotSpot.first)
            return &button.hotSpotWidth;
        if (label == graphic.first)
            return &button.templateRows;
    } else if (box == 2) {
        if (label == hotSpot.second)
            return &button.hotSpotHeight;
        if (label == graphic.second)
            return &button.templateColumns;
    }
    return nullptr;
}

std::string hotSpotId(std::string_view id)
{
    // Built by appending: g++ 12 at -O3 warns falsely (-Wrestrict) on "_" + std::string.
    std::string prefixed;
    prefixed.reserve(id.size() + 1);
    prefixed.push_back('_');
    prefixed.append(id);
    return prefixed;
}

std::string graphicButtonId(std::string_view id)
{
    return id.empty() ? std::string() : std::string(id.substr(1));
}

std::optional<std::string> templateBoxChanged(ButtonRec &button, std::string_view text)
{
    const TextOutcome outcome = referenceRule(text);
    button.templateId = std::string(text);
    if (text.empty())
        button.captionTextId = NullText;
    return outcome.boxText;
}

} // namespace vorlane
