#include "history/History.h"

#include "model/Kinds.h"
#include "project/ProjectLayout.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace vorlane {
namespace {

// Random edits of a document: any field of any slot of any table (animations, frames and
// layers included), the settings and filters, ProjectInfo, every counter and the list lines.
class RandomEdits
{
public:
    explicit RandomEdits(unsigned seed)
        : m_random(seed)
    {}

    // One to four edits.
    void apply(Document &doc)
    {
        const int edits = 1 + below(4);
        for (int i = 0; i < edits; ++i)
            editOnce(doc);
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    int16_t number()
    {
        return static_cast<int16_t>(below(5) == 0 ? below(65536) - 32768 : below(8));
    }

    std::string text()
    {
        static const std::vector<std::string> words{"",
                                                    "a",
                                                    "btnPlay",
                                                    "imgHero",
                                                    "null",
                                                    "C:\\games\\x.bmp",
                                                    "ä text longer than the short string room"};
        return words[static_cast<size_t>(below(static_cast<int>(words.size())))];
    }

    template<class Rec>
    void edit(Rec &rec, const layout::TextField<Rec> &field)
    {
        rec.*field.member = text();
    }
    template<class Rec, class Field>
    void edit(Rec &rec, const Field &field)
    {
        using Int = std::remove_reference_t<decltype(rec.*field.member)>;
        // A count stays inside the slots it fills.
        const bool count = field.min >= 0 && field.max <= 1000;
        rec.*field.member = static_cast<Int>(
            count ? field.min + below(static_cast<int>(field.max - field.min) + 1) : number());
    }

    // Edits one field of `line`, taken at random.
    template<class Rec, class Line>
    void editField(Rec &rec, const Line &line)
    {
        const int pick = below(static_cast<int>(std::tuple_size_v<Line>));
        int index = 0;
        std::apply(
            [&](const auto &...field) { ((index++ == pick ? edit(rec, field) : void()), ...); },
            line);
    }

    template<class Rec>
    void editFlags(Rec &rec)
    {
        (below(2) ? rec.inUse : rec.isNew) = static_cast<int16_t>(below(2) ? -1 : 0);
    }

    template<class T, size_t N>
    T &any(std::array<T, N> &table)
    {
        return table[static_cast<size_t>(below(static_cast<int>(N)))];
    }

    void editRecord(Document &doc)
    {
        using namespace layout;
        const bool flags = below(4) == 0;
        switch (below(10)) {
        case 0: {
            ButtonRec &b = any(doc.Buttons);
            if (flags)
                editFlags(b);
            else if (below(10) == 0)
                b.isHotSpot = number();
            else
                below(2) ? editField(b, ButtonHead) : editField(b, ButtonTail);
            break;
        }
        case 1:
            flags ? editFlags(any(doc.Cursors)) : editField(any(doc.Cursors), CursorLine);
            break;
        case 2:
            flags ? editFlags(any(doc.Images)) : editField(any(doc.Images), ImageLine);
            break;
        case 3:
            flags ? editFlags(any(doc.Texts)) : editField(any(doc.Texts), TextLine);
            break;
        case 4:
            flags ? editFlags(any(doc.Fonts)) : editField(any(doc.Fonts), FontLine);
            break;
        case 5:
            flags ? editFlags(any(doc.MusicTracks)) : editField(any(doc.MusicTracks), MusicLine);
            break;
        case 6: {
            MusicRec &s = any(doc.SoundEffects);
            flags ? editFlags(s) : editField(s, MusicLine);
            break;
        }
        case 7: {
            SpriteRec &s = any(doc.Sprites);
            if (flags)
                editFlags(s);
            else if (below(10) == 0)
                s.reserved = below(1000);
            else
                editField(s, SpriteLine);
            break;
        }
        case 8: {
            AnimRec &a = any(any(doc.Sprites).anims);
            switch (below(4)) {
            case 0:
                editFlags(a);
                break;
            case 1:
                below(2) ? editField(a, AnimLine) : editField(a, AnimSettingsLine);
                break;
            default: {
                FrameRec &f = any(a.frames);
                below(2) ? editField(f, FrameLine) : void(f.inUse = static_cast<int16_t>(-1));
            }
            }
            break;
        }
        default: {
            SceneRec &s = any(doc.Scenes);
            if (flags) {
                editFlags(s);
            } else if (below(2)) {
                editField(s, SceneLine);
            } else {
                LayerRec &l = any(s.layers);
                below(3) ? editField(l, LayerLine) : void(l.inUse = number());
            }
        }
        }
    }

    void editSettings(Document &doc)
    {
        using namespace layout;
        AppSettingsRec &app = doc.AppSettings;
        switch (below(8)) {
        case 0:
            editField(app, AppLine1);
            break;
        case 1:
            editField(app, AppSplashLine);
            break;
        case 2:
            editField(app, AppLine3);
            break;
        case 3:
            editField(app, LogCountsLine);
            break;
        case 4:
            editField(app, CustomFilterCountLine);
            break;
        case 5: {
            CustomFilterRec &f = any(app.CustomFilters);
            below(2) ? editField(f, CustomFilterLine) : void(f.inUse = number());
            break;
        }
        case 6:
            any(app.logTypeFilters) = number();
            break;
        default:
            any(app.logFileFilters) = number();
        }
    }

    void editInfo(Document &doc)
    {
        switch (below(5)) {
        case 0:
            doc.ProjectInfo.projectName = text();
            break;
        case 1:
            doc.ProjectInfo.projectFilePath = text();
            break;
        case 2:
            doc.ProjectInfo.generatePath = text();
            break;
        case 3:
            doc.ProjectInfo.projectOpen = static_cast<int16_t>(below(2) ? -1 : 0);
            break;
        default:
            doc.openedFrom = text();
        }
    }

    void editCounter(Document &doc)
    {
        std::array<int16_t *, 7> counters{&doc.customFilterOverflow,
                                          &doc.animOverflow,
                                          &doc.frameOverflow,
                                          &doc.layerOverflow,
                                          &doc.newObjectCounter,
                                          &doc.currentObjectIndex,
                                          &doc.currentAnimIndex};
        if (below(3) == 0)
            any(doc.ObjectCounts) = number();
        else
            *any(counters) = number();
    }

    void editList(Document &doc)
    {
        const Kind kind = ListOrder[static_cast<size_t>(below(KindCount))];
        ObjectList &list = doc.list(kind);
        const int lastSlot = kindInfo(kind).lastSlot;
        const int size = static_cast<int>(list.lines.size());
        const int at = size > 0 ? below(size) : 0;
        switch (below(size > 0 ? 5 : 1)) {
        case 0:
            list.lines.insert(list.lines.begin() + at,
                              ListLine{text(), static_cast<int16_t>(1 + below(lastSlot))});
            break;
        case 1:
            list.lines.erase(list.lines.begin() + at);
            break;
        case 2:
            list.lines[static_cast<size_t>(at)].text = text();
            break;
        case 3:
            list.lines[static_cast<size_t>(at)].slot = static_cast<int16_t>(1 + below(lastSlot));
            break;
        default:
            list.selected = below(size + 1) - 1;
        }
        if (list.selected >= static_cast<int>(list.lines.size()))
            list.selected = static_cast<int>(list.lines.size()) - 1;
    }

    void editOnce(Document &doc)
    {
        switch (below(10)) {
        case 0:
            editSettings(doc);
            break;
        case 1:
            editInfo(doc);
            break;
        case 2:
            editCounter(doc);
            break;
        case 3:
        case 4:
            editList(doc);
            break;
        default:
            editRecord(doc);
        }
    }

    std::mt19937 m_random;
};

std::string fileBytes(const Document &doc)
{
    return projectFileBytes(doc);
}

// The document at a position of the history, rebuilt from the start by the same edits.
class Reference
{
public:
    explicit Reference(const Document &start)
        : m_start(makeDocument())
    {
        *m_start = start;
        m_bytes.push_back(fileBytes(start));
    }

