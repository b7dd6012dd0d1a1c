#include "rules/AppSettingsRules.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(AppSettingsRules, AnEmptiedCaptionShowsTheDefaultCaption)
{
    EXPECT_EQ(windowCaptionRule(""), (TextOutcome{"", std::string("QTA Application")}));
    EXPECT_EQ(windowCaptionRule("QTA Application"), (TextOutcome{"QTA Application", {}}));
    EXPECT_EQ(windowCaptionRule("My Game"), (TextOutcome{"My Game", {}}));
    EXPECT_EQ(windowCaptionRule("null"), (TextOutcome{"null", {}}));
}

TEST(AppSettingsRules, TheIconIsSetOnlyForAWindowedScreen)
{
    EXPECT_FALSE(windowIconEditable(ScreenTypeFullscreen));
    EXPECT_TRUE(windowIconEditable(ScreenTypeWindowed));
    EXPECT_EQ(ScreenTypeFullscreen, 1);
    EXPECT_EQ(ScreenTypeWindowed, 2);
}

TEST(AppSettingsRules, DefaultedTextKeepsAnyTextAndRefillsAnEmptyBox)
{
    EXPECT_EQ(defaultedTextRule("", "x"), (TextOutcome{"", std::string("x")}));
    EXPECT_EQ(defaultedTextRule(" ", "x"), (TextOutcome{" ", {}}));
    EXPECT_EQ(identifierRule(""), (TextOutcome{"", std::string("Enter_ID")}));
}

} // namespace
} // namespace vorlane
