#pragma once

#include "model/modGlobal.h"
#include "rules/References.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// What a rename did: why it was refused, or how many references followed it.
struct RenameOutcome
{
    std::optional<std::string> refusal;
    int references = 0;

    bool operator==(const RenameOutcome &) const = default;
};

// Why `newId` cannot become the identifier of `object`; none when it can. Refused: an empty
// identifier, "null", a line break or a double quote (the project file cannot hold them), and
// the identifier of another listed object of the same kind.
std::optional<std::string>
renameRefusal(const Document &doc, ObjectRef object, std::string_view newId);

// Gives `object` the identifier `newId`, in its record and its list line, and makes every
// reference to it (usedBy) name `newId`; nothing changes when it is refused.
RenameOutcome renameObject(Document &doc, ObjectRef object, const std::string &newId);

// The same for animation `animSlot` of sprite `spriteSlot`: the sprite's current animation
// follows it. Refused as above, "another animation" meaning one of the same sprite.
std::optional<std::string>
animationRenameRefusal(const Document &doc, int spriteSlot, int animSlot, std::string_view newId);
RenameOutcome
renameAnimation(Document &doc, int spriteSlot, int animSlot, const std::string &newId);

// The rename dialog's count: "No reference will follow", "1 reference will follow",
// "3 references will follow".
std::string followingReferencesCaption(int count);

} // namespace vorlane
