#include "project/ProjectWriter.h"

#include "io/Cp1252.h"
#include "model/Kinds.h"
#include "project/ProjectLayout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string_view>
#include <tuple>

namespace vorlane {

namespace {

// The digits of 0..999 and their number, the last of the four bytes: flags, cells and colours
// are written by one copy each.
constexpr auto SmallNumbers = [] {
    std::array<std::array<char, 4>, 1000> table{};
    for (int value = 0; value < 1000; ++value) {
        auto &entry = table[static_cast<size_t>(value)];
        const int digits = value < 10 ? 1 : value < 100 ? 2 : 3;
        for (int i = digits - 1, rest = value; i >= 0; --i, rest /= 10)
            entry[static_cast<size_t>(i)] = static_cast<char>('0' + rest % 10);
        entry[3] = static_cast<char>(digits);
    }
    return table;
}();

// Builds the file in one buffer. Every write claims its room first and then fills it through
// a pointer, so writing a field never allocates.
class LineWriter
{
public:
    LineWriter(size_t expectedSize, bool utf8)
        : m_utf8(utf8)
    {
        m_buf.resize(expectedSize);
        m_cur = m_buf.data();
        m_limit = m_buf.data() + m_buf.size();
        start();
    }

    void text(std::string_view utf8)
    {
        // Neither Windows-1252 nor cleaned UTF-8 takes more bytes than the UTF-8 it comes from.
        char *p = room(utf8.size() + 2);
        *p++ = '"';
        size_t ascii = 0;
        while (ascii < utf8.size() && static_cast<unsigned char>(utf8[ascii]) < 0x80)
            ++ascii;
        std::memcpy(p, utf8.data(), ascii);
        p += ascii;
        if (ascii < utf8.size()) {
            m_scratch.clear();
            if (m_utf8)
                appendCleanUtf8(m_scratch, utf8.substr(ascii));
            else
                appendCp1252(m_scratch, utf8.substr(ascii));
            std::memcpy(p, m_scratch.data(), m_scratch.size());
            p += m_scratch.size();
        }
        *p++ = '"';
        m_cur = p;
    }

    void number(int32_t value) { m_cur = put(room(11), value); } // "-2147483648"

    // The lines of the used frames' cells, in slot order: the bulk of a large project,
    // written in one loop with room claimed once.
    void cells(const std::array<FrameRec, SubSlotCount> &frames)
    {
        char *p = room(frames.size() * 8); // "-32768" and CR LF
        for (const FrameRec &frame : frames) {
            if (frame.inUse != -1)
                continue;
            p = put(p, frame.cell);
            p[0] = '\r';
            p[1] = '\n';
            p += 2;
        }
        m_cur = p;
    }

    void comma()
    {
        *room(1) = ',';
        ++m_cur;
    }

    void endLine()
    {
        char *p = room(2);
        p[0] = '\r';
        p[1] = '\n';
        m_cur = p + 2;
    }

    std::string take()
    {
        m_buf.resize(static_cast<size_t>(m_cur - m_buf.data()));
        m_cur = m_limit = nullptr;
        return std::move(m_buf);
    }

private:
    // A UTF-8 file begins with its byte order mark.
    void start()
    {
        if (!m_utf8)
            return;
        char *p = room(layout::Utf8Mark.size());
        std::memcpy(p, layout::Utf8Mark.data(), layout::Utf8Mark.size());
        m_cur = p + layout::Utf8Mark.size();
    }

    // Writes `value` at `p`, which has room for it, and returns the end.
    static char *put(char *p, int32_t value)
    {
        if (static_cast<uint32_t>(value) < SmallNumbers.size()) {
            const auto &digits = SmallNumbers[static_cast<size_t>(value)];
            std::memcpy(p, digits.data(), digits.size());
            return p + digits[3];
        }
        return std::to_chars(p, p + 11, value).ptr;
    }

    char *room(size_t size)
    {
        if (static_cast<size_t>(m_limit - m_cur) < size)
            grow(size);
        return m_cur;
    }

    // Makes room for `size` more bytes, keeping what is written.
    void grow(size_t size)
    {
        const size_t used = static_cast<size_t>(m_cur - m_buf.data());
        m_buf.resize(std::max(m_buf.size() * 2, used + size));
        m_cur = m_buf.data() + used;
        m_limit = m_buf.data() + m_buf.size();
    }

    std::string m_buf; // written up to m_cur; the rest is room
    char *m_cur = nullptr;
    char *m_limit = nullptr;
    bool m_utf8 = false;
    std::string m_scratch;
};

// Walks the document as the writer does, writing nothing: it only finds whether every text
// fits Windows-1252.
class TextScanner
{
public:
    void text(std::string_view utf8)
    {
        if (m_fits && !fitsCp1252(utf8))
            m_fits = false;
    }
    void number(int32_t) {}
    void cells(const std::array<FrameRec, SubSlotCount> &) {}
    void comma() {}
    void endLine() {}

