#pragma once

#include "model/modGlobal.h"

#include <optional>
#include <string>
#include <vector>

namespace vorlane {

// One label of a quick-stats panel: its objectName and its new caption; no caption means the
// label keeps whatever it showed before.
struct StatLabel
{
    std::string label;
    std::optional<std::string> caption;

    bool operator==(const StatLabel &) const = default;
};

// What a quick-stats panel shows for one object. When `cover` is set the panel's "[NO DATA]"
// cover is shown, `labels` is empty and every label keeps its caption.
struct QuickStats
{
    bool cover = false;
    std::vector<StatLabel> labels;

    // The new caption of `label`, or nothing when it is left unchanged or not on the panel.
    std::optional<std::string> captionOf(const std::string &label) const;
};

// Captions of the main window's object pages for the object in `slot` of each table. A slot
// outside its table throws std::out_of_range.
QuickStats UpdateButtonStats(const Document &doc, int slot);
QuickStats UpdateCursorStats(const Document &doc, int slot);
QuickStats UpdateImageStats(const Document &doc, int slot);
QuickStats UpdateTextStats(const Document &doc, int slot);
QuickStats UpdateFontStats(const Document &doc, int slot);
QuickStats UpdateMusicStats(const Document &doc, int slot);
QuickStats UpdateSFXStats(const Document &doc, int slot);
QuickStats UpdateSpriteStats(const Document &doc, int slot);
QuickStats UpdateSceneStats(const Document &doc, int slot);

// Captions of the application page, from AppSettings; never covered.
QuickStats UpdateAppStats(const Document &doc);

// Captions of the sprite editor's animation panel for animation `indexAnim` of sprite
// `indexSprite`; covered while the animation itself is new.
QuickStats UpdateAnimStats(const Document &doc, int indexAnim, int indexSprite);

// The captions of the object page of `kind` for the object in `slot`.
QuickStats statsFor(const Document &doc, Kind kind, int slot);

} // namespace vorlane
