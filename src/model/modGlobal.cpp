#include "model/modGlobal.h"

namespace vorlane {

namespace {

template<class Table>
void freeSlots(Table &table)
{
    for (auto &rec : table) {
        rec.inUse = 0;
        rec.isNew = 0;
    }
}

} // namespace

std::unique_ptr<Document> makeDocument()
{
    return std::make_unique<Document>();
}

void InitData(Document &doc)
{
    freeSlots(doc.Buttons);
    for (auto &sprite : doc.Sprites) {
        sprite.inUse = 0;
        sprite.isNew = 0;
        for (auto &anim : sprite.anims) {
            anim.isNew = 0;
            anim.inUse = 0;
            for (auto &frame : anim.frames)
                frame.inUse = 0;
        }
    }
    freeSlots(doc.Cursors);
    freeSlots(doc.Images);
    freeSlots(doc.Texts);
    freeSlots(doc.MusicTracks);
    freeSlots(doc.SoundEffects);
    freeSlots(doc.Fonts);
    // Scene layers keep their flags: a scene's layerCount and the reader decide what is shown.
    freeSlots(doc.Scenes);

    auto &app = doc.AppSettings;
    app.customFilterCount = 0;
    app.logTypeFilterCount = 0;
    app.logFileFilterCount = 0;
    // Slot 0 keeps its flag: the reader fills custom filters from slot 1.
    for (size_t i = 1; i < app.CustomFilters.size(); ++i)
        app.CustomFilters[i].inUse = 0;
}

void setUpNewProject(Document &doc, const std::string &name)
{
    auto &info = doc.ProjectInfo;
    info.projectName = name;
    info.projectFilePath.clear();
    info.projectOpen = -1;

    doc.newObjectCounter = 0;
    doc.ObjectCounts.fill(0);
    doc.customFilterOverflow = 0;
    doc.animOverflow = 0;
    doc.frameOverflow = 0;
    doc.layerOverflow = 0;

    // rootFolder, generatePath and the log type and file filters carry over to the new project.
    auto &app = doc.AppSettings;
    app.windowCaption = "QTA Application";
    app.windowIcon = "null";
    app.logPath = "null";
    app.screenType = 1;
    app.useEngineScreen = 0;
    app.fps = 0;
    app.logEnabled = 0;
    app.screenWidth = 0;
    app.screenHeight = 0;
    app.screenBpp = 0;
    app.soundMix = 0;
    app.soundChannels = 0;
    resetSplash(app);

    InitData(doc);
    clearLists(doc);
}

void clearLists(Document &doc)
{
    for (auto &list : doc.lists) {
        list.lines.clear();
        list.selected = -1;
    }
}

void resetSplash(AppSettingsRec &app)
{
    app.splashEnabled = 0;
    app.splashWidth = 0;
    app.splashHeight = 0;
    app.splashBpp = 0;
    app.splashTimer = 0;
    app.splashRed = 0;
    app.splashGreen = 0;
    app.splashBlue = 0;
    app.splashImagePath = "null";
}

std::string projectSavePath(const Document &doc)
{
    const std::string &path = doc.ProjectInfo.projectFilePath;
    const bool windowsPath = (path.size() >= 2 && path[1] == ':') || path.starts_with('\\');
    const size_t slash = doc.openedFrom.rfind('/');
    if (path.empty() || path.front() == '/' || windowsPath || slash == std::string::npos)
        return path;
    return doc.openedFrom.substr(0, slash + 1) + path;
}

} // namespace vorlane
