#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"
#include "project/Save.h"

#include "../project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

// Thirty vorlane-cli processes converting thirty projects onto one file at the same time: each
// ends whole, no hidden file stays behind, and the file and its backups are four of the
// versions written, each a different one.
namespace vorlane {
namespace {

using namespace testsupport;

// The project file named `name`, as convert writes it to `out`: some 250 kB, so that the
// saves overlap.
std::string projectBytes(const std::string &name, const std::string &out)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = name;
    listFullSprites(*doc, 4, 1);
    recordChosenPath(*doc, out);
    return projectFileBytes(*doc);
}

TEST(ConcurrentSaves, ThirtyConvertsOntoOneFileLeaveWholeVersionsAndNoHiddenFile)
{
    constexpr int Count = 30;
    TempFolder inputs;
    TempFolder outputs;
    const std::string out = outputs.file("game.dvb");
    std::set<std::string> written; // every version the file may hold
    const std::string original = projectBytes("Original", out);
    writeBytes(out, original);
    std::vector<std::string> ins;
    for (int i = 0; i < Count; ++i) {
        const std::string name = "Version " + std::to_string(i);
        ins.push_back(inputs.file("in" + std::to_string(i) + ".dvb"));
        writeBytes(ins.back(), projectBytes(name, "/elsewhere/in.dvb"));
        written.insert(projectBytes(name, out));
    }

    // Their warnings (the sprites have no image) interleave: they are not what is tested.
    posix_spawn_file_actions_t quiet;
    ASSERT_EQ(::posix_spawn_file_actions_init(&quiet), 0);
    ASSERT_EQ(::posix_spawn_file_actions_addopen(&quiet, 2, "/dev/null", O_WRONLY, 0), 0);
    std::vector<pid_t> children;
    for (const std::string &in : ins) {
        std::vector<std::string> args{VORLANE_CLI_PATH, "convert", in, out};
        std::vector<char *> argv;
        for (std::string &arg : args)
            argv.push_back(arg.data());
        argv.push_back(nullptr);
        pid_t child = 0;
        ASSERT_EQ(::posix_spawn(&child, argv[0], &quiet, nullptr, argv.data(), environ), 0);
        children.push_back(child);
    }
    ::posix_spawn_file_actions_destroy(&quiet);
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }

    EXPECT_EQ(
        outputs.entries(),
        (std::vector<std::string>{"game.dvb", "game.dvb.bak1", "game.dvb.bak2", "game.dvb.bak3"}));
    std::set<std::string> kept;
    for (const std::string &name : outputs.entries()) {
        const std::string bytes = readBytes(outputs.file(name));
        EXPECT_TRUE(written.count(bytes) == 1 || (name != "game.dvb" && bytes == original))
            << name << " holds no whole version:\n"
            << bytes.substr(0, 40);
        kept.insert(bytes);
    }
    // Each save kept the version it replaced, so no two names hold the same one.
    EXPECT_EQ(kept.size(), 4u);
}

} // namespace
} // namespace vorlane
