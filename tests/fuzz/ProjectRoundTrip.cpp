#include "ProjectRoundTrip.h"

#include "generate/EngineFiles.h"
#include "model/Kinds.h"
#include "project/ProjectCheck.h"
#include "project/ProjectLayout.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <type_traits>

namespace vorlane::fuzz {

namespace {

// Where a field stands ("Sprites[2].anims[0].frameCount"). Built on the stack as the
// comparison descends and spelled out only when a difference is found, since the documents
// agree in nearly every run.
struct Place
{
    const Place *parent = nullptr;
    const char *name = "";
    int64_t index = -1; // -1 when the place has no index

    std::string text() const
    {
        std::string out = parent ? parent->text() + "." : std::string();
        out += name;
        if (index >= 0)
            out += "[" + std::to_string(index) + "]";
        return out;
    }
};

// Keeps the first difference found.
class Differ
{
public:
    bool found() const { return !m_text.empty(); }
    std::string take() { return std::move(m_text); }

    template<class T>
    void value(const T &a, const T &b, const Place &where)
    {
        if (found() || a == b)
            return;
        m_text = where.text() + ": " + show(a) + " / " + show(b);
    }

private:
    static std::string show(const std::string &text) { return "\"" + text + "\""; }
    static std::string show(int64_t number) { return std::to_string(number); }

    std::string m_text;
};

// Compares the fields of one project file line, as the layout lists them.
template<class Rec, class Line>
void fields(Differ &d, const Rec &a, const Rec &b, const Line &line, const Place &where)
{
    std::apply(
        [&](const auto &...field) {
            (d.value(a.*field.member, b.*field.member, Place{&where, field.name}), ...);
        },
        line);
}

template<class Rec>
void flags(Differ &d, const Rec &a, const Rec &b, const Place &where)
{
    d.value(a.inUse, b.inUse, {&where, "inUse"});
    d.value(a.isNew, b.isNew, {&where, "isNew"});
}

void record(Differ &d, const ButtonRec &a, const ButtonRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    d.value(a.isHotSpot, b.isHotSpot, {&where, "isHotSpot"});
    fields(d, a, b, layout::ButtonHead, where);
    fields(d, a, b, layout::HotSpotTail, where);
    fields(d, a, b, layout::ButtonTail, where);
}

void record(Differ &d, const ImageRec &a, const ImageRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::ImageLine, where);
}

void record(Differ &d, const CursorRec &a, const CursorRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::CursorLine, where);
}

void record(Differ &d, const TextRec &a, const TextRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::TextLine, where);
}

void record(Differ &d, const FontRec &a, const FontRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::FontLine, where);
}

void record(Differ &d, const MusicRec &a, const MusicRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::MusicLine, where);
}

// How many sub-slots to compare: all of them, or those the larger count can have filled.
size_t subLimit(bool everySlot, int16_t a, int16_t b)
{
    if (everySlot)
        return SubSlotCount;
    return static_cast<size_t>(std::clamp<int>(std::max(a, b), 0, SubSlotCount));
}

void record(Differ &d, const SpriteRec &a, const SpriteRec &b, const Place &where, bool all)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::SpriteLine, where);
    d.value(a.reserved, b.reserved, {&where, "reserved"});
    for (size_t i = 0; i < subLimit(all, a.animCount, b.animCount) && !d.found(); ++i) {
        const AnimRec &x = a.anims[i];
        const AnimRec &y = b.anims[i];
        const Place anim{&where, "anims", static_cast<int64_t>(i)};
        flags(d, x, y, anim);
        fields(d, x, y, layout::AnimLine, anim);
        fields(d, x, y, layout::AnimSettingsLine, anim);
        for (size_t f = 0; f < subLimit(all, x.frameCount, y.frameCount); ++f) {
            const Place frame{&anim, "frames", static_cast<int64_t>(f)};
            d.value(x.frames[f].inUse, y.frames[f].inUse, {&frame, "inUse"});
            d.value(x.frames[f].cell, y.frames[f].cell, {&frame, "cell"});
        }
    }
}

