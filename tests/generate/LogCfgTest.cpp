#include "generate/EngineFiles.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(LogCfg, NoFilterGivesTwoZeroLines)
{
    EXPECT_EQ(logCfg(AppSettingsRec{}), " 0\r\n 0\r\n");
}

TEST(LogCfg, TypeAndModuleFiltersInTableOrder)
{
    AppSettingsRec a;
    a.logTypeFilters[6] = 1;
    a.logTypeFilters[0] = 1;
    a.logTypeFilterCount = 2;
    a.logFileFilters[4] = 1;
    a.logFileFilters[0] = 1;
    a.logFileFilters[10] = 1;
    a.logFileFilterCount = 3;
    EXPECT_EQ(logCfg(a),
              " 2\r\n"
              "Application: *\r\n"
              "!DEBUG!: *\r\n"
              " 3\r\n"
              "capp.cpp*\r\n"
              "CSceneMngr.cpp*\r\n"
              "cvideo.cpp*\r\n");
}

TEST(LogCfg, EveryTypePrefixKeepsItsTrailingBlank)
{
    AppSettingsRec a;
    a.logTypeFilters.fill(1);
    a.logTypeFilterCount = 7;
    EXPECT_EQ(logCfg(a),
              " 7\r\n"
              "Application: *\r\n"
              "System: *\r\n"
              "@App Status: *\r\n"
              "@System Status: *\r\n"
              "&App Status: *\r\n"
              "&System Status: *\r\n"
              "!DEBUG!: *\r\n"
              " 0\r\n");
}

TEST(LogCfg, EveryModuleFile)
{
    AppSettingsRec a;
    a.logFileFilters.fill(1);
    a.logFileFilterCount = 11;
    EXPECT_EQ(logCfg(a),
              " 0\r\n"
              " 11\r\n"
              "capp.cpp*\r\n"
              "cbuttonmngr.cpp*\r\n"
              "ccursormngr.cpp*\r\n"
              "cimagemngr.cpp*\r\n"
              "CSceneMngr.cpp*\r\n"
              "csoundmngr.cpp*\r\n"
              "cspritemngr.cpp*\r\n"
              "ctextmngr.cpp*\r\n"
              "ctilemngr.cpp*\r\n"
              "ctimermngr.cpp*\r\n"
              "cvideo.cpp*\r\n");
}

TEST(LogCfg, OnlyTheValueOneSelectsAFilter)
{
    AppSettingsRec a;
    a.logTypeFilters[1] = -1;
    a.logFileFilters[2] = 2;
    EXPECT_EQ(logCfg(a), " 0\r\n 0\r\n");
}

TEST(LogCfg, CustomFiltersComeInSlotOrderAfterTheModules)
{
    AppSettingsRec a;
    a.CustomFilters[7] = {-1, "second made"};
    a.CustomFilters[2] = {-1, "first slot"};
    a.CustomFilters[5] = {0, "free slot"};
    a.customFilterCount = 2;
    a.logFileFilters[1] = 1;
    a.logFileFilterCount = 1;
    EXPECT_EQ(logCfg(a),
              " 0\r\n"
              " 3\r\n"
              "cbuttonmngr.cpp*\r\n"
              "first slot*\r\n"
              "second made*\r\n");
}

TEST(LogCfg, CustomFiltersOnlyWhenCounted)
{
    AppSettingsRec a;
    a.CustomFilters[0] = {-1, "left over"};
    a.customFilterCount = 0;
    EXPECT_EQ(logCfg(a), " 0\r\n 0\r\n");
}

TEST(LogCfg, CountsAreWrittenAsStored)
{
    // The stored counts disagree with the check values; they are written as they stand.
    AppSettingsRec a;
    a.logTypeFilters[3] = 1;
    a.logTypeFilterCount = 5;
    a.logFileFilterCount = -2;
    a.customFilterCount = 1;
    a.CustomFilters[0] = {-1, "slot zero"};
    a.CustomFilters[50] = {-1, "slot fifty"};
    EXPECT_EQ(logCfg(a),
              " 5\r\n"
              "@System Status: *\r\n"
              "-1\r\n"
              "slot zero*\r\n"
              "slot fifty*\r\n");
}

} // namespace
} // namespace vorlane
