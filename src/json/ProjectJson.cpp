#include "json/ProjectJson.h"

#include "model/Kinds.h"
#include "project/ProjectCheck.h"
#include "project/ProjectLayout.h"

#include <algorithm>
#include <tuple>

namespace vorlane {

namespace {

constexpr std::array<JsonKind, KindCount> Kinds{{
    {Kind::Button, "buttons", "button", "buttons"},
    {Kind::Image, "images", "image", "images"},
    {Kind::Cursor, "cursors", "cursor", "cursors"},
    {Kind::Text, "texts", "text", "texts"},
    {Kind::Font, "fonts", "font", "fonts"},
    {Kind::Music, "music", "music", "music tracks"},
    {Kind::SFX, "soundEffects", "sound effect", "sound effects"},
    {Kind::Sprite, "sprites", "sprite", "sprites"},
    {Kind::Scene, "scenes", "scene", "scenes"},
}};

// --- Export: the fields of a line by name; counts become the lengths of arrays. ---

template<class Rec, class R>
void put(Json &obj, const Rec &rec, const layout::TextField<R> &field)
{
    obj.emplace(field.name, rec.*field.member);
}

template<class Rec, class R, class Int>
void put(Json &obj, const Rec &rec, const layout::IntField<R, Int> &field)
{
    obj.emplace(field.name, rec.*field.member);
}

template<class Rec, class R>
void put(Json &, const Rec &, const layout::CountField<R> &)
{}

template<class Rec, class Line>
void putLine(Json &obj, const Rec &rec, const Line &line)
{
    std::apply([&](const auto &...field) { (put(obj, rec, field), ...); }, line);
}

Json recordJson(const ButtonRec &button)
{
    Json obj = Json::object();
    putLine(obj, button, layout::ButtonHead);
    if (layout::isHotSpotId(button.id))
        putLine(obj, button, layout::HotSpotTail);
    else
        putLine(obj, button, layout::ButtonTail);
    return obj;
}

template<class Rec, class Line>
Json lineJson(const Rec &rec, const Line &line)
{
    Json obj = Json::object();
    putLine(obj, rec, line);
    return obj;
}

Json recordJson(const ImageRec &image)
{
    return lineJson(image, layout::ImageLine);
}
Json recordJson(const CursorRec &cursor)
{
    return lineJson(cursor, layout::CursorLine);
}
Json recordJson(const TextRec &text)
{
    return lineJson(text, layout::TextLine);
}
Json recordJson(const FontRec &font)
{
    return lineJson(font, layout::FontLine);
}
Json recordJson(const MusicRec &music) // also sound effects
{
    return lineJson(music, layout::MusicLine);
}

Json recordJson(const SpriteRec &sprite)
{
    Json obj = lineJson(sprite, layout::SpriteLine);
    Json anims = Json::array();
    if (sprite.animCount > 0) {
        for (const AnimRec &anim : sprite.anims) {
            if (anim.inUse != -1)
                continue;
            Json a = lineJson(anim, layout::AnimLine);
            Json frames = Json::array();
            if (anim.frameCount > 0) {
                frames.get_ref<Json::array_t &>().reserve(static_cast<size_t>(anim.frameCount));
                for (const FrameRec &frame : anim.frames)
                    if (frame.inUse == -1)
                        frames.push_back(frame.cell);
            }
            a.emplace("frames", std::move(frames));
            putLine(a, anim, layout::AnimSettingsLine);
            anims.push_back(std::move(a));
        }
    }
    obj.emplace("animations", std::move(anims));
    return obj;
}

Json recordJson(const SceneRec &scene)
{
    Json obj = lineJson(scene, layout::SceneLine);
    Json layers = Json::array();
    if (scene.layerCount > 0) {
        for (const LayerRec &layer : scene.layers)
            if (layer.inUse == -1)
                layers.push_back(lineJson(layer, layout::LayerLine));
    }
    obj.emplace("layers", std::move(layers));
    return obj;
}

Json logJson(const AppSettingsRec &app)
{
    Json log = lineJson(app, layout::LogCountsLine);
    log.emplace("logTypeFilters", app.logTypeFilters);
    log.emplace("logFileFilters", app.logFileFilters);
    Json filters = Json::array();
    if (app.customFilterCount > 0) {
        for (const CustomFilterRec &filter : app.CustomFilters)
            if (filter.inUse == -1)
                filters.push_back(filter.text);
    }
    log.emplace("customFilters", std::move(filters));
    return log;
}

Json settingsJson(const AppSettingsRec &app)
{
    Json settings = lineJson(app, layout::AppLine1);
    if (app.splashEnabled == 1)
        putLine(settings, app, layout::AppSplashLine);
    putLine(settings, app, layout::AppLine3);
    return settings;
}

// "an image", "a button".
std::string withArticle(std::string_view name)
{
    const bool vowel = std::string_view("aeiou").find(name.front()) != std::string_view::npos;
    return (vowel ? "an " : "a ") + std::string(name);
}

// --- Import: every value checked, its JSON pointer kept for the message. ---

// The JSON pointer token of `key`: "~" and "/" escaped.
std::string pointerToken(std::string_view key)
{
    std::string token;
    for (char c : key) {
        if (c == '~')
            token += "~0";
        else if (c == '/')
            token += "~1";
        else
            token += c;
    }
    return token;
}

class Importer
{
public:
    explicit Importer(Document &doc)
        : m_doc(doc)
    {}

