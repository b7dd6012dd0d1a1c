#pragma once

#include "ProjectTestSupport.h"
#include "io/Cp1252.h"
#include "model/Kinds.h"
#include "model/modGlobal.h"

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace vorlane::testsupport {

// Builds random but consistent projects: every count matches its used slots, and texts hold
// no double quote, CR or LF. `stable` keeps out what a reload changes on purpose (a hot spot's
// cursor, a splashEnabled other than 0 or 1). With `foreign`, a text may also hold characters
// that Windows-1252 cannot hold, which makes the file UTF-8.
class RandomProject
{
public:
    RandomProject(unsigned seed, bool stable, bool foreign = false)
        : m_random(seed)
        , m_stable(stable)
        , m_foreign(foreign)
    {}

    std::unique_ptr<Document> make()
    {
        auto doc = makeDocument();
        Document &d = *doc;
        d.ProjectInfo.projectName = text();
        d.ProjectInfo.projectFilePath = text();
        d.ProjectInfo.generatePath = text();
        fillApp(d.AppSettings);
        for (Kind kind : ListOrder)
            fillList(d, kind);
        return doc;
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool chance(int percent) { return below(100) < percent; }

    int16_t number()
    {
        switch (below(4)) {
        case 0:
            return static_cast<int16_t>(below(3) - 1);
        case 1:
            return static_cast<int16_t>(below(256));
        case 2:
            return below(2) ? INT16_MIN : INT16_MAX;
        default:
            return static_cast<int16_t>(below(65536) - 32768);
        }
    }

    // Windows-1252 bytes 0x09 and 0x20..0xFF other than the double quote, held as UTF-8.
    std::string text()
    {
        std::string bytes;
        const int length = below(13);
        for (int i = 0; i < length; ++i) {
            int byte = 0x20 + below(0xE0);
            if (byte == '"')
                byte = '\t';
            bytes.push_back(static_cast<char>(byte));
        }
        std::string utf8 = toUtf8(bytes);
        if (m_foreign && chance(10)) {
            static const std::array<std::string, 5> Foreign{"Ж", "я", "日本", "😀", "中"};
            utf8.insert(static_cast<size_t>(below(static_cast<int>(utf8.size()) + 1)),
                        Foreign[static_cast<size_t>(below(Foreign.size()))]);
        }
        return utf8;
    }

    // `count` distinct slots out of `size`, in random order.
    std::vector<int> slots(int size, int count)
    {
        std::vector<int> all(static_cast<size_t>(size));
        std::iota(all.begin(), all.end(), 0);
        std::shuffle(all.begin(), all.end(), m_random);
        all.resize(static_cast<size_t>(count));
        return all;
    }

    void fillApp(AppSettingsRec &app)
    {
        for (int16_t *field : {&app.screenWidth,
                               &app.screenHeight,
                               &app.screenBpp,
                               &app.splashWidth,
                               &app.splashHeight,
                               &app.splashBpp,
                               &app.screenType,
                               &app.splashTimer,
                               &app.fps,
                               &app.soundChannels,
                               &app.splashRed,
                               &app.splashGreen,
                               &app.splashBlue,
                               &app.logEnabled,
                               &app.useEngineScreen,
                               &app.logTypeFilterCount,
                               &app.logFileFilterCount})
            *field = number();
        app.soundMix = static_cast<int32_t>(m_random());
        app.splashEnabled = static_cast<int16_t>(m_stable ? below(2) : number());
        for (std::string *field : {&app.windowCaption,
                                   &app.windowIcon,
                                   &app.splashImagePath,
                                   &app.logPath,
                                   &app.rootFolder})
            *field = text();
        for (int16_t &value : app.logTypeFilters)
            value = number();
        for (int16_t &value : app.logFileFilters)
            value = number();
        const int used = below(6);
        for (int slot : slots(CustomFilterSlots, used))
            app.CustomFilters[static_cast<size_t>(slot)] = {-1, text()};
        // A count of 0 keeps every filter out of the file, used or not.
        app.customFilterCount = static_cast<int16_t>(chance(20) ? 0 : used);
    }

    void fillList(Document &d, Kind kind)
    {
        const int size = kindInfo(kind).lastSlot + 1;
        int count = below(std::min(size, 6) + 1);
        if (kind != Kind::Sprite && kind != Kind::Scene && chance(3))
            count = size; // now and then a full table
        const int reserved = std::min(below(3), size - count);
        std::vector<int> chosen = slots(size, count + reserved);
        for (size_t i = 0; i < chosen.size(); ++i) {
            const int slot = chosen[i];
            listObject(d, kind, slot, text());
            if (static_cast<int>(i) >= count) { // added, never opened: Save drops it
                SlotView view = slotOf(d, kind, slot);
                view.inUse = 0;
                view.isNew = -1;
            }
            withTable(d, kind, [&](auto &table) { fill(table[static_cast<size_t>(slot)]); });
        }
        std::shuffle(d.list(kind).lines.begin(), d.list(kind).lines.end(), m_random);
    }

    void fill(ButtonRec &b)
    {
        for (int16_t *field : {&b.x,
                               &b.y,
                               &b.currentFrame,
                               &b.frameUp,
                               &b.frameDown,
                               &b.frameOver,
                               &b.frameDisabled,
                               &b.templateRows,
                               &b.templateColumns,
                               &b.hotSpotWidth,
                               &b.hotSpotHeight,
                               &b.visible,
                               &b.captionVisible,
                               &b.iconVisible,
                               &b.isHotSpot})
            *field = number();
        for (std::string *field : {&b.cursorId,
                                   &b.templateId,
                                   &b.iconId,
                                   &b.captionTextId,
                                   &b.soundUp,
                                   &b.soundDown,
                                   &b.soundOver,
                                   &b.soundDisabled})
            *field = text();
        if (chance(30)) {
            b.id = "_" + b.id;
            if (m_stable)
                b.cursorId = "null";
        } else if (!b.id.empty() && b.id.front() == '_') {
            b.id.front() = 'b';
        }
    }

    void fill(ImageRec &r)
    {
        r.path = text();
        for (int16_t *field : {&r.red,
                               &r.green,
                               &r.blue,
                               &r.cellWidth,
                               &r.cellHeight,
                               &r.bound,
                               &r.positionX,
                               &r.positionY,
                               &r.visible,
                               &r.alpha})
            *field = number();
    }

    void fill(CursorRec &r)
    {
        r.imageId = text();
        r.orientation = number();
    }

    void fill(TextRec &r)
    {
        r.content = text();
        r.fontId = text();
        r.selectionImageId = text();
        for (int16_t *field :
             {&r.x,         &r.y,           &r.clipWidth, &r.clipHeight,  &r.centered,
              &r.visible,   &r.delay,       &r.textType,  &r.repeat,      &r.foreRed,
              &r.foreGreen, &r.foreBlue,    &r.backRed,   &r.backGreen,   &r.backBlue,
              &r.pointSize, &r.styleNormal, &r.styleBold, &r.styleItalic, &r.styleUnderline})
            *field = number();
    }

    void fill(FontRec &r) { r.path = text(); }

    void fill(MusicRec &r)
    {
        r.path = text();
        r.defaultVolume = number();
        r.defaultPriority = number();
        r.defaultPan = number();
    }

    void fill(SpriteRec &s)
    {
        s.imageId = text();
        s.currentAnimId = text();
        s.positionX = number();
        s.positionY = number();
        s.visible = number();
        const int used = below(4);
        for (int slot : slots(SubSlotCount, used)) {
            AnimRec &a = s.anims[static_cast<size_t>(slot)];
            a.inUse = -1;
            a.id = text();
            for (int16_t *field :
                 {&a.frameDelay, &a.animDelay, &a.repeat, &a.play, &a.direction, &a.defaultFrame})
                *field = number();
            const int frames = below(5);
            for (int f : slots(SubSlotCount, frames))
                a.frames[static_cast<size_t>(f)] = {-1, number()};
            a.frameCount = static_cast<int16_t>(chance(15) ? 0 : frames);
        }
        if (chance(10)) { // reserved in the sprite editor, never opened
            AnimRec &a = s.anims[static_cast<size_t>(below(SubSlotCount))];
            if (a.inUse == 0)
                a.isNew = -1;
        }
        s.animCount = static_cast<int16_t>(chance(15) ? 0 : used);
    }

    void fill(SceneRec &s)
    {
        s.useCursor = number();
        s.useMusic = number();
        const int used = below(5);
        for (int slot : slots(SubSlotCount, used))
            s.layers[static_cast<size_t>(slot)] = {-1, number(), text()};
        s.layerCount = static_cast<int16_t>(chance(15) ? 0 : used);
    }

    std::mt19937 m_random;
    bool m_stable;
    bool m_foreign;
};

} // namespace vorlane::testsupport
