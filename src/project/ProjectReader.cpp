#include "project/ProjectReader.h"

#include "io/Cp1252.h"
#include "model/Kinds.h"
#include "project/ProjectLayout.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <tuple>

namespace vorlane {

namespace {

// Thrown at the first damaged field; readProject turns it into its result.
struct Damage
{
    int line;
    std::string message;
};

std::string joined(std::string_view a, std::string_view b, std::string_view c = {})
{
    std::string out;
    out.reserve(a.size() + b.size() + c.size());
    out.append(a).append(b).append(c);
    return out;
}

// Reads the fields of one buffer in a single pass, counting lines as it goes.
class FieldReader
{
public:
    FieldReader(std::string_view bytes, bool utf8, const ReadOptions &options)
        : m_pos(bytes.data())
        , m_end(bytes.data() + bytes.size())
        , m_utf8(utf8)
        , m_options(options)
    {}

    const ReadOptions &options() const { return m_options; }

    void text(std::string &out, const char *name)
    {
        if (m_pos == m_end)
            fail("the file ends where text in double quotes was expected for ", name);
        if (*m_pos != '"')
            fail("text in double quotes was expected for ", name);
        const char *begin = m_pos + 1;
        const char *p = begin;
        unsigned char high = 0;
        // Texts are written without escapes, so a double quote that a comma or a line end
        // does not follow belongs to the text: a quoted word inside a text reads back intact.
        for (;;) {
            while (p != m_end && *p != '"' && *p != '\r' && *p != '\n') {
                high |= static_cast<unsigned char>(*p);
                ++p;
            }
            if (p == m_end || *p != '"')
                fail("the text for ", name, " has no closing double quote");
            const char *after = p + 1;
            if (after == m_end || *after == ',' || *after == '\r' || *after == '\n')
                break;
            ++p;
        }
        if (high < 0x80) {
            out.assign(begin, p);
        } else {
            out.clear();
            const std::string_view bytes(begin, static_cast<size_t>(p - begin));
            if (m_utf8)
                appendCleanUtf8(out, bytes);
            else
                appendUtf8(out, bytes);
        }
        m_pos = p + 1;
        endField(name);
    }

    // A number is what std::from_chars takes for an integer: an optional "-" and digits.
    template<class Int>
    [[gnu::always_inline]] void number(Int &out, const char *name, int64_t min, int64_t max)
    {
        int64_t value = 0;
        const char *p = m_pos;
        if (!quickNumber(value, p))
            p = longNumber(value, name, max);
        if (value < min || value > max)
            failRange(name, min, max);
        out = static_cast<Int>(value);
        m_pos = p;
        endField(name);
    }

    // Reads the cells of up to `count` frames, one a line, into `frames`, and marks them used;
    // returns how many it read. A line of one to four digits alone, as a cell mostly is, is
    // read here in a tight loop: such lines are the bulk of a large project. It stops at the
    // first other line, which the caller reads field by field.
    int quickCells(FrameRec *frames, int count)
    {
        const char *p = m_pos;
        int done = 0;
        for (; done < count && m_end - p >= 6; ++done) {
            // One or two digits and CR LF, as most cells are, in one four-byte comparison.
            if constexpr (std::endian::native == std::endian::little) {
                uint32_t line;
                std::memcpy(&line, p, sizeof line);
                const uint32_t first = (line & 0xFF) - '0';
                const uint32_t second = ((line >> 8) & 0xFF) - '0';
                if ((line >> 16) == 0x0A0D && first <= 9 && second <= 9) {
                    frames[done].cell = static_cast<int16_t>(first * 10 + second);
                    frames[done].inUse = -1;
                    p += 4;
                    continue;
                }
                if (((line >> 8) & 0xFFFF) == 0x0A0D && first <= 9) {
                    frames[done].cell = static_cast<int16_t>(first);
                    frames[done].inUse = -1;
                    p += 3;
                    continue;
                }
            }
            unsigned value = digit(p[0]);
            if (value > 9)
                break;
            const char *q = p + 1;
            for (int i = 1; i < 4 && digit(*q) <= 9; ++i, ++q)
                value = value * 10 + digit(*q);
            if (q[0] == '\r' && q[1] == '\n')
                p = q + 2;
            else if (q[0] == '\n')
                p = q + 1;
            else
                break;
            frames[done].cell = static_cast<int16_t>(value);
            frames[done].inUse = -1;
        }
        m_pos = p;
        m_line += done;
        return done;
    }

private:
    static unsigned digit(char c) { return static_cast<unsigned char>(c) - unsigned('0'); }

    // Reads one to four digits without a sign, the bulk of any project file, at a fraction of
    // the cost of std::from_chars, which takes everything else and the last bytes of the file.
    [[gnu::always_inline]] bool quickNumber(int64_t &value, const char *&p) const
    {
        if (m_end - p < 5 || digit(p[0]) > 9)
            return false;
        unsigned result = digit(p[0]);
        int length = 1;
        for (; length < 4 && digit(p[length]) <= 9; ++length)
            result = result * 10 + digit(p[length]);
        if (digit(p[length]) <= 9)
            return false;
        value = result;
        p += length;
        return true;
    }

