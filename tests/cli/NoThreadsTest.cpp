#include "../project/ProjectTestSupport.h"
#include "generate/EngineFiles.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include <sys/wait.h>

// vorlane-cli writes files on threads of their own where it can; where the system gives no
// thread, it must do the same work on its one thread, not stop.
namespace vorlane {
namespace {

using namespace testsupport;

// Runs vorlane-cli with `arguments` (already quoted) on a system without threads; its exit code.
int runWithoutThreads(const std::string &arguments, const std::string &errFile)
{
    const std::string command = std::string("LD_PRELOAD='") + VORLANE_NO_THREADS_PATH +
                                "' ASAN_OPTIONS=verify_asan_link_order=0 '" + VORLANE_CLI_PATH +
                                "' " + arguments + " 2>'" + errFile + "'";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(NoThreads, ConvertAndGenerateStillWriteEveryByte)
{
    TempFolder folder;
    // A project of a few megabytes: its project file and its sprite.dat take several chunks.
    auto doc = makeDocument();
    listFullSprites(*doc, 40, 100);
    for (SpriteRec &sprite : doc->Sprites)
        sprite.imageId = sprite.currentAnimId = "null"; // nothing for check to warn about
    doc->ProjectInfo.projectFilePath = folder.file("in.dvb");
    writeBytes(folder.file("in.dvb"), projectFileBytes(*doc).str());

    EXPECT_EQ(runWithoutThreads("convert '" + folder.file("in.dvb") + "' '" +
                                    folder.file("out.dvb") + "'",
                                folder.file("convert.txt")),
              0);
    EXPECT_EQ(readBytes(folder.file("convert.txt")), "");
    doc->ProjectInfo.projectFilePath = folder.file("out.dvb");
    const std::string converted = readBytes(folder.file("out.dvb"));
    EXPECT_GT(converted.size(), 2u << 20);
    EXPECT_TRUE(converted == projectFileBytes(*doc).str());

    EXPECT_EQ(runWithoutThreads("generate '" + folder.file("in.dvb") + "' '" + folder.file("data") +
                                    "' --root '" + folder.path() + "'",
                                folder.file("generate.txt")),
              0);
    EXPECT_EQ(readBytes(folder.file("generate.txt")), "");
    const std::string sprites = readBytes(folder.file("data/sprite.dat"));
    EXPECT_GT(sprites.size(), 2u << 20);
    EXPECT_TRUE(sprites == spriteDat(*doc));
}

} // namespace
} // namespace vorlane
