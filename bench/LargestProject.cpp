#include "LargestProject.h"

#include "model/Kinds.h"

#include <array>
#include <cstdio>
#include <string>

namespace vorlane::bench {

namespace {

// "img007": ids with a fixed width, as a tidy project names its objects.
std::string numbered(const char *prefix, int number)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%s%03d", prefix, number);
    return buffer;
}

// Lists every slot of the table of `kind` under ids made from `prefix`; returns the table.
template<class Table>
Table &fill(Document &doc, Kind kind, Table &table, const char *prefix)
{
    for (size_t slot = 0; slot < table.size(); ++slot) {
        auto &rec = table[slot];
        rec.inUse = -1;
        rec.isNew = 0;
        rec.id = numbered(prefix, static_cast<int>(slot));
        doc.list(kind).lines.push_back({rec.id, static_cast<int16_t>(slot)});
    }
    doc.objectCount(kind) = static_cast<int16_t>(table.size());
    return table;
}

} // namespace

void buildLargestProject(Document &doc)
{
    auto &info = doc.ProjectInfo;
    info.projectName = "Largest Project";
    info.projectFilePath = "/games/largest/largest.dvb";
    info.generatePath = "/games/largest/data/";
    info.projectOpen = -1;

    auto &app = doc.AppSettings;
    app.rootFolder = "/games/largest";
    app.windowCaption = "The Largest Korrin Game";
    app.windowIcon = "gfx\\icon.ico";
    app.screenWidth = 1024;
    app.screenHeight = 768;
    app.screenBpp = 32;
    app.screenType = 2;
    app.fps = 60;
    app.splashEnabled = 1;
    app.splashWidth = 640;
    app.splashHeight = 480;
    app.splashBpp = 32;
    app.splashImagePath = "gfx\\splash.bmp";
    app.splashTimer = 3;
    app.splashRed = 255;
    app.splashBlue = 255;
    app.soundMix = 44100;
    app.soundChannels = 16;
    app.useEngineScreen = 1;
    app.logEnabled = 1;
    app.logPath = "logs\\game.log";
    app.logTypeFilters.fill(1);
    app.logTypeFilterCount = LogTypeCount;
    app.logFileFilters.fill(1);
    app.logFileFilterCount = LogModuleCount;
    for (int slot = 1; slot <= 50; ++slot)
        app.CustomFilters[static_cast<size_t>(slot)] = {-1,
                                                        "Custom filter " + std::to_string(slot)};
    app.customFilterCount = 50;
    doc.customFilterOverflow = 50;

    for (ImageRec &image : fill(doc, Kind::Image, doc.Images, "img")) {
        image.path = "gfx\\" + image.id + ".bmp";
        image.red = 255;
        image.blue = 255;
        image.cellWidth = 32;
        image.cellHeight = 32;
        image.positionX = 100;
        image.positionY = 200;
        image.visible = 1;
        image.alpha = 255;
    }
    for (CursorRec &cursor : fill(doc, Kind::Cursor, doc.Cursors, "cur")) {
        cursor.imageId = "img000";
        cursor.orientation = 1;
    }
    for (FontRec &font : fill(doc, Kind::Font, doc.Fonts, "fnt"))
        font.path = "fonts\\" + font.id + ".ttf";
    int number = 0;
    for (TextRec &text : fill(doc, Kind::Text, doc.Texts, "txt")) {
        text.content = "Text number " + std::to_string(number++) + ", shown on the screen";
        text.fontId = "fnt000";
        text.selectionImageId = "img001";
        text.x = 320;
        text.y = 240;
        text.clipWidth = 200;
        text.clipHeight = 20;
        text.visible = 1;
        text.pointSize = 12;
        text.styleNormal = 1;
        text.foreRed = 255;
        text.foreGreen = 255;
        text.foreBlue = 255;
    }
    for (MusicRec &music : fill(doc, Kind::Music, doc.MusicTracks, "mus")) {
        music.path = "music\\" + music.id + ".ogg";
        music.defaultVolume = 100;
        music.defaultPriority = 1;
    }
    for (SFXRec &sfx : fill(doc, Kind::SFX, doc.SoundEffects, "sfx")) {
        sfx.path = "sfx\\" + sfx.id + ".wav";
        sfx.defaultVolume = 100;
        sfx.defaultPriority = 2;
    }
    number = 0;
    for (ButtonRec &button : fill(doc, Kind::Button, doc.Buttons, "cmd")) {
        // Every tenth button is a hot spot, whose id begins with "_".
        if (number++ % 10 == 0)
            button.id.front() = '_';
        button.isHotSpot = button.id.front() == '_' ? 1 : 0;
        button.x = 16;
        button.y = 480;
        button.cursorId = button.isHotSpot ? "null" : "cur001";
        button.currentFrame = 1;
        button.templateId = "img002";
        button.frameUp = 1;
        button.frameDown = 2;
        button.frameOver = 3;
        button.frameDisabled = 4;
        button.templateRows = 2;
        button.templateColumns = 2;
        button.hotSpotWidth = 64;
        button.hotSpotHeight = 32;
        button.iconId = "null";
        button.visible = 1;
        button.captionVisible = 1;
        button.iconVisible = 1;
        button.captionTextId = "txt000";
        button.soundUp = "sfx000";
        button.soundDown = "sfx001";
        button.soundOver = "null";
        button.soundDisabled = "null";
    }
    // The hot spots' ids changed after fill() listed them.
    for (ListLine &line : doc.list(Kind::Button).lines)
        line.text = doc.Buttons[static_cast<size_t>(line.slot)].id;

    for (SpriteRec &sprite : fill(doc, Kind::Sprite, doc.Sprites, "spr")) {
        sprite.imageId = "img003";
        sprite.currentAnimId = "anim000";
        sprite.animCount = SubSlotCount;
        sprite.positionX = 50;
        sprite.positionY = 60;
        sprite.visible = 1;
        for (size_t a = 0; a < sprite.anims.size(); ++a) {
            AnimRec &anim = sprite.anims[a];
            anim.inUse = -1;
            anim.isNew = 0;
            anim.id = numbered("anim", static_cast<int>(a));
            anim.frameCount = SubSlotCount;
            for (size_t f = 0; f < anim.frames.size(); ++f)
                anim.frames[f] = {-1, static_cast<int16_t>((a + f) % 64)};
            anim.frameDelay = 5;
            anim.animDelay = 10;
            anim.repeat = 1;
            anim.play = 1;
            anim.direction = 1;
            anim.defaultFrame = -1;
        }
    }
    // Layers cycle through the five kinds a layer can hold.
    const std::array<std::pair<int16_t, const char *>, 5> layerObjects{
        {{1, "txt000"}, {2, "spr000"}, {3, "img000"}, {4, "cmd001"}, {5, "mus000"}}};
    for (SceneRec &scene : fill(doc, Kind::Scene, doc.Scenes, "scn")) {
        scene.layerCount = SubSlotCount;
        scene.useCursor = 1;
        scene.useMusic = 1;
        for (size_t l = 0; l < scene.layers.size(); ++l) {
            const auto &[kind, id] = layerObjects[l % layerObjects.size()];
            scene.layers[l] = {-1, kind, id};
        }
    }
}

} // namespace vorlane::bench