    // Reads a number the quick way cannot; `max` stands for any value too large to keep.
    [[gnu::noinline]] const char *longNumber(int64_t &value, const char *name, int64_t max) const
    {
        if (m_pos == m_end)
            fail("the file ends where a number was expected for ", name);
        const auto [end, error] = std::from_chars(m_pos, m_end, value);
        if (error == std::errc::invalid_argument)
            fail("a number was expected for ", name);
        if (error != std::errc())
            value = max + 1; // beyond int64_t, and so beyond every field
        return end;
    }

    // A field ends at a comma, a line end or the end of the file.
    [[gnu::always_inline]] void endField(const char *name)
    {
        if (m_pos == m_end)
            return;
        if (*m_pos == ',') {
            ++m_pos;
        } else if (*m_pos == '\r' && m_pos + 1 != m_end && m_pos[1] == '\n') {
            m_pos += 2;
            ++m_line;
        } else if (*m_pos == '\n') {
            ++m_pos;
            ++m_line;
        } else if (*m_pos == '\r' && m_pos + 1 == m_end) { // the last line end, cut short
            ++m_pos;
        } else {
            fail("unexpected characters after ", name);
        }
    }

    // Out of line, so that building a message costs the fields that are fine nothing.
    [[noreturn, gnu::cold, gnu::noinline]] void
    fail(std::string_view a, std::string_view b, std::string_view c = {}) const
    {
        throw Damage{m_line, joined(a, b, c)};
    }

    [[noreturn, gnu::cold, gnu::noinline]] void
    failRange(const char *name, int64_t min, int64_t max) const
    {
        fail(name, " must lie between ", std::to_string(min) + " and " + std::to_string(max));
    }

