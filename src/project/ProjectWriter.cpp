#include "project/ProjectWriter.h"

#include "model/Cp1252.h"
#include "model/Kinds.h"
#include "project/ProjectLayout.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>
#include <tuple>

namespace vorlane {

namespace {

// Builds the whole file in one buffer. Every write claims its room first and then fills it
// through a pointer, so writing a field never allocates.
class LineWriter
{
public:
    LineWriter() { m_buf.resize(64 * 1024); }

    void text(std::string_view utf8)
    {
        // Windows-1252 never takes more bytes than the UTF-8 it comes from.
        char *p = room(utf8.size() + 2);
        *p++ = '"';
        size_t ascii = 0;
        while (ascii < utf8.size() && static_cast<unsigned char>(utf8[ascii]) < 0x80)
            ++ascii;
        std::memcpy(p, utf8.data(), ascii);
        p += ascii;
        if (ascii < utf8.size()) {
            m_scratch.clear();
            appendCp1252(m_scratch, utf8.substr(ascii));
            std::memcpy(p, m_scratch.data(), m_scratch.size());
            p += m_scratch.size();
        }
        *p++ = '"';
        m_used = static_cast<size_t>(p - m_buf.data());
    }

    void number(int32_t value)
    {
        char *p = room(11); // "-2147483648"
        m_used += static_cast<size_t>(std::to_chars(p, p + 11, value).ptr - p);
    }

    void comma()
    {
        *room(1) = ',';
        ++m_used;
    }

    void endLine()
    {
        char *p = room(2);
        p[0] = '\r';
        p[1] = '\n';
        m_used += 2;
    }

    std::string take()
    {
        m_buf.resize(m_used);
        return std::move(m_buf);
    }

private:
    char *room(size_t size)
    {
        if (m_buf.size() - m_used < size)
            m_buf.resize(std::max(m_buf.size() * 2, m_used + size));
        return m_buf.data() + m_used;
    }

    std::string m_buf; // m_used bytes are written; the rest is room
    size_t m_used = 0;
    std::string m_scratch;
};

template<class Rec, class R>
void writeField(LineWriter &out, const Rec &rec, const layout::TextField<R> &field)
{
    out.text(rec.*field.member);
}

template<class Rec, class R, class Int>
void writeField(LineWriter &out, const Rec &rec, const layout::IntField<R, Int> &field)
{
    out.number(rec.*field.member);
}

// Writes the fields of `line` from `rec`, joined by commas, without ending the line.
template<class Rec, class Line>
void writeFields(LineWriter &out, const Rec &rec, const Line &line)
{
    std::apply(
        [&](const auto &first, const auto &...rest) {
            writeField(out, rec, first);
            ((out.comma(), writeField(out, rec, rest)), ...);
        },
        line);
}

template<class Rec, class Line>
void writeLine(LineWriter &out, const Rec &rec, const Line &line)
{
    writeFields(out, rec, line);
    out.endLine();
}

void writeRecord(LineWriter &out, const ButtonRec &button)
{
    writeFields(out, button, layout::ButtonHead);
    out.comma();
    if (layout::isHotSpotId(button.id))
        writeFields(out, button, layout::HotSpotTail);
    else
        writeFields(out, button, layout::ButtonTail);
    out.endLine();
}

void writeRecord(LineWriter &out, const ImageRec &image)
{
    writeLine(out, image, layout::ImageLine);
}

void writeRecord(LineWriter &out, const CursorRec &cursor)
{
    writeLine(out, cursor, layout::CursorLine);
}

void writeRecord(LineWriter &out, const TextRec &text)
{
    writeLine(out, text, layout::TextLine);
}

void writeRecord(LineWriter &out, const FontRec &font)
{
    writeLine(out, font, layout::FontLine);
}

void writeRecord(LineWriter &out, const MusicRec &music) // also sound effects
{
    writeLine(out, music, layout::MusicLine);
}

void writeRecord(LineWriter &out, const SpriteRec &sprite)
{
    writeLine(out, sprite, layout::SpriteLine);
    if (sprite.animCount <= 0)
        return;
    for (const AnimRec &anim : sprite.anims) {
        if (anim.inUse != -1)
            continue;
        writeLine(out, anim, layout::AnimLine);
        if (anim.frameCount > 0) {
            for (const FrameRec &frame : anim.frames)
                if (frame.inUse == -1)
                    writeLine(out, frame, layout::FrameLine);
        }
        writeLine(out, anim, layout::AnimSettingsLine);
    }
}

void writeRecord(LineWriter &out, const SceneRec &scene)
{
    writeLine(out, scene, layout::SceneLine);
    if (scene.layerCount <= 0)
        return;
    for (const LayerRec &layer : scene.layers)
        if (layer.inUse == -1)
            writeLine(out, layer, layout::LayerLine);
}

void writeLog(LineWriter &out, const AppSettingsRec &app)
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

} // namespace

std::string projectFileBytes(const Document &doc, ProgressSink &progress)
{
    LineWriter out;
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
    return out.take();
}

std::string projectFileBytes(const Document &doc)
{
    ProgressSink quiet;
    return projectFileBytes(doc, quiet);
}

} // namespace vorlane
