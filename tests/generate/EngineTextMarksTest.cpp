#include "generate/EngineTextMarks.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using M = EngineTextMark;

TEST(EngineTextMarks, MarksTheTerminatorAndWhatWindows1252CannotHold)
{
    // "a*é€中?" : the euro sign and e acute are Windows-1252, the CJK character is not.
    EXPECT_EQ(
        engineTextMarks(U"a*\u00E9\u20AC\u4E2D?"),
        (std::vector<M>{
            M::Readable, M::Terminator, M::Readable, M::Readable, M::NotCp1252, M::Readable}));
    EXPECT_EQ(engineTextMarks(U"\U0001F600"), std::vector<M>{M::NotCp1252});
    EXPECT_TRUE(engineTextMarks(U"").empty());
}

} // namespace
} // namespace vorlane