    const char *m_pos;
    const char *m_end;
    bool m_utf8;
    ReadOptions m_options;
    int m_line = 1;
};

template<class Rec, class R>
void readField(FieldReader &in, Rec &rec, const layout::TextField<R> &field)
{
    in.text(rec.*field.member, field.name);
}

template<class Rec, class R, class Int>
void readField(FieldReader &in, Rec &rec, const layout::IntField<R, Int> &field)
{
    in.number(rec.*field.member, field.name, field.min, field.max);
}

template<class Rec, class Line>
void readFields(FieldReader &in, Rec &rec, const Line &line)
{
    std::apply([&](const auto &...field) { (readField(in, rec, field), ...); }, line);
}

void readRecord(FieldReader &in, ButtonRec &button)
{
    readFields(in, button, layout::ButtonHead);
    if (layout::isHotSpotId(button.id)) {
        // A hot spot's cursor is dropped on purpose: it comes back as "null".
        button.isHotSpot = 1;
        if (!in.options().keepFileValues)
            button.cursorId = "null";
        button.frameDisabled = 0;
        button.frameUp = 1;
        for (std::string *reference : {&button.captionTextId,
                                       &button.iconId,
                                       &button.soundDisabled,
                                       &button.soundDown,
                                       &button.soundOver,
                                       &button.soundUp})
            *reference = "null";
        readFields(in, button, layout::HotSpotTail);
    } else {
        button.isHotSpot = 0;
        readFields(in, button, layout::ButtonTail);
    }
}

void readRecord(FieldReader &in, ImageRec &image)
{
    readFields(in, image, layout::ImageLine);
}

void readRecord(FieldReader &in, CursorRec &cursor)
{
    readFields(in, cursor, layout::CursorLine);
}

void readRecord(FieldReader &in, TextRec &text)
{
    readFields(in, text, layout::TextLine);
}

void readRecord(FieldReader &in, FontRec &font)
{
    readFields(in, font, layout::FontLine);
}

void readRecord(FieldReader &in, MusicRec &music) // also sound effects
{
    readFields(in, music, layout::MusicLine);
}

// Animations and frames land in the lowest slots, whatever slots they had when saved.
void readRecord(FieldReader &in, SpriteRec &sprite)
{
    readFields(in, sprite, layout::SpriteLine);
    for (int a = 0; a < sprite.animCount; ++a) {
        AnimRec &anim = sprite.anims[static_cast<size_t>(a)];
        readFields(in, anim, layout::AnimLine);
        for (int f = 0; f < anim.frameCount; ++f) {
            f += in.quickCells(&anim.frames[static_cast<size_t>(f)], anim.frameCount - f);
            if (f == anim.frameCount)
                break;
            FrameRec &frame = anim.frames[static_cast<size_t>(f)];
            readFields(in, frame, layout::FrameLine);
            frame.inUse = -1;
        }
        readFields(in, anim, layout::AnimSettingsLine);
        anim.inUse = -1;
    }
}

void readRecord(FieldReader &in, SceneRec &scene)
{
    readFields(in, scene, layout::SceneLine);
    for (int l = 0; l < SubSlotCount; ++l) {
        LayerRec &layer = scene.layers[static_cast<size_t>(l)];
        if (l < scene.layerCount) {
            readFields(in, layer, layout::LayerLine);
            layer.inUse = -1;
        } else {
            // Layer flags outlive InitData; a scene holds exactly the layers of its file, so
            // that saving it again cannot write more layers than its layerCount announces.
            layer.inUse = 0;
        }
    }
}

template<size_t N>
void readFilterValues(FieldReader &in, std::array<int16_t, N> &values, std::string_view name)
{
    for (size_t i = 0; i < N; ++i) {
        const std::string field = std::string(name) + "[" + std::to_string(i) + "]";
        in.number(values[i], field.c_str(), INT16_MIN, INT16_MAX);
    }
}

void readLog(FieldReader &in, Document &doc)
{
    AppSettingsRec &app = doc.AppSettings;
    readFields(in, app, layout::LogCountsLine);
    readFilterValues(in, app.logTypeFilters, "logTypeFilters");
    readFilterValues(in, app.logFileFilters, "logFileFilters");
    readFields(in, app, layout::CustomFilterCountLine);
    doc.customFilterOverflow = app.customFilterCount;
    for (int slot = 1; slot <= app.customFilterCount; ++slot) {
        CustomFilterRec &filter = app.CustomFilters[static_cast<size_t>(slot)];
        readFields(in, filter, layout::CustomFilterLine);
        filter.inUse = -1;
    }
}

void readApplication(FieldReader &in, AppSettingsRec &app)
{
    readFields(in, app, layout::AppLine1);
    if (app.splashEnabled == 1) {
        readFields(in, app, layout::AppSplashLine);
    } else {
        const int16_t splashEnabled = app.splashEnabled;
        resetSplash(app);
        if (in.options().keepFileValues)
            app.splashEnabled = splashEnabled;
    }
    readFields(in, app, layout::AppLine3);
}

void readDocument(FieldReader &in, Document &doc, ProgressSink &progress)
{
    readFields(in, doc.ProjectInfo, layout::ProjectNameLine);
    readFields(in, doc.ProjectInfo, layout::ProjectPathLine);

    int total = 0;
    for (Kind kind : ListOrder) {
        const KindInfo &info = kindInfo(kind);
        const std::string name = std::string(info.name) + " count";
        in.number(doc.objectCount(kind), name.c_str(), 0, info.lastSlot + 1);
        total += doc.objectCount(kind);
    }
    progress.setMaximum(total);

    progress.setLabel("Loading Application Data...");
    readApplication(in, doc.AppSettings);

    int done = 0;
    for (Kind kind : FileOrder) {
        progress.setLabel(kindInfo(kind).loadLabel);
        ObjectList &list = doc.list(kind);
        const int count = doc.objectCount(kind);
        withTable(doc, kind, [&](auto &table) {
            for (int slot = 0; slot < count; ++slot) {
                auto &rec = table[static_cast<size_t>(slot)];
                readRecord(in, rec);
                list.lines.push_back({rec.id, static_cast<int16_t>(slot)});
                rec.inUse = -1;
                rec.isNew = 0;
                progress.setValue(++done);
            }
        });
    }

    progress.setLabel("Loading Log Data...");
    readLog(in, doc);
}

} // namespace

ProjectReadResult readProject(std::string_view bytes, Document &doc, ProgressSink &progress)
{
    return readProject(bytes, doc, progress, ReadOptions{});
}

ProjectReadResult readProject(std::string_view bytes,
                              Document &doc,
                              ProgressSink &progress,
                              const ReadOptions &options)
{
    if (bytes.empty())
        return {ProjectReadResult::Status::Empty, 0, {}};
    // A file that begins with the byte order mark is UTF-8; any other is Windows-1252.
    const bool utf8 = bytes.starts_with(layout::Utf8Mark);
    if (utf8)
        bytes.remove_prefix(layout::Utf8Mark.size());
    FieldReader in(bytes, utf8, options);
    try {
        readDocument(in, doc, progress);
    } catch (Damage &damage) {
        return {ProjectReadResult::Status::Damaged, damage.line, std::move(damage.message)};
    }
    return {};
}

ProjectReadResult readProject(std::string_view bytes, Document &doc)
{
    ProgressSink quiet;
    return readProject(bytes, doc, quiet);
}

std::string damageText(std::string_view file, int line, std::string_view message)
{
    // Appended piece by piece: g++ 12 at -O3 warns falsely (-Wrestrict) on ":" + std::string.
    std::string where(":");
    where.append(std::to_string(line)).append(": ");
    return joined(file, where, message);
}

} // namespace vorlane