    void run(const Json &json)
    {
        expectObject(json, "a project");
        allowOnly(json,
                  {"format",
                   "project",
                   "settings",
                   "buttons",
                   "images",
                   "cursors",
                   "texts",
                   "fonts",
                   "music",
                   "soundEffects",
                   "sprites",
                   "scenes",
                   "log"},
                  "a project");
        {
            const Json &format = member(json, "format");
            Step step(*this, "format");
            if (format != ProjectJsonFormat)
                fail(std::string("\"") + ProjectJsonFormat + "\" was expected");
        }
        readProjectInfo(child(json, "project"));
        readSettings(child(json, "settings"));
        for (const JsonKind &kind : Kinds)
            readKind(json, kind);
        readLog(child(json, "log"));
    }

private:
    // Adds one token to the pointer while it lives.
    class Step
    {
    public:
        Step(Importer &importer, std::string_view key)
            : m_importer(importer)
            , m_size(importer.m_path.size())
        {
            importer.m_path.append("/").append(pointerToken(key));
        }
        Step(Importer &importer, size_t index)
            : m_importer(importer)
            , m_size(importer.m_path.size())
        {
            importer.m_path.append("/").append(std::to_string(index));
        }
        ~Step() { m_importer.m_path.resize(m_size); }
        Step(const Step &) = delete;
        Step &operator=(const Step &) = delete;

    private:
        Importer &m_importer;
        size_t m_size;
    };

    [[noreturn]] void fail(std::string message) const
    {
        throw JsonValueError{m_path, std::move(message)};
    }

    void expectObject(const Json &value, const char *what) const
    {
        if (!value.is_object())
            fail(std::string("an object was expected (") + what + ")");
    }

    void expectArray(const Json &value, const char *what) const
    {
        if (!value.is_array())
            fail(std::string("an array was expected (") + what + ")");
    }

    const Json &member(const Json &obj, const char *name) const
    {
        const auto found = obj.find(name);
        if (found == obj.end())
            fail(std::string("the field \"") + name + "\" is missing");
        return *found;
    }

    // `obj`'s member `name`, which must be an object.
    const Json &child(const Json &obj, const char *name)
    {
        const Json &value = member(obj, name);
        Step step(*this, name);
        expectObject(value, name);
        return value;
    }

    void allowOnly(const Json &obj, std::initializer_list<std::string_view> names, const char *what)
    {
        for (auto it = obj.begin(); it != obj.end(); ++it) {
            if (std::find(names.begin(), names.end(), it.key()) == names.end()) {
                Step step(*this, it.key());
                fail(std::string(what) + " has no field \"" + it.key() + "\"");
            }
        }
    }