    bool fits() const { return m_fits; }

private:
    bool m_fits = true;
};

// A fair guess at the file's size, so that its buffer rarely needs to grow: the sprites'
// frames make up most of a large project.
size_t expectedSize(const Document &doc)
{
    size_t size = 4096;
    for (const ObjectList &list : doc.lists)
        size += list.lines.size() * 256;
    for (const ListLine &line : doc.list(Kind::Sprite).lines) {
        const SpriteRec &sprite = doc.Sprites.at(static_cast<size_t>(line.slot));
        if (sprite.animCount <= 0)
            continue;
        for (const AnimRec &anim : sprite.anims)
            if (anim.inUse == -1)
                size += 64 + static_cast<size_t>(std::max<int>(anim.frameCount, 0)) * 6;
    }
    return size;
}

template<class Out, class Rec, class R>
void writeField(Out &out, const Rec &rec, const layout::TextField<R> &field)
{
    out.text(rec.*field.member);
}

template<class Out, class Rec, class R, class Int>
void writeField(Out &out, const Rec &rec, const layout::IntField<R, Int> &field)
{
    out.number(rec.*field.member);
}

// Writes the fields of `line` from `rec`, joined by commas, without ending the line.
template<class Out, class Rec, class Line>
void writeFields(Out &out, const Rec &rec, const Line &line)
{
    std::apply(
        [&](const auto &first, const auto &...rest) {
            writeField(out, rec, first);
            ((out.comma(), writeField(out, rec, rest)), ...);
        },
        line);
}

template<class Out, class Rec, class Line>
void writeLine(Out &out, const Rec &rec, const Line &line)
{
    writeFields(out, rec, line);
    out.endLine();
}

template<class Out>
void writeRecord(Out &out, const ButtonRec &button)
{
    writeFields(out, button, layout::ButtonHead);
    out.comma();
    if (layout::isHotSpotId(button.id))
        writeFields(out, button, layout::HotSpotTail);
    else
        writeFields(out, button, layout::ButtonTail);
    out.endLine();
}

template<class Out>
void writeRecord(Out &out, const ImageRec &image)
{
    writeLine(out, image, layout::ImageLine);
}

template<class Out>
void writeRecord(Out &out, const CursorRec &cursor)
{
    writeLine(out, cursor, layout::CursorLine);
}

template<class Out>
void writeRecord(Out &out, const TextRec &text)
{
    writeLine(out, text, layout::TextLine);
}

template<class Out>
void writeRecord(Out &out, const FontRec &font)
{
    writeLine(out, font, layout::FontLine);
}

template<class Out>
void writeRecord(Out &out, const MusicRec &music) // also sound effects
{
    writeLine(out, music, layout::MusicLine);
}

template<class Out>
void writeRecord(Out &out, const SpriteRec &sprite)
{
    writeLine(out, sprite, layout::SpriteLine);
    if (sprite.animCount <= 0)
        return;
    for (const AnimRec &anim : sprite.anims) {
        if (anim.inUse != -1)
            continue;
        writeLine(out, anim, layout::AnimLine);
        if (anim.frameCount > 0)
            out.cells(anim.frames);
        writeLine(out, anim, layout::AnimSettingsLine);
    }
}

template<class Out>
void writeRecord(Out &out, const SceneRec &scene)
{
    writeLine(out, scene, layout::SceneLine);
    if (scene.layerCount <= 0)
        return;
    for (const LayerRec &layer : scene.layers)
        if (layer.inUse == -1)
            writeLine(out, layer, layout::LayerLine);
}

template<class Out>
void writeLog(Out &out, const AppSettingsRec &app)
{
    writeLine(out, app, layout::LogCountsLine);
    for (int16_t value : app.logTypeFilters) {
        out.number(value);
        out.endLine();
    }
    for (int16_t value : app.logFileFilters) {
        out.number(value);
        out.endLine();
    }
    writeLine(out, app, layout::CustomFilterCountLine);
    if (app.customFilterCount <= 0)
        return;
    for (const CustomFilterRec &filter : app.CustomFilters)
        if (filter.inUse == -1)
            writeLine(out, filter, layout::CustomFilterLine);
}

template<class Out>
void writeDocument(Out &out, const Document &doc, ProgressSink &progress)
{
    writeLine(out, doc.ProjectInfo, layout::ProjectNameLine);
    writeLine(out, doc.ProjectInfo, layout::ProjectPathLine);

    int total = 0;
    for (Kind kind : ListOrder) {
        const int lines = static_cast<int>(doc.list(kind).lines.size());
        out.number(lines);
        out.endLine();
        total += lines;
    }
    progress.setMaximum(total);

    progress.setLabel("Saving Application Data...");
    const AppSettingsRec &app = doc.AppSettings;
    writeLine(out, app, layout::AppLine1);
    if (app.splashEnabled == 1)
        writeLine(out, app, layout::AppSplashLine);
    writeLine(out, app, layout::AppLine3);

    int done = 0;
    for (Kind kind : FileOrder) {
        progress.setLabel(kindInfo(kind).saveLabel);
        withTable(doc, kind, [&](const auto &table) {
            for (const ListLine &line : doc.list(kind).lines) {
                writeRecord(out, table.at(static_cast<size_t>(line.slot)));
                progress.setValue(++done);
            }
        });
    }

    progress.setLabel("Saving Log Data...");
    writeLog(out, app);
}

} // namespace

bool projectNeedsUtf8(const Document &doc)
{
    TextScanner scanner;
    ProgressSink quiet;
    writeDocument(scanner, doc, quiet);
    return !scanner.fits();
}

std::string projectFileBytes(const Document &doc, ProgressSink &progress)
{
    LineWriter out(expectedSize(doc), projectNeedsUtf8(doc));
    writeDocument(out, doc, progress);
    return out.take();
}

std::string projectFileBytes(const Document &doc)
{
    ProgressSink quiet;
    return projectFileBytes(doc, quiet);
}

} // namespace vorlane
