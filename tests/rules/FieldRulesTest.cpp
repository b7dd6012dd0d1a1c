#include "rules/FieldRules.h"

#include "model/Kinds.h"
#include "rules/ObjectManagement.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

using std::nullopt;
using std::optional;
using std::string;

// Applies a text rule as the editor does: the box's new text runs the rule again.
template<class Rule>
auto settle(Rule rule, string text)
{
    auto outcome = rule(text);
    while (outcome.boxText && *outcome.boxText != text) {
        text = *outcome.boxText;
        outcome = rule(text);
    }
    return std::make_pair(outcome.value, text);
}

TEST(IdentifierRule, StoresTheText)
{
    EXPECT_EQ(identifierRule("Play_Button"), (TextOutcome{"Play_Button", nullopt}));
    EXPECT_EQ(identifierRule("null"), (TextOutcome{"null", nullopt}));
}

TEST(IdentifierRule, EmptiedBoxShowsEnterId)
{
    EXPECT_EQ(identifierRule(""), (TextOutcome{"", string("Enter_ID")}));
    EXPECT_EQ(settle(identifierRule, ""), std::make_pair(string("Enter_ID"), string("Enter_ID")));
}

TEST(ReferenceRule, StoresTheText)
{
    EXPECT_EQ(referenceRule("tiles"), (TextOutcome{"tiles", nullopt}));
    EXPECT_EQ(referenceRule("nul"), (TextOutcome{"nul", nullopt}));
    EXPECT_EQ(referenceRule("NULL"), (TextOutcome{"NULL", nullopt}));
    EXPECT_EQ(referenceRule(" null"), (TextOutcome{" null", nullopt}));
}

TEST(ReferenceRule, EmptyBoxStoresNull)
{
    EXPECT_EQ(referenceRule(""), (TextOutcome{"null", nullopt}));
}

TEST(ReferenceRule, TypedNullEmptiesTheBox)
{
    EXPECT_EQ(referenceRule("null"), (TextOutcome{"null", string("")}));
    EXPECT_EQ(settle(referenceRule, "null"), std::make_pair(string("null"), string("")));
}

TEST(ContentRule, EmptyBoxStoresNullAndTypedNullStays)
{
    EXPECT_EQ(contentRule(""), (TextOutcome{"null", nullopt}));
    EXPECT_EQ(contentRule("null"), (TextOutcome{"null", nullopt}));
    EXPECT_EQ(contentRule("Hello, world"), (TextOutcome{"Hello, world", nullopt}));
}

TEST(LeadingNumber, ReadsSignDigitsAndFraction)
{
    EXPECT_EQ(leadingNumber("0"), 0);
    EXPECT_EQ(leadingNumber("42"), 42);
    EXPECT_EQ(leadingNumber("-5"), -5);
    EXPECT_EQ(leadingNumber("+7"), 7);
    EXPECT_EQ(leadingNumber("007"), 7);
    EXPECT_EQ(leadingNumber("12.25"), 12);
    EXPECT_EQ(leadingNumber("12.75"), 13);
    EXPECT_EQ(leadingNumber("-12.75"), -13);
    EXPECT_EQ(leadingNumber("3."), 3);
}

TEST(LeadingNumber, RoundsHalvesToEven)
{
    EXPECT_EQ(leadingNumber("0.5"), 0);
    EXPECT_EQ(leadingNumber("1.5"), 2);
    EXPECT_EQ(leadingNumber("2.5"), 2);
    EXPECT_EQ(leadingNumber("3.5"), 4);
    EXPECT_EQ(leadingNumber("-2.5"), -2);
    EXPECT_EQ(leadingNumber("-3.5"), -4);
    EXPECT_EQ(leadingNumber("2.50000"), 2);
    // Just above a half rounds up, however far down the deciding digit lies.
    EXPECT_EQ(leadingNumber("2.500001"), 3);
    EXPECT_EQ(leadingNumber("2.4999999"), 2);
    EXPECT_EQ(leadingNumber(".5"), 0);
    EXPECT_EQ(leadingNumber(".6"), 1);
    EXPECT_EQ(leadingNumber("-.6"), -1);
}

TEST(LeadingNumber, IgnoresWhatFollowsTheNumber)
{
    EXPECT_EQ(leadingNumber("12abc"), 12);
    EXPECT_EQ(leadingNumber("12.5px"), 12);
    EXPECT_EQ(leadingNumber("1.2.3"), 1);
    EXPECT_EQ(leadingNumber("7-3"), 7);
}

TEST(LeadingNumber, TextWithoutANumberIsZero)
{
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("abc"), 0);
    EXPECT_EQ(leadingNumber("-"), 0);
    EXPECT_EQ(leadingNumber("+"), 0);
    EXPECT_EQ(leadingNumber("."), 0);
    EXPECT_EQ(leadingNumber("x12"), 0);
}