    void text(const Json &value, std::string &out)
    {
        if (!value.is_string())
            fail("a text in double quotes was expected");
        const std::string &text = value.get_ref<const std::string &>();
        if (!projectFileCarries(text))
            fail("a project file cannot carry a text that holds a line break or a double quote "
                 "followed by a comma");
        out = text;
    }

    template<class Int>
    void number(const Json &value, Int &out, int64_t min, int64_t max)
    {
        bool fits = false;
        if (value.is_number_unsigned())
            fits = value.get<uint64_t>() <= static_cast<uint64_t>(max);
        else if (value.is_number_integer())
            fits = value.get<int64_t>() >= min && value.get<int64_t>() <= max;
        if (!fits)
            fail("a whole number from " + std::to_string(min) + " to " + std::to_string(max) +
                 " was expected");
        out = static_cast<Int>(value.get<int64_t>());
    }

    template<class Rec, class R>
    void get(const Json &obj, Rec &rec, const layout::TextField<R> &field)
    {
        const Json &value = member(obj, field.name);
        Step step(*this, field.name);
        text(value, rec.*field.member);
    }

    template<class Rec, class R, class Int>
    void get(const Json &obj, Rec &rec, const layout::IntField<R, Int> &field)
    {
        const Json &value = member(obj, field.name);
        Step step(*this, field.name);
        number(value, rec.*field.member, field.min, field.max);
    }

    template<class Rec, class R>
    void get(const Json &, Rec &, const layout::CountField<R> &)
    {}

    template<class Rec, class Line>
    void getLine(const Json &obj, Rec &rec, const Line &line)
    {
        std::apply([&](const auto &...field) { (get(obj, rec, field), ...); }, line);
    }

    // Field names of `lines` plus `extra`, for allowOnly.
    template<class... Lines>
    void allowLines(const Json &obj,
                    const char *what,
                    std::initializer_list<std::string_view> extra,
                    const Lines &...lines)
    {
        std::vector<std::string_view> names(extra);
        (std::apply([&](const auto &...field) { (names.push_back(field.name), ...); }, lines), ...);
        for (auto it = obj.begin(); it != obj.end(); ++it) {
            if (std::find(names.begin(), names.end(), it.key()) == names.end()) {
                Step step(*this, it.key());
                fail(std::string(what) + " has no field \"" + it.key() + "\"");
            }
        }
    }

    // An array of at most `max` items named `what`.
    const Json &
    array(const Json &obj, const char *name, size_t max, const char *holder, const char *what)
    {
        const Json &value = member(obj, name);
        Step step(*this, name);
        expectArray(value, name);
        if (value.size() > max)
            fail(std::string(holder) + " holds at most " + std::to_string(max) + " " + what);
        return value;
    }

    void readProjectInfo(const Json &obj)
    {
        Step step(*this, "project");
        allowLines(obj, "the project", {}, layout::ProjectNameLine, layout::ProjectPathLine);
        getLine(obj, m_doc.ProjectInfo, layout::ProjectNameLine);
        getLine(obj, m_doc.ProjectInfo, layout::ProjectPathLine);
    }

    void readSettings(const Json &obj)
    {
        Step step(*this, "settings");
        AppSettingsRec &app = m_doc.AppSettings;
        allowLines(
            obj, "the settings", {}, layout::AppLine1, layout::AppSplashLine, layout::AppLine3);
        getLine(obj, app, layout::AppLine1);
        if (app.splashEnabled == 1) {
            getLine(obj, app, layout::AppSplashLine);
        } else {
            std::apply([&](const auto &...field) { (refuseSplash(obj, field.name), ...); },
                       layout::AppSplashLine);
            // As the reader keeps it for the JSON form: the flag as the file holds it.
            const int16_t splashEnabled = app.splashEnabled;
            resetSplash(app);
            app.splashEnabled = splashEnabled;
        }
        getLine(obj, app, layout::AppLine3);
    }

    void refuseSplash(const Json &obj, const char *name)
    {
        if (obj.contains(name)) {
            Step step(*this, name);
            fail("the splash values are written only when splashEnabled is 1");
        }
    }

