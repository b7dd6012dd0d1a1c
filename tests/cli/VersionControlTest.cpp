#include "../project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sys/wait.h>

// The manual's lines that set up git, run in a real repository: git shows a project's JSON
// form in diffs and merges projects with vorlane-cli merge.

namespace vorlane {
namespace {

using namespace testsupport;

struct Shell
{
    int code;
    std::string output; // standard output and error together
};

std::string replaceAll(std::string text, const std::string &from, const std::string &to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The text of the manual page's <pre id="ID"> block, with its HTML entities undone.
std::string manualBlock(const std::string &id)
{
    const std::string page = readBytes(std::string(VORLANE_DOCS) + "/manual/version-control.html");
    const std::string open = "<pre id=\"" + id + "\">";
    const size_t begin = page.find(open);
    EXPECT_NE(begin, std::string::npos) << id;
    if (begin == std::string::npos)
        return {};
    const size_t end = page.find("</pre>", begin);
    std::string text = page.substr(begin + open.size(), end - begin - open.size());
    text = replaceAll(text, "&lt;", "<");
    text = replaceAll(text, "&gt;", ">");
    return replaceAll(text, "&amp;", "&");
}

class VersionControl : public ::testing::Test
{
protected:
    TempFolder folder;

    // Runs `command` with bash in the repository, away from the user's own git settings.
    Shell run(const std::string &command)
    {
        const std::string script = "cd '" + folder.path() + "' && export HOME='" + folder.path() +
                                   "' GIT_CONFIG_NOSYSTEM=1 LC_ALL=C && " + command + " 2>&1";
        FILE *pipe = popen(("bash -c " + quoted(script)).c_str(), "r");
        EXPECT_NE(pipe, nullptr);
        std::string output;
        char buffer[4096];
        size_t n;
        while (pipe && (n = fread(buffer, 1, sizeof buffer, pipe)) > 0)
            output.append(buffer, n);
        const int status = pipe ? pclose(pipe) : -1;
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
    }

    static std::string quoted(const std::string &text)
    {
        return "'" + replaceAll(text, "'", "'\\''") + "'";
    }

    void git(const std::string &arguments)
    {
        const Shell r = run("git " + arguments);
        ASSERT_EQ(r.code, 0) << "git " << arguments << "\n" << r.output;
    }

    // The small project with its first button at x, y.
    static std::string project(int x, int y)
    {
        std::vector<std::string> lines = smallProjectLines();
        lines[14] = "\"btn\"," + std::to_string(x) + "," + std::to_string(y) +
                    ",\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,0,1,\"su\",\"sd\",\"so\","
                    "\"sx\"";
        return crlf(lines);
    }

    void commit(const std::string &bytes, const std::string &message)
    {
        writeBytes(folder.file("game.dvb"), bytes);
        git("add game.dvb");
        git("commit -q -m " + quoted(message));
    }

    void SetUp() override
    {
        git("init -q -b main");
        git("config user.name 'Vorlane Tests'");
        git("config user.email tests@vorlane.org");
        git("config commit.gpgsign false");
        // The manual's lines, with the vorlane-cli of this build.
        writeBytes(folder.file(".gitattributes"), manualBlock("gitattributes") + "\n");
        const std::string config = manualBlock("gitconfig");
        ASSERT_EQ(std::count(config.begin(), config.end(), '\n'), 2) << config;
        const Shell r =
            run(replaceAll(config, "vorlane-cli ", std::string(VORLANE_CLI_PATH) + " ") + "\n");
        ASSERT_EQ(r.code, 0) << r.output;
        git("add .gitattributes");
        commit(project(10, 20), "A project");
    }
};

TEST_F(VersionControl, GitDiffShowsTheChangedFieldOfTheJsonForm)
{
    commit(project(10, 21), "Move the button down");
    const Shell r = run("git diff --no-color -U0 HEAD~1 HEAD -- game.dvb");
    EXPECT_EQ(r.code, 0);
    EXPECT_NE(r.output.find("\n-      \"y\": 20,\n+      \"y\": 21,\n"), std::string::npos)
        << r.output;
    EXPECT_EQ(r.output.find("Binary"), std::string::npos) << r.output;
}

TEST_F(VersionControl, GitMergeAppliesChangesToDifferentFieldsOfOneObject)
{
    git("checkout -q -b theirs");
    commit(project(10, 99), "Theirs moves the button down");
    git("checkout -q main");
    commit(project(77, 20), "Ours moves the button right");
    const Shell r = run("git merge -q --no-edit theirs");
    EXPECT_EQ(r.code, 0) << r.output;
    EXPECT_EQ(readBytes(folder.file("game.dvb")), project(77, 99));
    EXPECT_EQ(run("git status --porcelain").output, "");
}

TEST_F(VersionControl, AConflictKeepsOursAndIsListedWithBothValues)
{
    git("checkout -q -b theirs");
    commit(project(55, 20), "Theirs");
    git("checkout -q main");
    commit(project(77, 20), "Ours");
    const Shell r = run("git merge -q --no-edit theirs");
    EXPECT_NE(r.code, 0) << r.output;
    EXPECT_NE(r.output.find("conflict: button \"btn\": x: ours 77, theirs 55 (base 10); ours kept"),
              std::string::npos)
        << r.output;
    EXPECT_EQ(readBytes(folder.file("game.dvb")), project(77, 20));
    EXPECT_EQ(run("git status --porcelain").output, "UU game.dvb\n");
}

} // namespace
} // namespace vorlane