void record(Differ &d, const SceneRec &a, const SceneRec &b, const Place &where, bool)
{
    flags(d, a, b, where);
    fields(d, a, b, layout::SceneLine, where);
    // The reader sets the flag of every layer slot, so all of them are compared.
    for (size_t i = 0; i < SubSlotCount && !d.found(); ++i) {
        const Place layer{&where, "layers", static_cast<int64_t>(i)};
        d.value(a.layers[i].inUse, b.layers[i].inUse, {&layer, "inUse"});
        fields(d, a.layers[i], b.layers[i], layout::LayerLine, layer);
    }
}

template<class Table>
void table(Differ &d,
           const Table &a,
           const Table &b,
           const char *name,
           Kind kind,
           const Document &docA,
           const Document &docB,
           bool everySlot)
{
    // A reader fills the slots of its list lines and may stop inside the one after them.
    const size_t listed = std::max(docA.list(kind).lines.size(), docB.list(kind).lines.size());
    const size_t limit = everySlot ? a.size() : std::min(a.size(), listed + 1);
    for (size_t slot = 0; slot < limit && !d.found(); ++slot)
        record(d, a[slot], b[slot], {nullptr, name, static_cast<int64_t>(slot)}, everySlot);
}

void settings(Differ &d, const AppSettingsRec &a, const AppSettingsRec &b)
{
    const Place where{nullptr, "AppSettings"};
    fields(d, a, b, layout::AppLine1, where);
    fields(d, a, b, layout::AppSplashLine, where);
    fields(d, a, b, layout::AppLine3, where);
    fields(d, a, b, layout::LogCountsLine, where);
    fields(d, a, b, layout::CustomFilterCountLine, where);
    for (size_t i = 0; i < a.logTypeFilters.size(); ++i)
        d.value(a.logTypeFilters[i],
                b.logTypeFilters[i],
                {&where, "logTypeFilters", static_cast<int64_t>(i)});
    for (size_t i = 0; i < a.logFileFilters.size(); ++i)
        d.value(a.logFileFilters[i],
                b.logFileFilters[i],
                {&where, "logFileFilters", static_cast<int64_t>(i)});
    for (size_t i = 0; i < a.CustomFilters.size(); ++i) {
        const Place filter{&where, "CustomFilters", static_cast<int64_t>(i)};
        d.value(a.CustomFilters[i].inUse, b.CustomFilters[i].inUse, {&filter, "inUse"});
        d.value(a.CustomFilters[i].text, b.CustomFilters[i].text, {&filter, "text"});
    }
}

void lists(Differ &d, const Document &a, const Document &b)
{
    for (Kind kind : ListOrder) {
        const Place list{nullptr, kindInfo(kind).name};
        const ObjectList &x = a.list(kind);
        const ObjectList &y = b.list(kind);
        d.value(x.selected, y.selected, {&list, "selected"});
        d.value(x.lines.size(), y.lines.size(), {&list, "lineCount"});
        for (size_t i = 0; i < std::min(x.lines.size(), y.lines.size()); ++i) {
            const Place line{&list, "lines", static_cast<int64_t>(i)};
            d.value(x.lines[i].text, y.lines[i].text, {&line, "text"});
            d.value(x.lines[i].slot, y.lines[i].slot, {&line, "slot"});
        }
    }
}

// True when `bytes` has at least `line` lines (a file without line ends has one).
bool hasLine(std::string_view bytes, int line)
{
    int lines = 1;
    for (size_t i = 0; lines < line && i < bytes.size(); ++i)
        lines += bytes[i] == '\n';
    return lines >= line;
}

// The clearing below works field by field in place: building a fresh record to assign from
// would cost more than all the rest of a run.

template<class Rec>
void clearRecord(Rec &rec)
{
    rec = Rec{};
}