    void readKind(const Json &json, const JsonKind &kind)
    {
        const KindInfo &info = kindInfo(kind.kind);
        const size_t max = static_cast<size_t>(info.lastSlot + 1);
        const Json &items = array(json, kind.key, max, "a project", kind.plural);
        const std::string what = withArticle(kind.name);
        Step step(*this, kind.key);
        ObjectList &list = m_doc.list(kind.kind);
        withTable(m_doc, kind.kind, [&](auto &table) {
            for (size_t i = 0; i < items.size(); ++i) {
                Step item(*this, i);
                expectObject(items[i], kind.name);
                auto &rec = table[i];
                readRecord(items[i], rec, what.c_str());
                rec.inUse = -1;
                rec.isNew = 0;
                list.lines.push_back({rec.id, static_cast<int16_t>(i)});
            }
        });
        m_doc.objectCount(kind.kind) = static_cast<int16_t>(items.size());
    }

    void readRecord(const Json &obj, ButtonRec &button, const char *what)
    {
        {
            const Json &id = member(obj, "id");
            Step step(*this, "id");
            text(id, button.id);
        }
        if (layout::isHotSpotId(button.id)) {
            allowLines(obj,
                       "a hot spot (a button whose id begins with \"_\")",
                       {},
                       layout::ButtonHead,
                       layout::HotSpotTail);
            getLine(obj, button, layout::ButtonHead);
            getLine(obj, button, layout::HotSpotTail);
            // What the reader sets for the fields a hot spot's line does not hold.
            button.isHotSpot = 1;
            button.frameDisabled = 0;
            button.frameUp = 1;
            for (std::string *reference : {&button.captionTextId,
                                           &button.iconId,
                                           &button.soundDisabled,
                                           &button.soundDown,
                                           &button.soundOver,
                                           &button.soundUp})
                *reference = "null";
        } else {
            allowLines(obj, what, {}, layout::ButtonHead, layout::ButtonTail);
            getLine(obj, button, layout::ButtonHead);
            getLine(obj, button, layout::ButtonTail);
            button.isHotSpot = 0;
        }
    }

    template<class Rec, class Line>
    void readPlain(const Json &obj, Rec &rec, const char *what, const Line &line)
    {
        allowLines(obj, what, {}, line);
        getLine(obj, rec, line);
    }

    void readRecord(const Json &obj, ImageRec &rec, const char *what)
    {
        readPlain(obj, rec, what, layout::ImageLine);
    }
    void readRecord(const Json &obj, CursorRec &rec, const char *what)
    {
        readPlain(obj, rec, what, layout::CursorLine);
    }
    void readRecord(const Json &obj, TextRec &rec, const char *what)
    {
        readPlain(obj, rec, what, layout::TextLine);
    }
    void readRecord(const Json &obj, FontRec &rec, const char *what)
    {
        readPlain(obj, rec, what, layout::FontLine);
    }
    void readRecord(const Json &obj, MusicRec &rec, const char *what)
    {
        readPlain(obj, rec, what, layout::MusicLine);
    }

    void readRecord(const Json &obj, SpriteRec &sprite, const char *what)
    {
        allowLines(obj, what, {"animations"}, layout::SpriteLine);
        getLine(obj, sprite, layout::SpriteLine);
        const Json &anims = array(obj, "animations", SubSlotCount, "a sprite", "animations");
        Step step(*this, "animations");
        for (size_t a = 0; a < anims.size(); ++a) {
            Step item(*this, a);
            const Json &json = anims[a];
            expectObject(json, "animation");
            AnimRec &anim = sprite.anims[a];
            allowLines(
                json, "an animation", {"frames"}, layout::AnimLine, layout::AnimSettingsLine);
            getLine(json, anim, layout::AnimLine);
            const Json &frames = array(json, "frames", SubSlotCount, "an animation", "frames");
            {
                Step framesStep(*this, "frames");
                for (size_t f = 0; f < frames.size(); ++f) {
                    Step frame(*this, f);
                    number(frames[f], anim.frames[f].cell, INT16_MIN, INT16_MAX);
                    anim.frames[f].inUse = -1;
                }
            }
            anim.frameCount = static_cast<int16_t>(frames.size());
            getLine(json, anim, layout::AnimSettingsLine);
            anim.inUse = -1;
        }
        sprite.animCount = static_cast<int16_t>(anims.size());
    }