TEST(LeadingNumber, BlanksBeforeTheNumberAreSkippedBlanksInsideEndIt)
{
    EXPECT_EQ(leadingNumber("  15"), 15);
    EXPECT_EQ(leadingNumber("\t15"), 15);
    EXPECT_EQ(leadingNumber("1 5"), 1);
    EXPECT_EQ(leadingNumber("- 5"), 0);
    EXPECT_EQ(leadingNumber("15 "), 15);
}

TEST(LeadingNumber, NoHexPrefixNoExponent)
{
    EXPECT_EQ(leadingNumber("&H10"), 0);
    EXPECT_EQ(leadingNumber("0x10"), 0);
    EXPECT_EQ(leadingNumber("1e3"), 1);
    EXPECT_EQ(leadingNumber("2.5E2"), 2);
}

TEST(LeadingNumber, ClampsToTheRange)
{
    bool clamped = true;
    EXPECT_EQ(leadingNumber("32767", Int16Range, &clamped), 32767);
    EXPECT_FALSE(clamped);
    EXPECT_EQ(leadingNumber("-32768", Int16Range, &clamped), -32768);
    EXPECT_FALSE(clamped);
    EXPECT_EQ(leadingNumber("32768", Int16Range, &clamped), 32767);
    EXPECT_TRUE(clamped);
    EXPECT_EQ(leadingNumber("-32769", Int16Range, &clamped), -32768);
    EXPECT_TRUE(clamped);
    EXPECT_EQ(leadingNumber("32766.5", Int16Range, &clamped), 32766);
    EXPECT_FALSE(clamped);
    EXPECT_EQ(leadingNumber("32767.5", Int16Range, &clamped), 32767);
    EXPECT_TRUE(clamped);
    EXPECT_EQ(leadingNumber("99999999999999999999999999", Int16Range), 32767);
    EXPECT_EQ(leadingNumber("-99999999999999999999999999", Int16Range), -32768);
    EXPECT_EQ(leadingNumber("70000", Int32Range, &clamped), 70000);
    EXPECT_FALSE(clamped);
    EXPECT_EQ(leadingNumber("2147483648", Int32Range, &clamped), 2147483647);
    EXPECT_TRUE(clamped);
    EXPECT_EQ(leadingNumber("-2147483649", Int32Range), -2147483647 - 1);
}

TEST(NumberRule, StoresTheLeadingNumberAndLeavesTheBox)
{
    EXPECT_EQ(numberRule("-5"), (NumberOutcome{-5, nullopt}));
    EXPECT_EQ(numberRule("12abc"), (NumberOutcome{12, nullopt}));
    EXPECT_EQ(numberRule("abc"), (NumberOutcome{0, nullopt}));
    EXPECT_EQ(numberRule("-"), (NumberOutcome{0, nullopt}));
}

TEST(NumberRule, EmptiedBoxShowsTheFieldsEmptyText)
{
    EXPECT_EQ(numberRule(""), (NumberOutcome{0, string("0")}));
    const NumberField pointSize = numberWithEmptyText("12");
    EXPECT_EQ(numberRule("", pointSize), (NumberOutcome{0, string("12")}));
    const auto rule = [&](const string &text) {
        return numberRule(text, pointSize);
    };
    EXPECT_EQ(settle(rule, ""), std::make_pair(12, string("12")));
    EXPECT_EQ(numberRule("0", pointSize), (NumberOutcome{0, nullopt}));
}

TEST(NumberRule, CapsTheByteFieldsAt255AndKeepsNegatives)
{
    EXPECT_EQ(numberRule("255", byteField()), (NumberOutcome{255, nullopt}));
    EXPECT_EQ(numberRule("300", byteField()), (NumberOutcome{300, string("255")}));
    EXPECT_EQ(numberRule("255.5", byteField()), (NumberOutcome{256, string("255")}));
    EXPECT_EQ(numberRule("-5", byteField()), (NumberOutcome{-5, nullopt}));
    EXPECT_EQ(numberRule("-300", byteField()), (NumberOutcome{-300, nullopt}));
    EXPECT_EQ(numberRule("", byteField()), (NumberOutcome{0, string("0")}));
    const auto rule = [](const string &text) {
        return numberRule(text, byteField());
    };
    EXPECT_EQ(settle(rule, "300"), std::make_pair(255, string("255")));
    EXPECT_EQ(settle(rule, "99999"), std::make_pair(255, string("255")));
}

TEST(NumberRule, NumbersBeyondTheRangeShowTheClampedValue)
{
    EXPECT_EQ(numberRule("70000"), (NumberOutcome{32767, string("32767")}));
    EXPECT_EQ(numberRule("-70000"), (NumberOutcome{-32768, string("-32768")}));
    EXPECT_EQ(numberRule("70000abc"), (NumberOutcome{32767, string("32767")}));
    const NumberField mixRate{"0", nullopt, Int32Range};
    EXPECT_EQ(numberRule("70000", mixRate), (NumberOutcome{70000, nullopt}));
    EXPECT_EQ(numberRule("3000000000", mixRate), (NumberOutcome{2147483647, string("2147483647")}));
}

