#pragma once

#include "model/Kinds.h"
#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "model/modGlobal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

// Helpers shared by the project file tests.
namespace vorlane::testsupport {

// Answers questions from a script (Yes when the script is used up) and keeps every message.
class ScriptedUi : public UserInterface
{
public:
    std::vector<Message> messages;
    std::deque<MessageAnswer> answers;

    MessageAnswer showMessage(const Message &message) override
    {
        messages.push_back(message);
        if (message.buttons == MessageButtons::OK)
            return MessageAnswer::OK;
        if (answers.empty())
            return MessageAnswer::Yes;
        const MessageAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> chooseFile(const FileDialogRequest &) override
    {
        ADD_FAILURE() << "no file dialog is expected";
        return {};
    }
};

// Keeps the progress reports as lines of text, leaving out the bar's steps.
class RecordingProgress : public ProgressSink
{
public:
    std::vector<std::string> events;
    int maximum = -1;
    int current = 0;

    void begin(const std::string &title) override { events.push_back("begin " + title); }
    void setLabel(const std::string &label) override { events.push_back("label " + label); }
    void setMaximum(int value) override { maximum = value; }
    void setValue(int value) override { current = value; }
    int value() const override { return current; }
    void end() override { events.push_back("end"); }
};

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempFolder
{
public:
    TempFolder()
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "vorlane-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            ADD_FAILURE() << "cannot create a temporary folder";
        m_path = pattern;
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    std::string path() const { return m_path.string(); }
    std::string file(const std::string &name) const { return (m_path / name).string(); }

    // The names of the entries of the folder, sorted.
    std::vector<std::string> entries() const
    {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path m_path;
};

// The first lines of a project file as an earlier save left it: a file Save replaces, as it
// refuses files that do not begin as a project file.
inline const std::string OldProject =
    "\"Old\"\r\n\"\",\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n";

inline std::string readBytes(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void writeBytes(const std::string &path, const std::string &bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

// Lines joined with CR LF, each line ended by it.
inline std::string crlf(std::initializer_list<std::string> lines)
{
    std::string out;
    for (const std::string &line : lines)
        out += line + "\r\n";
    return out;
}

inline std::string crlf(const std::vector<std::string> &lines)
{
    std::string out;
    for (const std::string &line : lines)
        out += line + "\r\n";
    return out;
}

// The file's lines without their CR LF ends.
inline std::vector<std::string> splitCrlf(const std::string &bytes)
{
    std::vector<std::string> lines;
    size_t start = 0;
    while (start < bytes.size()) {
        const size_t end = bytes.find("\r\n", start);
        if (end == std::string::npos) {
            lines.push_back(bytes.substr(start));
            break;
        }
        lines.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

// Makes `slot` of `kind` a live object named `id` and appends it to the kind's list.
inline void listObject(Document &doc, Kind kind, int slot, const std::string &id)
{
    SlotView view = slotOf(doc, kind, slot);
    view.inUse = -1;
    view.isNew = 0;
    view.id = id;
    doc.list(kind).lines.push_back({id, static_cast<int16_t>(slot)});
}

// Lists `count` sprites with every animation and frame slot used, the cells of sprite n all
// `firstCell` + n: some 60 kB of project file per sprite.
inline void listFullSprites(Document &doc, int count, int firstCell)
{
    for (int slot = 0; slot < count; ++slot) {
        listObject(doc, Kind::Sprite, slot, "spr" + std::to_string(slot));
        SpriteRec &sprite = doc.Sprites[static_cast<size_t>(slot)];
        sprite.animCount = SubSlotCount;
        for (AnimRec &anim : sprite.anims) {
            anim.inUse = -1;
            anim.id = "anim";
            anim.frameCount = SubSlotCount;
            for (FrameRec &frame : anim.frames)
                frame = {-1, static_cast<int16_t>(firstCell + slot)};
        }
    }
}

// The lines of an untouched document's project file, in pieces.
inline std::vector<std::string> countLines(std::initializer_list<int> counts)
{
    std::vector<std::string> lines;
    for (int count : counts)
        lines.push_back(std::to_string(count));
    return lines;
}

inline std::vector<std::string> emptyLogLines()
{
    std::vector<std::string> lines{"0,0"};
    lines.insert(lines.end(), 7 + 11 + 1, "0");
    return lines;
}

inline std::vector<std::string> joinLines(std::initializer_list<std::vector<std::string>> parts)
{
    std::vector<std::string> lines;
    for (const auto &part : parts)
        lines.insert(lines.end(), part.begin(), part.end());
    return lines;
}

// A small project touching every kind of line the reader knows. Lines: 1 name, 2 paths,
// 3-11 counts, 12-14 application, 15-16 buttons (the second a hot spot), 17 image, 18 cursor,
// 19 text, 20 font, 21 music, 22 sound effect, 23-27 sprite with one animation of two frames,
// 28-29 scene with one layer, 30-49 log, 50-51 custom filters.
inline const std::vector<std::string> &smallProjectLines()
{
    static const std::vector<std::string> lines = [] {
        const std::string text = R"("Small"
"/p/small.dvb","/p/out"
2
1
1
1
1
1
1
1
1
"root","caption","icon",800,600,32,2,60,1
640,480,16,"splash.bmp",3,4,5,6
44100,8,1,-1,"log.txt"
"btn",10,20,"cur",1,4,1,3,2,"tpl",5,6,"icon","cap",1,0,1,"su","sd","so","sx"
"_hot",-1,-2,"cur",7,30,40
"img","a.bmp",1,2,3,4,5,6,7,8,9,10
"cur","img",3
"Hi, there","txt","fnt",1,2,3,4,5,6,7,8,9,"sel",10,11,12,13,14,15,16,17,18,19,20
"fnt","f.ttf"
"mus","m.ogg",1,2,3
"sfx","s.wav",4,5,6
"spr","img","walk",7,8,1,1
"walk",2
3
4
100,200,1,1,-1,-1
"scn",1,0,1
"img",3
2,3
1
0
1
0
0
0
1
1
1
0
0
0
0
0
0
0
0
0
2
"first"
"second"
)";
        std::vector<std::string> split;
        size_t start = 0;
        for (size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
            split.push_back(text.substr(start, end - start));
        return split;
    }();
    return lines;
}

} // namespace vorlane::testsupport
