#include "json/JsonText.h"
#include "json/ProjectJson.h"

#include "../project/ProjectTestSupport.h"
#include "../project/RandomProject.h"
#include "SchemaValidator.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"
#include "rules/NewObjects.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

using Lines = std::vector<std::string>;

SchemaValidator projectSchema()
{
    return SchemaValidator(
        Json::parse(readBytes(std::string(VORLANE_DOCS) + "/project.schema.json")));
}

Json exported(const std::string &file)
{
    auto doc = makeDocument();
    EXPECT_EQ(readProjectForJson(file, *doc).status, ProjectReadResult::Status::Read);
    return projectToJson(*doc);
}

TEST(ProjectSchema, EveryExportHoldsToTheSchema)
{
    const SchemaValidator schema = projectSchema();
    EXPECT_EQ(schema.errors(exported(crlf(smallProjectLines()))), Lines{});
    EXPECT_EQ(
        schema.errors(exported(readBytes(std::string(VORLANE_TEST_DATA) + "/project/golden.dvb"))),
        Lines{});
    for (unsigned seed = 1; seed <= 12; ++seed) {
        auto doc = RandomProject(seed, false).make();
        removeNewObjects(*doc);
        ASSERT_EQ(schema.errors(exported(projectFileBytes(*doc))), Lines{}) << "seed " << seed;
    }
}

TEST(ProjectSchema, TheSchemaRefusesWhatImportRefuses)
{
    const SchemaValidator schema = projectSchema();
    const Json good = exported(crlf(smallProjectLines()));
    struct Case
    {
        const char *pointer;
        Json value;
        Lines errors;
    };
    const std::vector<Case> cases{
        {"/buttons/0/x", 40000, {"/buttons/0/x: maximum"}},
        {"/buttons/0/y", "20", {"/buttons/0/y: type"}},
        {"/buttons/1/templateId", "tpl", {"/buttons/1/templateId: false"}},
        {"/texts/0/content", "a\nb", {"/texts/0/content: pattern"}},
        {"/texts/0/content", "a\",b", {"/texts/0/content: not"}},
        {"/settings/splashEnabled",
         0,
         {"/settings/splashWidth: false",
          "/settings/splashHeight: false",
          "/settings/splashBpp: false",
          "/settings/splashImagePath: false",
          "/settings/splashTimer: false",
          "/settings/splashRed: false",
          "/settings/splashGreen: false",
          "/settings/splashBlue: false"}},
        {"/format", "other", {"/format: const"}},
        {"/log/logTypeFilters/7", 0, {"/log/logTypeFilters: maxItems"}},
        {"/fonts/0/size", 3, {"/fonts/0/size: false"}},
    };
    for (const Case &c : cases) {
        Json bad = good;
        bad[Json::json_pointer(c.pointer)] = c.value;
        EXPECT_EQ(schema.errors(bad), c.errors) << c.pointer;
        auto doc = makeDocument();
        EXPECT_THROW(projectFromJson(bad, *doc), JsonValueError) << c.pointer;
    }
    Json missing = good;
    missing["images"][0].erase("path");
    EXPECT_EQ(schema.errors(missing), Lines{"/images/0: required path"});
    Json many = good;
    while (many["cursors"].size() < 27)
        many["cursors"].push_back(good["cursors"][0]);
    EXPECT_EQ(schema.errors(many), Lines{"/cursors: maxItems"});
}

} // namespace
} // namespace vorlane
