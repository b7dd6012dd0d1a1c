#pragma once

#include "model/modGlobal.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// An object of the main window's lists: its kind and its slot.
struct ObjectRef
{
    Kind kind = Kind::Button;
    int slot = 0;

    bool operator==(const ObjectRef &) const = default;
};

// One reference of a record to another object: which object holds it and in which field
// ("template", "layer 3").
struct Reference
{
    ObjectRef owner;
    std::string field;

    bool operator==(const Reference &) const = default;
};

// The kind as a line begins with it: "Button", "Music track", "Sound effect".
std::string kindCaption(Kind kind);

// The kind named by a word as `vorlane-cli check` prints it ("music track") or as the kind's
// short name ("music", "sfx"); none for any other word.
std::optional<Kind> kindFromWord(std::string_view word);

// What other records call a listed object: its record's id, or its list line's text while it
// is new (never opened, so its record's id is a left-over).
std::string objectIdentifier(const Document &doc, ObjectRef object);

// Calls `visit` for every reference field of every listed object that is not new, kinds in
// list order, objects in list order, fields in record order: the owner, the field's words,
// the kind the field names and the field itself. A layer's field is "layer N", N counting the
// scene's used layers from 1 in slot order; a layer of no known kind is skipped.
void forEachReference(
    Document &doc,
    const std::function<
        void(ObjectRef owner, const std::string &field, Kind target, std::string &value)> &visit);
void forEachReference(
    const Document &doc,
    const std::function<void(
        ObjectRef owner, const std::string &field, Kind target, const std::string &value)> &visit);

// Every reference to `object`, in the order of forEachReference.
std::vector<Reference> usedBy(const Document &doc, ObjectRef object);

// The lines Used By shows for `object`: `Button "btnPlay": template` each, or the one line
// "Not used by any object".
std::vector<std::string> usedByLines(const Document &doc, ObjectRef object);

// The line of one reference: kind, identifier and field of its owner.
std::string referenceLine(const Document &doc, const Reference &reference);

// The sprite fields naming animation `animSlot` of sprite `spriteSlot`: its current animation.
std::vector<Reference> animationUsedBy(const Document &doc, int spriteSlot, int animSlot);

} // namespace vorlane