// A sprite record is about 46 kB: only the animations its count can have filled are cleared.
void clearRecord(SpriteRec &sprite)
{
    const int anims = std::clamp<int>(sprite.animCount, 0, SubSlotCount);
    for (int i = 0; i < anims; ++i) {
        AnimRec &anim = sprite.anims[static_cast<size_t>(i)];
        const int frames = std::clamp<int>(anim.frameCount, 0, SubSlotCount);
        for (int f = 0; f < frames; ++f)
            anim.frames[static_cast<size_t>(f)] = FrameRec{};
        anim.inUse = 0;
        anim.isNew = 0;
        anim.id.clear();
        anim.frameCount = 0;
        anim.frameDelay = 0;
        anim.animDelay = 0;
        anim.repeat = 0;
        anim.play = 0;
        anim.direction = 0;
        anim.defaultFrame = 0;
    }
    sprite.inUse = 0;
    sprite.isNew = 0;
    sprite.id.clear();
    sprite.imageId.clear();
    sprite.currentAnimId.clear();
    sprite.animCount = 0;
    sprite.positionX = 0;
    sprite.positionY = 0;
    sprite.visible = 0;
    sprite.reserved = 0;
}

void clearRecord(SceneRec &scene)
{
    for (LayerRec &layer : scene.layers) {
        layer.inUse = 0;
        layer.objectKind = 0;
        layer.objectId.clear();
    }
    scene.inUse = 0;
    scene.isNew = 0;
    scene.id.clear();
    scene.layerCount = 0;
    scene.useCursor = 0;
    scene.useMusic = 0;
}

// Clears the fields of one project file line, as the layout lists them.
template<class Rec, class Line>
void clearFields(Rec &rec, const Line &line)
{
    std::apply([&](const auto &...field) { ((rec.*field.member = {}), ...); }, line);
}

// The layout's lines hold every field of the settings but the filter tables.
void clearSettings(AppSettingsRec &app)
{
    clearFields(app, layout::AppLine1);
    clearFields(app, layout::AppSplashLine);
    clearFields(app, layout::AppLine3);
    clearFields(app, layout::LogCountsLine);
    clearFields(app, layout::CustomFilterCountLine);
    app.logTypeFilters = {};
    app.logFileFilters = {};
    for (CustomFilterRec &filter : app.CustomFilters) {
        filter.inUse = 0;
        filter.text.clear();
    }
}

} // namespace

std::string firstDifference(const Document &a, const Document &b, bool everySlot)
{
    Differ d;
    const Place info{nullptr, "ProjectInfo"};
    fields(d, a.ProjectInfo, b.ProjectInfo, layout::ProjectNameLine, info);
    fields(d, a.ProjectInfo, b.ProjectInfo, layout::ProjectPathLine, info);
    d.value(a.ProjectInfo.projectOpen, b.ProjectInfo.projectOpen, {&info, "projectOpen"});
    for (size_t i = 0; i < a.ObjectCounts.size(); ++i)
        d.value(a.ObjectCounts[i],
                b.ObjectCounts[i],
                {nullptr, "ObjectCounts", static_cast<int64_t>(i)});
    const std::tuple counters{std::pair{"customFilterOverflow", &Document::customFilterOverflow},
                              std::pair{"animOverflow", &Document::animOverflow},
                              std::pair{"frameOverflow", &Document::frameOverflow},
                              std::pair{"layerOverflow", &Document::layerOverflow},
                              std::pair{"newObjectCounter", &Document::newObjectCounter},
                              std::pair{"currentObjectIndex", &Document::currentObjectIndex},
                              std::pair{"currentAnimIndex", &Document::currentAnimIndex}};
    std::apply(
        [&](const auto &...counter) {
            (d.value(a.*counter.second, b.*counter.second, Place{nullptr, counter.first}), ...);
        },
        counters);
    settings(d, a.AppSettings, b.AppSettings);
    lists(d, a, b);
    table(d, a.Buttons, b.Buttons, "Buttons", Kind::Button, a, b, everySlot);
    table(d, a.Cursors, b.Cursors, "Cursors", Kind::Cursor, a, b, everySlot);
    table(d, a.Images, b.Images, "Images", Kind::Image, a, b, everySlot);
    table(d, a.Texts, b.Texts, "Texts", Kind::Text, a, b, everySlot);
    table(d, a.Fonts, b.Fonts, "Fonts", Kind::Font, a, b, everySlot);
    table(d, a.MusicTracks, b.MusicTracks, "MusicTracks", Kind::Music, a, b, everySlot);
    table(d, a.SoundEffects, b.SoundEffects, "SoundEffects", Kind::SFX, a, b, everySlot);
    table(d, a.Sprites, b.Sprites, "Sprites", Kind::Sprite, a, b, everySlot);
    table(d, a.Scenes, b.Scenes, "Scenes", Kind::Scene, a, b, everySlot);
    return d.take();
}

