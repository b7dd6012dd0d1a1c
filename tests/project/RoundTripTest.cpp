#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include "ProjectTestSupport.h"
#include "RandomProject.h"
#include "io/Cp1252.h"
#include "rules/NewObjects.h"

#include <gtest/gtest.h>

#include <numeric>
#include <array>
#include <random>

namespace vorlane {
namespace {

using namespace testsupport;

std::string save(Document &doc)
{
    removeNewObjects(doc);
    return projectFileBytes(doc);
}

std::string reopenAndSave(const std::string &bytes)
{
    auto doc = makeDocument();
    const ProjectReadResult r = readProject(bytes, *doc);
    EXPECT_EQ(r.status, ProjectReadResult::Status::Read) << r.line << ": " << r.message;
    return save(*doc);
}

TEST(ProjectRoundTrip, SaveOpenSaveIsByteIdenticalOnRandomProjects)
{
    for (unsigned seed = 1; seed <= 200; ++seed) {
        auto doc = RandomProject(seed, true).make();
        const std::string first = save(*doc);
        ASSERT_EQ(reopenAndSave(first), first) << "seed " << seed;
    }
}

TEST(ProjectRoundTrip, SaveOpenSaveIsByteIdenticalOnRandomProjectsWrittenInUtf8)
{
    int utf8 = 0;
    for (unsigned seed = 301; seed <= 400; ++seed) {
        auto doc = RandomProject(seed, true, true).make();
        const std::string first = save(*doc);
        utf8 += first.starts_with("\xEF\xBB\xBF") ? 1 : 0;
        ASSERT_EQ(reopenAndSave(first), first) << "seed " << seed;
    }
    EXPECT_GT(utf8, 50);
}

TEST(ProjectRoundTrip, ASecondReloadChangesNothingMore)
{
    // Hot spot cursors and splash flags other than 1 are dropped by the first reload only.
    int changed = 0;
    for (unsigned seed = 1001; seed <= 1050; ++seed) {
        auto doc = RandomProject(seed, false).make();
        const std::string first = save(*doc);
        const std::string second = reopenAndSave(first);
        changed += second != first;
        ASSERT_EQ(reopenAndSave(second), second) << "seed " << seed;
    }
    EXPECT_GT(changed, 0);
}

} // namespace
} // namespace vorlane
