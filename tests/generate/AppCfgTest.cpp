#include "generate/EngineFiles.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

AppSettingsRec windowed640()
{
    AppSettingsRec a;
    a.windowCaption = "QTA Application";
    a.windowIcon = "null";
    a.screenWidth = 640;
    a.screenHeight = 480;
    a.screenBpp = 16;
    a.screenType = 2;
    a.fps = 60;
    a.splashEnabled = 1;
    a.splashWidth = 320;
    a.splashHeight = 200;
    a.splashBpp = 8;
    a.splashImagePath = "gfx\\splash.bmp";
    a.splashTimer = 3;
    a.splashRed = 255;
    a.splashGreen = 0;
    a.splashBlue = 255;
    a.soundMix = 44100;
    a.soundChannels = 16;
    a.useEngineScreen = 1;
    a.logEnabled = 0;
    a.logPath = "null";
    return a;
}

TEST(AppCfg, WindowSplashAndSoundLines)
{
    EXPECT_EQ(appCfg(windowed640(), "data\\"),
              "data\\* QTA Application* null*  640  480  16  2  60  1\r\n"
              " 320  200  8 gfx\\splash.bmp  3  255  0  255\r\n"
              " 44100  16  1  0 null*\r\n");
}

TEST(AppCfg, SplashDisabledGivesTwoLines)
{
    AppSettingsRec a = windowed640();
    a.splashEnabled = 0;
    EXPECT_EQ(appCfg(a, "data\\"),
              "data\\* QTA Application* null*  640  480  16  2  60  0\r\n"
              " 44100  16  1  0 null*\r\n");
}

TEST(AppCfg, SplashLineOnlyForTheValueOne)
{
    AppSettingsRec a = windowed640();
    a.splashEnabled = -1;
    EXPECT_EQ(appCfg(a, "data\\"),
              "data\\* QTA Application* null*  640  480  16  2  60 -1\r\n"
              " 44100  16  1  0 null*\r\n");
}

TEST(AppCfg, EmptyRootFolderBeginsWithNull)
{
    const std::string bytes = appCfg(windowed640(), "null");
    EXPECT_EQ(bytes.substr(0, 7), "null* Q");
}

TEST(AppCfg, NegativeNumbersStandWithoutBlank)
{
    AppSettingsRec a = windowed640();
    a.splashEnabled = 0;
    a.screenWidth = -1;
    a.soundMix = -22050;
    a.soundChannels = -1;
    EXPECT_EQ(appCfg(a, "d/"),
              "d/* QTA Application* null* -1  480  16  2  60  0\r\n"
              "-22050 -1  1  0 null*\r\n");
}

TEST(AppCfg, TextsWithBlanksAndWindows1252)
{
    AppSettingsRec a = windowed640();
    a.splashEnabled = 0;
    a.windowCaption = "Caf\xC3\xA9 Quest";
    a.windowIcon = "my icons\\q.ico";
    a.logPath = "logs\\run log.txt";
    a.logEnabled = 1;
    EXPECT_EQ(appCfg(a, "game data\\"),
              "game data\\* Caf\xE9 Quest* my icons\\q.ico*  640  480  16  2  60  0\r\n"
              " 44100  16  1  1 logs\\run log.txt*\r\n");
}

TEST(AppCfg, SoundMixKeepsItsThirtyTwoBits)
{
    AppSettingsRec a = windowed640();
    a.splashEnabled = 0;
    a.soundMix = 96000;
    EXPECT_EQ(appCfg(a, "").substr(appCfg(a, "").find("\r\n") + 2), " 96000  16  1  0 null*\r\n");
}

} // namespace
} // namespace vorlane