void clearAfterRead(Document &doc)
{
    for (Kind kind : ListOrder) {
        ObjectList &list = doc.list(kind);
        withTable(doc, kind, [&](auto &table) {
            const size_t limit = std::min(table.size(), list.lines.size() + 1);
            for (size_t slot = 0; slot < limit; ++slot)
                clearRecord(table[slot]);
        });
        list.lines.clear();
        list.selected = -1;
    }
    clearSettings(doc.AppSettings);
    doc.ProjectInfo = ProjectInfoRec{};
    doc.ObjectCounts = {};
    doc.customFilterOverflow = 0;
    doc.animOverflow = 0;
    doc.frameOverflow = 0;
    doc.layerOverflow = 0;
    doc.newObjectCounter = 0;
    doc.currentObjectIndex = 0;
    doc.currentAnimIndex = 0;
}

ProjectRoundTrip::ProjectRoundTrip()
    : m_first(makeDocument())
    , m_second(makeDocument())
{}

std::string ProjectRoundTrip::run(std::string_view bytes)
{
    std::string problem = readBack(bytes);
    clearAfterRead(*m_first);
    clearAfterRead(*m_second);
    return problem;
}

std::string ProjectRoundTrip::leftOver() const
{
    const std::unique_ptr<Document> fresh = makeDocument();
    for (const Document *doc : {m_first.get(), m_second.get()})
        if (std::string left = firstDifference(*doc, *fresh, true); !left.empty())
            return left;
    return {};
}

std::string ProjectRoundTrip::readBack(std::string_view bytes)
{
    const ProjectReadResult first = readProject(bytes, *m_first);
    switch (first.status) {
    case ProjectReadResult::Status::Empty:
        if (!bytes.empty())
            return "a file of " + std::to_string(bytes.size()) + " bytes was taken for empty";
        return {};
    case ProjectReadResult::Status::Damaged:
        if (bytes.empty())
            return "an empty file was reported damaged";
        if (first.line < 1 || !hasLine(bytes, first.line))
            return "damage reported at line " + std::to_string(first.line) +
                   ", past the end of the file";
        if (first.message.empty())
            return "damage reported without saying what was expected";
        return {};
    case ProjectReadResult::Status::Read:
        break;
    }
    if (bytes.empty())
        return "an empty file was read as a project";

    // Whatever reads must also check and generate; the engine writers size their buffers
    // from above, so an overrun shows here first.
    (void)checkProject(*m_first, "fuzz.dvb");
    (void)appCfg(m_first->AppSettings, "null");
    (void)logCfg(m_first->AppSettings);
    for (Kind kind : FileOrder)
        (void)dataFile(*m_first, kind);

    const std::string written = projectFileBytes(*m_first);
    const ProjectReadResult second = readProject(written, *m_second);
    if (second.status != ProjectReadResult::Status::Read)
        return "the file written from what was read does not read back: line " +
               std::to_string(second.line) + ": " + second.message;
    if (std::string difference = firstDifference(*m_first, *m_second, false); !difference.empty())
        return "the file written from what was read reads back differently: " + difference;
    const std::string rewritten = projectFileBytes(*m_second);
    if (rewritten != written) {
        const auto where =
            std::mismatch(written.begin(), written.end(), rewritten.begin(), rewritten.end());
        return "writing the project again gives other bytes, from byte " +
               std::to_string(where.first - written.begin());
    }
    return {};
}

} // namespace vorlane::fuzz
