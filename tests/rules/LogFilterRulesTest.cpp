#include "rules/LogFilterRules.h"

#include "generate/EngineFiles.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace vorlane {
namespace {

std::unique_ptr<Document> newProject()
{
    auto doc = makeDocument();
    setUpNewProject(*doc, "My Project");
    return doc;
}

std::vector<std::string> texts(const ObjectList &list)
{
    std::vector<std::string> result;
    for (const ListLine &line : list.lines)
        result.push_back(line.text);
    return result;
}

std::vector<int> slots(const ObjectList &list)
{
    std::vector<int> result;
    for (const ListLine &line : list.lines)
        result.push_back(line.slot);
    return result;
}

TEST(LogFilterRules, CountsTheCheckedValues)
{
    const std::array<int16_t, 7> types{1, 0, 0, 1, 0, 0, 1};
    EXPECT_EQ(checkedCount(types), 3);
    const std::array<int16_t, 11> none{};
    EXPECT_EQ(checkedCount(none), 0);
    // Any value that is not 0 counts, as the boxes' recount has it.
    const std::array<int16_t, 3> odd{-1, 2, 0};
    EXPECT_EQ(checkedCount(odd), 2);
}

TEST(LogFilterRules, ListsNothingWhileTheCountIsBelowOne)
{
    auto doc = newProject();
    AppSettingsRec &app = doc->AppSettings;
    app.CustomFilters[3] = {-1, "mouse"};
    app.customFilterCount = 0;
    EXPECT_TRUE(customFilterList(app).lines.empty());
    app.customFilterCount = -2;
    EXPECT_TRUE(customFilterList(app).lines.empty());
}

TEST(LogFilterRules, ListsTheFiltersInSlotOrder)
{
    auto doc = newProject();
    AppSettingsRec &app = doc->AppSettings;
    app.CustomFilters[7] = {-1, "seven"};
    app.CustomFilters[2] = {-1, "two"};
    app.CustomFilters[50] = {-1, "last"};
    app.CustomFilters[4] = {0, "freed"};
    app.customFilterCount = 1;
    const ObjectList list = customFilterList(app);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"two", "seven", "last"}));
    EXPECT_EQ(slots(list), (std::vector<int>{2, 7, 50}));
    EXPECT_EQ(list.selected, -1);
}

TEST(LogFilterRules, CreateTakesTheFirstFreeSlot)
{
    auto doc = newProject();
    ObjectList list;
    EXPECT_EQ(createCustomFilter(*doc, list, "alpha").slot, 0);
    EXPECT_EQ(createCustomFilter(*doc, list, "beta").slot, 1);
    const FilterCreation third = createCustomFilter(*doc, list, "alpha");
    EXPECT_FALSE(third.refusal.has_value());
    EXPECT_EQ(third.slot, 2);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"alpha", "beta", "alpha"}));
    EXPECT_EQ(slots(list), (std::vector<int>{0, 1, 2}));
    const auto &filters = doc->AppSettings.CustomFilters;
    EXPECT_EQ(filters[2].inUse, -1);
    EXPECT_EQ(filters[2].text, "alpha");
    EXPECT_EQ(filters[3].inUse, 0);
    EXPECT_EQ(doc->customFilterOverflow, 0);
}

TEST(LogFilterRules, AFilterMadeAfterADeleteTakesTheFreedLowSlot)
{
    auto doc = newProject();
    ObjectList list;
    for (const char *text : {"a", "b", "c"})
        createCustomFilter(*doc, list, text);
    list.selected = 1;
    ASSERT_TRUE(removeCustomFilter(doc->AppSettings, list));
    EXPECT_EQ(doc->AppSettings.CustomFilters[1].inUse, 0);
    EXPECT_EQ(createCustomFilter(*doc, list, "d").slot, 1);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"a", "c", "d"}));
    doc->AppSettings.customFilterCount = static_cast<int16_t>(list.lines.size());
    EXPECT_EQ(logCfg(doc->AppSettings), " 0\r\n 3\r\na*\r\nd*\r\nc*\r\n");
}

TEST(LogFilterRules, OnlyTheLastSlotFreeUsesTheOverflowCounterAndMarksTheLastSlot)
{
    auto doc = newProject();
    auto &filters = doc->AppSettings.CustomFilters;
    for (int slot = 0; slot < 50; ++slot)
        filters[static_cast<size_t>(slot)] = {-1, "f" + std::to_string(slot)};
    filters[50] = {0, "old"};
    doc->customFilterOverflow = 3;
    ObjectList list;
    const FilterCreation made = createCustomFilter(*doc, list, "new");
    EXPECT_FALSE(made.refusal.has_value());
    EXPECT_EQ(made.slot, 3);
    EXPECT_EQ(filters[3].text, "new");
    EXPECT_EQ(filters[3].inUse, -1);
    EXPECT_EQ(filters[50].inUse, -1);
    EXPECT_EQ(filters[50].text, "old");
    EXPECT_EQ(doc->customFilterOverflow, 4);
    EXPECT_EQ(slots(list), (std::vector<int>{3}));
}

