#include "generate/EngineFiles.h"

#include "generate/EngineLine.h"
#include "generate/EngineLineSize.h"
#include "model/Kinds.h"

#include <algorithm>

namespace vorlane {

namespace {

// Slot flags hold -1 for true.
bool isSet(int16_t flag)
{
    return flag == -1;
}

// Writes an engine file into one buffer, one piece (a line or an object's record) at a time:
// each piece is measured, room is made for it, and it is written in one pass, without growing
// the buffer field by field.
class EngineText
{
public:
    template<class Write>
    void write(const Write &write)
    {
        EngineLineSize size;
        write(size);
        const std::size_t used = m_bytes.size();
        if (m_bytes.capacity() - used < size.size())
            m_bytes.reserve(std::max(m_bytes.capacity() * 2, used + size.size()));
        m_bytes.resize(used + size.size());
        EngineLine line(m_bytes.data() + used);
        write(line);
        m_bytes.resize(static_cast<std::size_t>(line.position() - m_bytes.data()));
    }

    std::string take() { return std::move(m_bytes); }

private:
    std::string m_bytes;
};

template<class Write>
std::string inOnePiece(const Write &write)
{
    EngineText out;
    out.write(write);
    return out.take();
}

template<class Line>
void writeRecord(Line &line, const ButtonRec &b)
{
    line.text(b.id).number(b.x).number(b.y).text(b.cursorId).number(b.currentFrame);
    // The engine tells a hot spot by the "_" in front of its identifier, not by isHotSpot.
    if (!b.id.empty() && b.id.front() == '_') {
        line.number(b.hotSpotWidth).number(b.hotSpotHeight);
    } else {
        line.number(b.frameDisabled)
            .number(b.frameUp)
            .number(b.frameOver)
            .number(b.frameDown)
            .text(b.templateId)
            .number(b.templateRows)
            .number(b.templateColumns)
            .text(b.iconId)
            .text(b.captionTextId)
            .number(b.visible)
            .number(b.iconVisible)
            .number(b.captionVisible)
            .text(b.soundUp)
            .text(b.soundDown)
            .text(b.soundOver)
            .text(b.soundDisabled);
    }
    line.end();
}

template<class Line>
void writeRecord(Line &line, const ImageRec &i)
{
    // The bound flag follows alpha: that is the engine's order.
    line.text(i.id)
        .text(i.path)
        .number(i.red)
        .number(i.green)
        .number(i.blue)
        .number(i.cellWidth)
        .number(i.cellHeight)
        .number(i.positionX)
        .number(i.positionY)
        .number(i.alpha)
        .number(i.bound)
        .number(i.visible)
        .end();
}

template<class Line>
void writeRecord(Line &line, const CursorRec &c)
{
    line.text(c.id).text(c.imageId).number(c.orientation).end();
}

template<class Line>
void writeRecord(Line &line, const TextRec &t)
{
    // Three pieces on one line, joined without a separator; italic comes before bold.
    line.starred(t.content).text(t.id).text(t.fontId).number(t.x).number(t.y);
    line.joint()
        .number(t.centered)
        .number(t.visible)
        .number(t.repeat)
        .number(t.delay)
        .number(t.clipWidth);
    line.joint()
        .number(t.clipHeight)
        .number(t.textType)
        .text(t.selectionImageId)
        .number(t.pointSize)
        .number(t.styleNormal)
        .number(t.styleItalic)
        .number(t.styleBold)
        .number(t.styleUnderline)
        .number(t.foreRed)
        .number(t.foreGreen)
        .number(t.foreBlue)
        .number(t.backRed)
        .number(t.backGreen)
        .number(t.backBlue)
        .end();
}

template<class Line>
void writeRecord(Line &line, const FontRec &f)
{
    line.text(f.id).text(f.path).end();
}

// Music tracks and sound effects.
template<class Line>
void writeRecord(Line &line, const MusicRec &m)
{
    line.text(m.id)
        .text(m.path)
        .number(m.defaultVolume)
        .number(m.defaultPriority)
        .number(m.defaultPan)
        .end();
}

// One line per used frame slot, its cell alone.
template<class Line>
void writeFrames(Line &line, const std::array<FrameRec, SubSlotCount> &frames)
{
    if constexpr (Line::writes) {
        for (const FrameRec &frame : frames)
            if (isSet(frame.inUse))
                line.numberLine(frame.cell);
    } else {
        // Measured as if every slot were used: a maximal project has two million frames, and
        // scanning them twice would cost more than the few bytes this leaves unused.
        line.numberLines(frames.size());
    }
}

template<class Line>
void writeRecord(Line &line, const SpriteRec &s)
{
    line.text(s.id)
        .text(s.imageId)
        .text(s.currentAnimId)
        .number(s.positionX)
        .number(s.positionY)
        .number(s.visible)
        .number(s.animCount)
        .end();
    if (s.animCount <= 0)
        return;
    for (const AnimRec &anim : s.anims) {
        if (!isSet(anim.inUse))
            continue;
        line.text(anim.id).number(anim.frameCount).end();
        if (anim.frameCount > 0)
            writeFrames(line, anim.frames);
        line.number(anim.frameDelay)
            .number(anim.animDelay)
            .number(anim.repeat)
            .number(anim.play)
            .number(anim.direction)
            .number(anim.defaultFrame)
            .end();
    }
}

template<class Line>
void writeRecord(Line &line, const SceneRec &s)
{
    line.text(s.id).number(s.useCursor).number(s.useMusic).number(s.layerCount).end();
    if (s.layerCount <= 0)
        return;
    for (const LayerRec &layer : s.layers)
        if (isSet(layer.inUse))
            line.text(layer.objectId).number(layer.objectKind).end();
}

} // namespace

std::string appCfg(const AppSettingsRec &a, std::string_view dataFolderRel)
{
    return inOnePiece([&](auto &line) {
        line.starred(dataFolderRel)
            .starred(a.windowCaption)
            .starred(a.windowIcon)
            .number(a.screenWidth)
            .number(a.screenHeight)
            .number(a.screenBpp)
            .number(a.screenType)
            .number(a.fps)
            .number(a.splashEnabled)
            .end();
        if (a.splashEnabled == 1) {
            // The splash image path has no terminator: the timer's number follows it.
            line.number(a.splashWidth)
                .number(a.splashHeight)
                .number(a.splashBpp)
                .text(a.splashImagePath)
                .number(a.splashTimer)
                .number(a.splashRed)
                .number(a.splashGreen)
                .number(a.splashBlue)
                .end();
        }
        line.number(a.soundMix)
            .number(a.soundChannels)
            .number(a.useEngineScreen)
            .number(a.logEnabled)
            .endStarred(a.logPath);
    });
}

std::string logCfg(const AppSettingsRec &a)
{
    return inOnePiece([&](auto &line) {
        // The counts are written as stored, not recounted from the check values.
        line.number(a.logTypeFilterCount).end();
        for (std::size_t i = 0; i < LogTypePrefixes.size(); ++i)
            if (a.logTypeFilters[i] == 1)
                line.endStarred(LogTypePrefixes[i]);
        line.number(a.customFilterCount + a.logFileFilterCount).end();
        for (std::size_t i = 0; i < LogModuleFiles.size(); ++i)
            if (a.logFileFilters[i] == 1)
                line.endStarred(LogModuleFiles[i]);
        if (a.customFilterCount >= 1) {
            for (const CustomFilterRec &filter : a.CustomFilters)
                if (isSet(filter.inUse))
                    line.endStarred(filter.text);
        }
    });
}

// The count line, then one record per list line.
std::string dataFile(const Document &doc, Kind kind, const RecordWritten &recordWritten)
{
    const ObjectList &list = doc.list(kind);
    EngineText out;
    out.write([&](auto &line) { line.countLine(list.lines.size()); });
    withTable(doc, kind, [&](const auto &table) {
        for (const ListLine &entry : list.lines) {
            const auto &record = table.at(static_cast<std::size_t>(entry.slot));
            out.write([&](auto &line) { writeRecord(line, record); });
            if (recordWritten)
                recordWritten();
        }
    });
    return out.take();
}

std::string buttonDat(const Document &doc)
{
    return dataFile(doc, Kind::Button);
}

std::string imageDat(const Document &doc)
{
    return dataFile(doc, Kind::Image);
}

std::string cursorDat(const Document &doc)
{
    return dataFile(doc, Kind::Cursor);
}

std::string textDat(const Document &doc)
{
    return dataFile(doc, Kind::Text);
}

std::string fontDat(const Document &doc)
{
    return dataFile(doc, Kind::Font);
}

std::string musicDat(const Document &doc)
{
    return dataFile(doc, Kind::Music);
}

std::string sfxDat(const Document &doc)
{
    return dataFile(doc, Kind::SFX);
}

std::string spriteDat(const Document &doc)
{
    return dataFile(doc, Kind::Sprite);
}

std::string sceneDat(const Document &doc)
{
    return dataFile(doc, Kind::Scene);
}

} // namespace vorlane
