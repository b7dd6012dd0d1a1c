#include "project/ProjectCheck.h"

#include "io/Cp1252.h"
#include "model/Kinds.h"
#include "project/MissingFiles.h"
#include "project/ProjectLayout.h"
#include "rules/SceneRules.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>

namespace vorlane {

namespace {

// The kinds as the problem lines name them.
constexpr std::array<const char *, KindCount> KindNames{
    "button", "cursor", "image", "text", "font", "music track", "sound effect", "sprite", "scene"};

const char *nameOf(Kind kind)
{
    return KindNames[static_cast<size_t>(kindIndex(kind))];
}

constexpr std::string_view Null = "null";

// A text the engine files hold bare, ended by the next blank: a path, or a reference to an
// object of `target`.
template<class Rec>
struct BareField
{
    const char *name;
    std::string Rec::*member;
    std::optional<Kind> target;
};

// The button fields that both button lines carry come first: a hot spot (an id beginning
// with "_") is written with the cursor only.
constexpr std::array<BareField<ButtonRec>, 8> ButtonFields{{
    {"cursorId", &ButtonRec::cursorId, Kind::Cursor},
    {"templateId", &ButtonRec::templateId, Kind::Image},
    {"iconId", &ButtonRec::iconId, Kind::Image},
    {"captionTextId", &ButtonRec::captionTextId, Kind::Text},
    {"soundUp", &ButtonRec::soundUp, Kind::SFX},
    {"soundDown", &ButtonRec::soundDown, Kind::SFX},
    {"soundOver", &ButtonRec::soundOver, Kind::SFX},
    {"soundDisabled", &ButtonRec::soundDisabled, Kind::SFX},
}};
constexpr size_t HotSpotFieldCount = 1;

constexpr std::array<BareField<ImageRec>, 1> ImageFields{{{"path", &ImageRec::path, {}}}};
constexpr std::array<BareField<CursorRec>, 1> CursorFields{
    {{"imageId", &CursorRec::imageId, Kind::Image}}};
constexpr std::array<BareField<TextRec>, 2> TextFields{{
    {"fontId", &TextRec::fontId, Kind::Font},
    {"selectionImageId", &TextRec::selectionImageId, Kind::Image},
}};
constexpr std::array<BareField<FontRec>, 1> FontFields{{{"path", &FontRec::path, {}}}};
constexpr std::array<BareField<MusicRec>, 1> MusicFields{{{"path", &MusicRec::path, {}}}};
constexpr std::array<BareField<SpriteRec>, 1> SpriteFields{
    {{"imageId", &SpriteRec::imageId, Kind::Image}}};

bool holdsBlank(std::string_view text)
{
    return text.find_first_of(" \t") != std::string_view::npos;
}

std::string quoted(std::string_view text)
{
    std::string out;
    out.reserve(text.size() + 2);
    out.append(1, '"').append(text).append(1, '"');
    return out;
}

template<class T>
struct IsTextField : std::false_type
{
};
template<class Rec>
struct IsTextField<layout::TextField<Rec>> : std::true_type
{
};

std::string counted(int count, const char *what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

constexpr const char *NotReadBack = "; the saved file will not read back intact";

// The texts of the project file that no engine file holds: the project's own name and paths.
// (The data folder in app.cfg comes from the folder chosen when generating, not from these.)
constexpr std::array<std::string_view, 4> ProjectOnlyTexts{
    "projectName", "projectFilePath", "generatePath", "rootFolder"};

bool reachesEngine(std::string_view field)
{
    return std::find(ProjectOnlyTexts.begin(), ProjectOnlyTexts.end(), field) ==
           ProjectOnlyTexts.end();
}

class Checker
{
public:
    Checker(const Document &doc, std::string_view file)
        : m_doc(doc)
        , m_file(file)
    {
        for (Kind kind : ListOrder)
            forEachListed(kind, [&](const auto &rec) { m_ids[index(kind)].insert(rec.id); });
        m_object.reset();
    }

    std::vector<ProjectProblem> run()
    {
        m_subject = "project";
        carried(m_doc.ProjectInfo, layout::ProjectNameLine);
        carried(m_doc.ProjectInfo, layout::ProjectPathLine);
        checkApplication();
        checkListSlots();
        for (Kind kind : FileOrder) {
            std::unordered_set<std::string_view> seen;
            forEachListed(kind, [&](const auto &rec) {
                m_subject = std::string(nameOf(kind)) + " " + quoted(rec.id);
                checkId(kind, rec.id, seen);
                checkRecord(rec);
                checkCarried(rec);
            });
        }
        m_object.reset();
        checkCustomFilters();
        return std::move(m_problems);
    }

private:
    static size_t index(Kind kind) { return static_cast<size_t>(kindIndex(kind)); }

    // Calls `f` with the record of every line of the list of `kind`, in list order, leaving
    // out new objects and lines whose slot lies outside the table.
    template<class F>
    void forEachListed(Kind kind, F &&f)
    {
        withTable(m_doc, kind, [&](const auto &table) {
            for (const ListLine &line : m_doc.list(kind).lines) {
                if (!slotInTable(kind, line.slot))
                    continue;
                const auto &rec = table[static_cast<size_t>(line.slot)];
                m_object = ObjectRef{kind, line.slot};
                if (rec.isNew != -1)
                    f(rec);
            }
        });
    }

    void report(const std::string &problem, bool breaksProjectFile = false)
    {
        std::string line;
        line.reserve(m_file.size() + m_subject.size() + problem.size() + 4);
        line.append(m_file).append(": ").append(m_subject).append(": ").append(problem);
        m_problems.push_back({std::move(line), breaksProjectFile, m_object});
    }

    // The texts of one line of the project file that it cannot carry; `prefix` names the
    // sub-record ("animation 2 ").
    template<class Rec, class Line>
    void carried(const Rec &rec, const Line &line, const std::string &prefix = {})
    {
        std::apply(
            [&](const auto &...field) {
                (
                    [&](const auto &one) {
                        if constexpr (IsTextField<std::decay_t<decltype(one)>>::value) {
                            checkCarried(prefix + one.name, rec.*one.member);
                            if (reachesEngine(one.name))
                                checkEngineReads(prefix + one.name, rec.*one.member);
                        }
                    }(field),
                    ...);
            },
            line);
    }

    void checkCarried(const std::string &name, std::string_view value)
    {
        if (value.find_first_of("\r\n") != std::string_view::npos)
            report(name + " holds a line break, which the project file cannot carry" + NotReadBack,
                   true);
        else if (!projectFileCarries(value))
            report(name +
                       " holds a double quote followed by a comma, which the project file cannot "
                       "carry" +
                       NotReadBack,
                   true);
    }

    // The engine files are Windows-1252: a character it cannot hold is written as "?".
    void checkEngineReads(const std::string &name, std::string_view value)
    {
        const std::vector<std::string> unreadable = charactersOutsideCp1252(value);
        if (unreadable.empty())
            return;
        std::string list;
        for (const std::string &character : unreadable)
            list.append(list.empty() ? "" : ", ").append(character);
        report(name + " has characters the engine cannot read: " + list);
    }

    void checkCarried(const ButtonRec &button)
    {
        carried(button, layout::ButtonHead);
        if (layout::isHotSpotId(button.id))
            carried(button, layout::HotSpotTail);
        else
            carried(button, layout::ButtonTail);
    }
    void checkCarried(const ImageRec &image) { carried(image, layout::ImageLine); }
    void checkCarried(const CursorRec &cursor) { carried(cursor, layout::CursorLine); }
    void checkCarried(const TextRec &text) { carried(text, layout::TextLine); }
    void checkCarried(const FontRec &font) { carried(font, layout::FontLine); }
    void checkCarried(const MusicRec &music) { carried(music, layout::MusicLine); }

    // A count written before its sub-records must be the number of slots in use, which the
    // writer lists whatever the count says; a count of 0 writes none of them.
    void checkCount(const std::string &name, int count, int used, const char *what)
    {
        if (count == used)
            return;
        if (count <= 0) {
            if (used > 0)
                report(name + " is " + std::to_string(count) + " but " + counted(used, what) +
                           " in use, which the saved file leaves out",
                       true);
            return;
        }
        report(name + " is " + std::to_string(count) + " but " + counted(used, what) + " in use" +
                   NotReadBack,
               true);
    }

    template<class Slots>
    static int usedIn(const Slots &slots)
    {
        int used = 0;
        for (const auto &slot : slots)
            used += slot.inUse == -1 ? 1 : 0;
        return used;
    }

    void checkCarried(const SpriteRec &sprite)
    {
        carried(sprite, layout::SpriteLine);
        checkCount("animCount", sprite.animCount, usedIn(sprite.anims), "animation");
        if (sprite.animCount <= 0)
            return;
        int number = 0;
        for (const AnimRec &anim : sprite.anims) {
            if (anim.inUse != -1)
                continue;
            const std::string prefix = "animation " + std::to_string(++number) + " ";
            carried(anim, layout::AnimLine, prefix);
            checkCount(prefix + "frameCount", anim.frameCount, usedIn(anim.frames), "frame");
        }
    }

    void checkCarried(const SceneRec &scene)
    {
        carried(scene, layout::SceneLine);
        checkCount("layerCount", scene.layerCount, usedIn(scene.layers), "layer");
        if (scene.layerCount <= 0)
            return;
        int number = 0;
        for (const LayerRec &layer : scene.layers) {
            if (layer.inUse == -1)
                carried(layer, layout::LayerLine, "layer " + std::to_string(++number) + " ");
        }
    }

    // Each line of a list stands for one object; two lines naming one slot save it twice.
    void checkListSlots()
    {
        for (Kind kind : ListOrder) {
            m_subject = std::string(nameOf(kind)) + " list";
            std::unordered_map<int, size_t> firstLine;
            const auto &lines = m_doc.list(kind).lines;
            for (size_t i = 0; i < lines.size(); ++i) {
                const auto [first, added] = firstLine.emplace(lines[i].slot, i);
                if (!added)
                    report("lines " + std::to_string(first->second + 1) + " and " +
                               std::to_string(i + 1) + " both name slot " +
                               std::to_string(lines[i].slot) + NotReadBack,
                           true);
            }
        }
    }

    void checkId(Kind kind, const std::string &id, std::unordered_set<std::string_view> &seen)
    {
        if (id.empty())
            report("id is empty, which the engine cannot read");
        else if (holdsBlank(id))
            report("id holds a blank, which the engine reads as a separator");
        if (!seen.insert(id).second)
            report(std::string("id is also used by an earlier ") + nameOf(kind));
    }

    // A text written bare: it must neither be empty nor hold a blank.
    void checkBare(const std::string &name, std::string_view value)
    {
        if (value.empty()) {
            report(name + " is empty, which the engine cannot read");
        } else if (holdsBlank(value)) {
            report(name + " " + quoted(value) +
                   " holds a blank, which the engine reads as a separator");
        }
    }

    // A reference: "null" or the id of a listed object of `target`.
    void checkReference(const std::string &name, std::string_view value, Kind target)
    {
        if (value == Null)
            return;
        // An empty reference is reported as empty only: no object is meant by it.
        checkBare(name, value);
        if (!value.empty() && !m_ids[index(target)].contains(value))
            report(name + " " + quoted(value) + " names no " + nameOf(target));
    }

    // A text the engine reads up to a "*".
    void checkStarred(const std::string &name, std::string_view value)
    {
        if (value.find('*') != std::string_view::npos)
            report(name + " holds \"*\", which the engine reads as the end of the text");
    }

    template<class Rec, size_t N>
    void checkFields(const Rec &rec, const std::array<BareField<Rec>, N> &fields, size_t count = N)
    {
        for (size_t i = 0; i < count; ++i) {
            const BareField<Rec> &field = fields[i];
            if (field.target)
                checkReference(field.name, rec.*field.member, *field.target);
            else
                checkBare(field.name, rec.*field.member);
        }
    }

    void checkRecord(const ButtonRec &button)
    {
        checkFields(button,
                    ButtonFields,
                    layout::isHotSpotId(button.id) ? HotSpotFieldCount : ButtonFields.size());
    }
    void checkRecord(const ImageRec &image) { checkFields(image, ImageFields); }
    void checkRecord(const CursorRec &cursor) { checkFields(cursor, CursorFields); }
    void checkRecord(const TextRec &text)
    {
        checkStarred("content", text.content);
        checkFields(text, TextFields);
    }
    void checkRecord(const FontRec &font) { checkFields(font, FontFields); }
    void checkRecord(const MusicRec &music) { checkFields(music, MusicFields); }

    // Animations are numbered from 1 in slot order among the used ones, as the file has them;
    // they are written only when animCount is above 0.
    void checkRecord(const SpriteRec &sprite)
    {
        checkFields(sprite, SpriteFields);
        bool currentFound = false;
        if (sprite.animCount > 0) {
            int number = 0;
            for (const AnimRec &anim : sprite.anims) {
                if (anim.inUse != -1)
                    continue;
                checkBare("animation " + std::to_string(++number) + " id", anim.id);
                currentFound = currentFound || anim.id == sprite.currentAnimId;
            }
        }
        if (sprite.currentAnimId == Null)
            return;
        checkBare("currentAnimId", sprite.currentAnimId);
        if (!sprite.currentAnimId.empty() && !currentFound)
            report("currentAnimId " + quoted(sprite.currentAnimId) +
                   " names no animation of this sprite");
    }

    // Layers are numbered from 1 in slot order among the used ones, as the file has them.
    void checkRecord(const SceneRec &scene)
    {
        if (scene.layerCount <= 0)
            return;
        int number = 0;
        for (const LayerRec &layer : scene.layers) {
            if (layer.inUse != -1)
                continue;
            const std::string name = "layer " + std::to_string(++number);
            const std::optional<Kind> kind = layerObjectKind(layer.objectKind);
            if (!kind) {
                report(name + " objectKind " + std::to_string(layer.objectKind) +
                       " is none of 1 texts, 2 sprites, 3 images, 4 buttons, 5 music");
                if (layer.objectId != Null)
                    checkBare(name + " objectId", layer.objectId);
                continue;
            }
            checkReference(name + " objectId", layer.objectId, *kind);
        }
    }

    void checkApplication()
    {
        const AppSettingsRec &app = m_doc.AppSettings;
        m_subject = "application";
        carried(app, layout::AppLine1);
        if (app.splashEnabled == 1)
            carried(app, layout::AppSplashLine);
        carried(app, layout::AppLine3);
        if (!app.rootFolder.empty() &&
            (app.rootFolder.back() == '/' || app.rootFolder.back() == '\\'))
            report("rootFolder " + quoted(app.rootFolder) +
                   " ends in a separator, so the data folder in app.cfg loses its first "
                   "character");
        checkStarred("windowCaption", app.windowCaption);
        checkStarred("windowIcon", app.windowIcon);
        // The splash line, and in it the bare splash image path, is written only when on.
        if (app.splashEnabled == 1) {
            checkStarred("splashImagePath", app.splashImagePath);
            checkBare("splashImagePath", app.splashImagePath);
        }
        checkStarred("logPath", app.logPath);
    }

    // log.cfg ends every custom filter with "*"; it writes them when the count is at least 1.
    void checkCustomFilters()
    {
        const AppSettingsRec &app = m_doc.AppSettings;
        m_subject = "log";
        if (app.customFilterCount > layout::MaxCustomFilters) {
            const int over = app.customFilterCount - layout::MaxCustomFilters;
            report("customFilterCount is " + std::to_string(app.customFilterCount) +
                       ", more than the " + std::to_string(layout::MaxCustomFilters) +
                       " custom filters a project file holds: remove " +
                       counted(over, "custom filter") + " in Edit Custom Filters" + NotReadBack,
                   true);
        }
        checkCount(
            "customFilterCount", app.customFilterCount, usedIn(app.CustomFilters), "custom filter");
        if (app.customFilterCount < 1)
            return;
        int number = 0;
        for (const CustomFilterRec &filter : app.CustomFilters) {
            if (filter.inUse != -1)
                continue;
            m_subject = "custom filter " + std::to_string(++number);
            checkStarred("text", filter.text);
            carried(filter, layout::CustomFilterLine);
        }
    }

    const Document &m_doc;
    std::string_view m_file;
    std::array<std::unordered_set<std::string_view>, KindCount> m_ids;
    std::string m_subject;
    std::optional<ObjectRef> m_object;
    std::vector<ProjectProblem> m_problems;
};

} // namespace

bool projectFileCarries(std::string_view text)
{
    return text.find_first_of("\r\n") == std::string_view::npos &&
           text.find("\",") == std::string_view::npos;
}

std::vector<ProjectProblem> findProjectProblems(const Document &doc, std::string_view file)
{
    return Checker(doc, file).run();
}

std::vector<ProjectProblem> fullProjectCheck(const Document &doc, std::string_view file)
{
    std::vector<ProjectProblem> problems = findProjectProblems(doc, file);
    for (ProjectProblem &warning : missingFileWarnings(doc, file))
        problems.push_back(std::move(warning));
    return problems;
}

std::vector<std::string> checkProject(const Document &doc, std::string_view file)
{
    std::vector<std::string> lines;
    for (ProjectProblem &problem : findProjectProblems(doc, file))
        lines.push_back(std::move(problem.line));
    return lines;
}

std::vector<std::string> projectFileProblems(const Document &doc, std::string_view file)
{
    std::vector<std::string> lines;
    for (ProjectProblem &problem : findProjectProblems(doc, file)) {
        if (problem.breaksProjectFile)
            lines.push_back(std::move(problem.line));
    }
    return lines;
}

} // namespace vorlane
