#include "project/ProjectFileWatch.h"

#include "io/FailingFileOps.h"
#include "io/SafeSave.h"
#include "project/Save.h"
#include "ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

// The open project file changed on disk by another program: told once, told apart from the
// program's own saves, and its version kept by the next Save under a name no save rotates.
namespace vorlane {
namespace {

using namespace testsupport;

// 2026-11-24 13:05:42 UTC.
constexpr std::time_t ChangedAt = 1795525542;

// Times shown in UTC while a test runs, so that names and lines do not depend on the machine.
class UtcTime
{
public:
    UtcTime()
    {
        if (const char *zone = std::getenv("TZ"))
            m_previous = zone;
        ::setenv("TZ", "UTC", 1);
        ::tzset();
    }
    ~UtcTime()
    {
        if (m_previous)
            ::setenv("TZ", m_previous->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }

private:
    std::optional<std::string> m_previous;
};

// Another program writes `bytes` to `path` as a careful program does (a new file renamed
// over it), dated ChangedAt.
void rewriteElsewhere(const std::string &path, const std::string &bytes)
{
    const std::string temporary = path + ".other";
    writeBytes(temporary, bytes);
    const timespec times[2] = {{ChangedAt, 0}, {ChangedAt, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, temporary.c_str(), times, 0), 0);
    std::filesystem::rename(temporary, path);
}

class ProjectFileWatchTest : public ::testing::Test
{
protected:
    UtcTime utc;
    TempFolder folder;
    std::unique_ptr<Document> doc = makeDocument();
    ScriptedUi ui;
    ProgressSink quiet;
    FailingFileOps ops;
    ProjectFileWatch watch;
    const std::string path = folder.file("game.dvb");

    void SetUp() override
    {
        doc->ProjectInfo.projectName = "Ours";
        doc->ProjectInfo.projectFilePath = path;
    }

    // Saves as the main window does: keeping another program's version when there is one.
    SaveResult save()
    {
        SaveOptions options;
        options.keepTheirsAs = watch.theirsName(path, ops);
        SaveResult result = saveProject(*doc, ui, quiet, ops, options);
        if (result.written())
            watch.watch(path, result.file);
        return result;
    }
};

TEST_F(ProjectFileWatchTest, TheProgramsOwnSavesAreNoChange)
{
    ASSERT_TRUE(save().written());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(watch.look(ops), std::nullopt);
        EXPECT_EQ(watch.theirsName(path, ops), "");
        const SaveResult again = save();
        ASSERT_TRUE(again.written());
        EXPECT_TRUE(again.notices.empty());
    }
    EXPECT_EQ(
        folder.entries(),
        (std::vector<std::string>{"game.dvb", "game.dvb.bak1", "game.dvb.bak2", "game.dvb.bak3"}));
}

TEST_F(ProjectFileWatchTest, AChangeIsToldOnceAndTheNextSaveKeepsItWhereNoSaveRotatesIt)
{
    ASSERT_TRUE(save().written());
    const std::string theirs = OldProject + "their own lines\r\n";
    rewriteElsewhere(path, theirs);

    EXPECT_EQ(watch.look(ops),
              "\"" + path +
                  "\" was changed by another program; the next Save keeps its version as "
                  "\"game.dvb.theirs-20261124-1305\"");
    EXPECT_EQ(watch.look(ops), std::nullopt); // told once
    EXPECT_EQ(watch.theirsName(path, ops), path + ".theirs-20261124-1305");
    EXPECT_EQ(watch.theirsName(folder.file("other.dvb"), ops), ""); // Save As elsewhere

    const SaveResult result = save();
    ASSERT_TRUE(result.written()) << result.reason;
    EXPECT_EQ(result.notices,
              std::vector<std::string>{"\"" + path +
                                       "\" was saved; the version another program wrote is "
                                       "kept as \"" +
                                       path + ".theirs-20261124-1305\""});
    EXPECT_EQ(readBytes(path + ".theirs-20261124-1305"), theirs);
    EXPECT_EQ(readBytes(path + ".bak1"), theirs);
    EXPECT_EQ(watch.look(ops), std::nullopt);

    for (int i = 0; i < 4; ++i)
        ASSERT_TRUE(save().written());
    EXPECT_EQ(readBytes(path + ".theirs-20261124-1305"), theirs);
    EXPECT_EQ(folder.entries(),
              (std::vector<std::string>{"game.dvb",
                                        "game.dvb.bak1",
                                        "game.dvb.bak2",
                                        "game.dvb.bak3",
                                        "game.dvb.theirs-20261124-1305"}));
}

TEST_F(ProjectFileWatchTest, AChangeInPlaceIsFoundAndTwoInOneMinuteKeepBoth)
{
    ASSERT_TRUE(save().written());
    // Rewritten in place: same file, same size, another time.
    std::string bytes = readBytes(path);
    bytes[1] = 'X';
    writeBytes(path, bytes);
    const timespec times[2] = {{ChangedAt, 0}, {ChangedAt, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    EXPECT_NE(watch.look(ops), std::nullopt);
    ASSERT_TRUE(save().written());
    EXPECT_EQ(readBytes(path + ".theirs-20261124-1305"), bytes);

    // A second change stamped the same minute takes the next free name.
    rewriteElsewhere(path, OldProject);
    ASSERT_TRUE(save().written());
    EXPECT_EQ(readBytes(path + ".theirs-20261124-1305"), bytes);
    EXPECT_EQ(readBytes(path + ".theirs-20261124-1305-2"), OldProject);
}

TEST_F(ProjectFileWatchTest, AFileRemovedIsToldAndWrittenAgain)
{
    ASSERT_TRUE(save().written());
    std::filesystem::remove(path);
    EXPECT_EQ(watch.look(ops),
              "\"" + path +
                  "\" was removed or renamed by another program; the next Save writes it again");
    EXPECT_EQ(watch.look(ops), std::nullopt);
    EXPECT_EQ(watch.theirsName(path, ops), "");
    ASSERT_TRUE(save().written());
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(ProjectFileWatchTest, AFileJustOpenedIsTheProgramsVersion)
{
    writeBytes(path, OldProject);
    watch.watch(path, ops);
    EXPECT_EQ(watch.look(ops), std::nullopt);
    EXPECT_EQ(watch.theirsName(path, ops), "");
    watch.stop();
    rewriteElsewhere(path, OldProject + "more\r\n");
    EXPECT_EQ(watch.look(ops), std::nullopt); // nothing is watched
}

TEST(TheirsCopyName, IsTheMinuteOfTheChangeAndStaysWithinTheNameLimit)
{
    UtcTime utc;
    const long long at = static_cast<long long>(ChangedAt) * 1000000000LL + 999;
    EXPECT_EQ(theirsCopyName("/p/game.dvb", at), "/p/game.dvb.theirs-20261124-1305");
    EXPECT_EQ(theirsCopyName("game.dvb", 0), "game.dvb.theirs-19700101-0000");
    const std::string longName(255, 'x');
    EXPECT_EQ(theirsCopyName("/p/" + longName, at),
              "/p/" + std::string(255 - 21, 'x') + ".theirs-20261124-1305");
}

} // namespace
} // namespace vorlane