    std::unique_ptr<Document> at(size_t position) const
    {
        auto doc = makeDocument();
        *doc = *m_start;
        for (size_t i = 0; i < position; ++i)
            RandomEdits(m_seeds[i]).apply(*doc);
        return doc;
    }

    // A step recorded at `position` by the edits of `seed`, with the file it saves to.
    void recorded(size_t position, unsigned seed, std::string bytes)
    {
        m_seeds.resize(position);
        m_bytes.resize(position + 1);
        m_seeds.push_back(seed);
        m_bytes.push_back(std::move(bytes));
    }

    const std::string &bytesAt(size_t position) const { return m_bytes[position]; }
    size_t size() const { return m_seeds.size(); }

private:
    std::unique_ptr<Document> m_start;
    std::vector<unsigned> m_seeds;
    std::vector<std::string> m_bytes;
};

void runRandomSteps(unsigned seed, int operations)
{
    std::mt19937 random(seed);
    auto doc = makeDocument();
    setUpNewProject(*doc, "game");
    for (unsigned i = 0; i < 40; ++i)
        RandomEdits(seed * 1000 + i).apply(*doc);
    Reference reference(*doc);
    History history(*doc);
    size_t position = 0;
    auto before = makeDocument();
    size_t saved = SIZE_MAX;
    std::string savedBytes;
    int undone = 0;
    int recorded = 0;

    for (int op = 0; op < operations; ++op) {
        const unsigned roll = random() % 100;
        if (roll < 25 && history.canUndo()) {
            history.undo();
            --position;
            ++undone;
            const auto expected = reference.at(position);
            ASSERT_TRUE(*doc == *expected) << "seed " << seed << " op " << op;
            ASSERT_EQ(fileBytes(*doc), reference.bytesAt(position)) << "seed " << seed;
        } else if (roll < 40 && history.canRedo()) {
            history.redo();
            ++position;
            const auto expected = reference.at(position);
            ASSERT_TRUE(*doc == *expected) << "seed " << seed << " op " << op;
            ASSERT_EQ(fileBytes(*doc), reference.bytesAt(position)) << "seed " << seed;
        } else if (roll < 45) {
            history.markSaved();
            saved = position;
            savedBytes = fileBytes(*doc);
            ASSERT_FALSE(history.unsaved());
        } else {
            const unsigned stepSeed = static_cast<unsigned>(random());
            *before = *doc;
            history.beginStep("Step " + std::to_string(op));
            RandomEdits(stepSeed).apply(*doc);
            const bool changed = !(*doc == *before);
            ASSERT_EQ(history.endStep(), changed) << "seed " << seed << " op " << op;
            if (changed) {
                // The saved position is lost when the steps after it are cleared.
                if (saved != SIZE_MAX && saved > position)
                    saved = SIZE_MAX;
                reference.recorded(position, stepSeed, fileBytes(*doc));
                ++position;
                ++recorded;
                ASSERT_EQ(history.undoName(), "Step " + std::to_string(op));
                ASSERT_FALSE(history.canRedo());
            }
        }
        if (position == saved) {
            ASSERT_FALSE(history.unsaved()) << "seed " << seed << " op " << op;
        }
        if (saved == SIZE_MAX || fileBytes(*doc) != savedBytes) {
            ASSERT_TRUE(history.unsaved()) << "seed " << seed << " op " << op;
        }
    }
    EXPECT_GT(recorded, operations / 3);
    EXPECT_GT(undone, operations / 10);
}

TEST(HistoryProperty, RandomStepsUndoAndRedoToExactlyTheDocumentBeforeAndAfter)
{
    runRandomSteps(1, 400);
}

TEST(HistoryProperty, MoreSeeds)
{
    for (unsigned seed = 2; seed <= 4; ++seed)
        runRandomSteps(seed, 200);
}

} // namespace
} // namespace vorlane