TEST(CheckRule, StoresOneOrZero)
{
    EXPECT_EQ(checkRule(true), 1);
    EXPECT_EQ(checkRule(false), 0);
}

TEST(OptionRule, StoresTheIndexOrTheGroupsOwnCode)
{
    EXPECT_EQ(optionRule(0), 0);
    EXPECT_EQ(optionRule(2), 2);
    const std::vector<int16_t> direction{1, -1};
    EXPECT_EQ(optionRule(0, direction), 1);
    EXPECT_EQ(optionRule(1, direction), -1);
}

class ListFilling : public ::testing::Test
{
protected:
    std::unique_ptr<Document> doc = makeDocument();

    void SetUp() override { setUpNewProject(*doc, "My Project"); }

    // Adds an object of `kind` as Add Object does and, unless `keepNew`, opens it once.
    int16_t add(Kind kind, const string &id, bool keepNew = false)
    {
        const AddResult added = addObject(*doc, kind);
        EXPECT_FALSE(added.refusal.has_value());
        withTable(*doc, kind, [&](auto &table) {
            auto &record = table[static_cast<size_t>(added.slot)];
            record.id = id;
            if (!keepNew) {
                record.isNew = 0;
                record.inUse = -1;
            }
        });
        return added.slot;
    }
};

TEST_F(ListFilling, OffersOpenedObjectsInListOrder)
{
    add(Kind::SFX, "click");
    add(Kind::SFX, "never_opened", true);
    add(Kind::SFX, "beep");
    EXPECT_EQ(offeredIds(*doc, Kind::SFX), (std::vector<string>{"click", "beep"}));
    EXPECT_TRUE(offeredIds(*doc, Kind::Cursor).empty());
}

TEST_F(ListFilling, FollowsTheListNotTheTable)
{
    add(Kind::Text, "first");
    add(Kind::Text, "second");
    std::swap(doc->list(Kind::Text).lines[0], doc->list(Kind::Text).lines[1]);
    EXPECT_EQ(offeredIds(*doc, Kind::Text), (std::vector<string>{"second", "first"}));
    // A slot that is not listed is not offered, whatever it holds.
    doc->Texts[50].inUse = -1;
    doc->Texts[50].isNew = 0;
    doc->Texts[50].id = "unlisted";
    EXPECT_EQ(offeredIds(*doc, Kind::Text), (std::vector<string>{"second", "first"}));
}

TEST_F(ListFilling, EditorFilterNarrowsTheOffer)
{
    const int16_t bound = add(Kind::Image, "tiles");
    const int16_t loose = add(Kind::Image, "background");
    const int16_t fresh = add(Kind::Image, "fresh", true);
    doc->Images[static_cast<size_t>(bound)].bound = 1;
    doc->Images[static_cast<size_t>(loose)].bound = 0;
    doc->Images[static_cast<size_t>(fresh)].bound = 1;
    EXPECT_EQ(offeredIds(*doc, Kind::Image, imageIsBound), (std::vector<string>{"tiles"}));
    EXPECT_EQ(offeredIds(*doc, Kind::Image), (std::vector<string>{"tiles", "background"}));
}

TEST_F(ListFilling, LinesOutsideTheTableAreSkipped)
{
    add(Kind::Font, "serif");
    doc->list(Kind::Font).lines.push_back({"broken", 26});
    doc->list(Kind::Font).lines.push_back({"negative", -1});
    EXPECT_EQ(offeredIds(*doc, Kind::Font), (std::vector<string>{"serif"}));
    EXPECT_FALSE(imageIsBound(*doc, 201));
    EXPECT_FALSE(imageIsBound(*doc, -1));
}

TEST(NewRecordDefaults, ApplyOnlyToAReservedRecord)
{
    ImageRec image;
    image.isNew = -1;
    image.id = "New_Object0";
    image.path = "old.png";
    const auto defaults = [](ImageRec &record) {
        record.path = NullText;
        record.alpha = 255;
    };
    EXPECT_TRUE(applyNewRecordDefaults(image, defaults));
    EXPECT_EQ(image.id, "Enter_ID");
    EXPECT_EQ(image.path, "null");
    EXPECT_EQ(image.alpha, 255);
    EXPECT_EQ(image.isNew, 0);
    EXPECT_EQ(image.inUse, -1);

    image.id = "edited";
    image.alpha = 7;
    EXPECT_FALSE(applyNewRecordDefaults(image, defaults));
    EXPECT_EQ(image.id, "edited");
    EXPECT_EQ(image.alpha, 7);
}

} // namespace
} // namespace vorlane