    void readRecord(const Json &obj, SceneRec &scene, const char *what)
    {
        allowLines(obj, what, {"layers"}, layout::SceneLine);
        getLine(obj, scene, layout::SceneLine);
        const Json &layers = array(obj, "layers", SubSlotCount, "a scene", "layers");
        Step step(*this, "layers");
        for (size_t l = 0; l < layers.size(); ++l) {
            Step item(*this, l);
            expectObject(layers[l], "layer");
            readPlain(layers[l], scene.layers[l], "a layer", layout::LayerLine);
            scene.layers[l].inUse = -1;
        }
        scene.layerCount = static_cast<int16_t>(layers.size());
    }

    template<size_t N>
    void filterValues(const Json &obj, const char *name, std::array<int16_t, N> &values)
    {
        const Json &array = member(obj, name);
        Step step(*this, name);
        expectArray(array, name);
        if (array.size() != N)
            fail("an array of " + std::to_string(N) + " whole numbers was expected");
        for (size_t i = 0; i < N; ++i) {
            Step item(*this, i);
            number(array[i], values[i], INT16_MIN, INT16_MAX);
        }
    }

    void readLog(const Json &obj)
    {
        Step step(*this, "log");
        AppSettingsRec &app = m_doc.AppSettings;
        allowLines(obj,
                   "the log",
                   {"logTypeFilters", "logFileFilters", "customFilters"},
                   layout::LogCountsLine);
        getLine(obj, app, layout::LogCountsLine);
        filterValues(obj, "logTypeFilters", app.logTypeFilters);
        filterValues(obj, "logFileFilters", app.logFileFilters);
        const Json &filters =
            array(obj, "customFilters", layout::MaxCustomFilters, "the log", "custom filters");
        Step filtersStep(*this, "customFilters");
        // The reader fills slots 1 and up.
        for (size_t i = 0; i < filters.size(); ++i) {
            Step item(*this, i);
            CustomFilterRec &filter = app.CustomFilters[i + 1];
            text(filters[i], filter.text);
            filter.inUse = -1;
        }
        app.customFilterCount = static_cast<int16_t>(filters.size());
        m_doc.customFilterOverflow = app.customFilterCount;
    }

    Document &m_doc;
    std::string m_path;
};

} // namespace

const std::array<JsonKind, KindCount> &jsonKinds()
{
    return Kinds;
}

ProjectReadResult readProjectForJson(std::string_view bytes, Document &doc)
{
    ProgressSink quiet;
    ReadOptions options;
    options.keepFileValues = true;
    return readProject(bytes, doc, quiet, options);
}

Json projectToJson(const Document &doc)
{
    Json json = Json::object();
    json.emplace("format", ProjectJsonFormat);
    json.emplace("project", [&] {
        Json project = lineJson(doc.ProjectInfo, layout::ProjectNameLine);
        putLine(project, doc.ProjectInfo, layout::ProjectPathLine);
        return project;
    }());
    json.emplace("settings", settingsJson(doc.AppSettings));
    for (const JsonKind &kind : Kinds) {
        Json items = Json::array();
        withTable(doc, kind.kind, [&](const auto &table) {
            for (const ListLine &line : doc.list(kind.kind).lines)
                items.push_back(recordJson(table.at(static_cast<size_t>(line.slot))));
        });
        json.emplace(kind.key, std::move(items));
    }
    json.emplace("log", logJson(doc.AppSettings));
    return json;
}

std::string jsonText(const Json &json)
{
    std::string text = json.dump(2);
    text.push_back('\n');
    return text;
}

void projectFromJson(const Json &json, Document &doc)
{
    Importer(doc).run(json);
}

} // namespace vorlane