TEST(LogFilterRules, TheOverflowCounterOnTheLastSlotFillsIt)
{
    auto doc = newProject();
    auto &filters = doc->AppSettings.CustomFilters;
    for (int slot = 0; slot < 50; ++slot)
        filters[static_cast<size_t>(slot)].inUse = -1;
    doc->customFilterOverflow = 50;
    ObjectList list;
    EXPECT_EQ(createCustomFilter(*doc, list, "fifty").slot, 50);
    EXPECT_EQ(filters[50].text, "fifty");
    EXPECT_EQ(doc->customFilterOverflow, 51);
}

TEST(LogFilterRules, ASlotPastTheTableIsRefusedAndNothingWritten)
{
    auto doc = newProject();
    auto &filters = doc->AppSettings.CustomFilters;
    for (int slot = 0; slot <= 50; ++slot)
        filters[static_cast<size_t>(slot)] = {-1, "f" + std::to_string(slot)};
    doc->customFilterOverflow = 51;
    ObjectList list;
    list.lines.push_back({"f0", 0});
    const auto before = filters;
    const FilterCreation made = createCustomFilter(*doc, list, "more");
    ASSERT_TRUE(made.refusal.has_value());
    EXPECT_EQ(made.refusal->text, "No space left for filters! (Max 50)");
    EXPECT_EQ(made.refusal->title, "Object Overload");
    EXPECT_EQ(made.refusal->icon, MessageIcon::Critical);
    EXPECT_EQ(made.refusal->buttons, MessageButtons::OK);
    EXPECT_EQ(doc->customFilterOverflow, 51);
    EXPECT_EQ(list.lines.size(), 1u);
    for (size_t slot = 0; slot < filters.size(); ++slot) {
        EXPECT_EQ(filters[slot].inUse, before[slot].inUse);
        EXPECT_EQ(filters[slot].text, before[slot].text);
    }

    // The last slot free and the counter past the table: the last slot stays free as well.
    filters[50].inUse = 0;
    EXPECT_TRUE(createCustomFilter(*doc, list, "more").refusal.has_value());
    EXPECT_EQ(filters[50].inUse, 0);
}

TEST(LogFilterRules, AHundredListedEntriesRefuseTheNextFilter)
{
    auto doc = newProject();
    ObjectList list;
    for (int i = 0; i < 99; ++i)
        list.lines.push_back({"x", 0});
    EXPECT_FALSE(createCustomFilter(*doc, list, "ninety-nine").refusal.has_value());
    EXPECT_EQ(list.lines.size(), 100u);
    const FilterCreation refused = createCustomFilter(*doc, list, "hundred");
    ASSERT_TRUE(refused.refusal.has_value());
    EXPECT_EQ(refused.refusal->text, "No space left for filters! (Max 50)");
    EXPECT_EQ(list.lines.size(), 100u);
    EXPECT_EQ(doc->AppSettings.CustomFilters[1].inUse, 0);
}

TEST(LogFilterRules, RemoveMovesTheSelectionAndRefusesWithoutOne)
{
    auto doc = newProject();
    ObjectList list;
    for (const char *text : {"a", "b", "c"})
        createCustomFilter(*doc, list, text);
    EXPECT_FALSE(removeCustomFilter(doc->AppSettings, list));
    EXPECT_EQ(list.lines.size(), 3u);

    list.selected = 2;
    ASSERT_TRUE(removeCustomFilter(doc->AppSettings, list));
    EXPECT_EQ(list.selected, 1);
    EXPECT_EQ(doc->AppSettings.CustomFilters[2].inUse, 0);
    list.selected = 0;
    ASSERT_TRUE(removeCustomFilter(doc->AppSettings, list));
    EXPECT_EQ(texts(list), (std::vector<std::string>{"b"}));
    EXPECT_EQ(list.selected, 0);
    ASSERT_TRUE(removeCustomFilter(doc->AppSettings, list));
    EXPECT_TRUE(list.lines.empty());
    EXPECT_EQ(list.selected, -1);
}

TEST(LogFilterRules, CreateIsOfferedOnlyForANameWithText)
{
    EXPECT_FALSE(canCreateFilter(""));
    EXPECT_TRUE(canCreateFilter(" "));
    EXPECT_TRUE(canCreateFilter("mouse"));
}

} // namespace
} // namespace vorlane
