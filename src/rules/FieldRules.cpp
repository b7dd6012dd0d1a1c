#include "rules/FieldRules.h"

#include "model/Kinds.h"

#include <cstddef>
#include <cstdint>

namespace vorlane {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

TextOutcome defaultedTextRule(std::string_view text, std::string_view emptyText)
{
    TextOutcome outcome{std::string(text), std::nullopt};
    if (text.empty())
        outcome.boxText = std::string(emptyText);
    return outcome;
}

TextOutcome identifierRule(std::string_view text)
{
    return defaultedTextRule(text, EnterId);
}

TextOutcome referenceRule(std::string_view text)
{
    TextOutcome outcome{std::string(text), std::nullopt};
    if (text.empty())
        outcome.value = NullText;
    if (text == NullText)
        outcome.boxText = std::string();
    return outcome;
}

TextOutcome contentRule(std::string_view text)
{
    TextOutcome outcome{std::string(text), std::nullopt};
    if (text.empty())
        outcome.value = NullText;
    return outcome;
}

int32_t leadingNumber(std::string_view text, NumberRange range, bool *clamped)
{
    // Far beyond any field's range, yet far from overflowing while digits are added.
    constexpr int64_t Saturation = int64_t(1) << 40;

    size_t i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    int64_t magnitude = 0;
    while (i < text.size() && isDigit(text[i])) {
        magnitude = magnitude * 10 + (text[i] - '0');
        if (magnitude > Saturation)
            magnitude = Saturation;
        ++i;
    }
    // The fraction only decides the rounding: its first digit, and whether any digit after
    // that is not zero (to tell an exact half from a bit more).
    int firstFractionDigit = 0;
    bool moreAfterFirst = false;
    if (i < text.size() && text[i] == '.') {
        ++i;
        if (i < text.size() && isDigit(text[i])) {
            firstFractionDigit = text[i] - '0';
            ++i;
        }
        while (i < text.size() && isDigit(text[i])) {
            if (text[i] != '0')
                moreAfterFirst = true;
            ++i;
        }
    }
    const bool aboveHalf = firstFractionDigit > 5 || (firstFractionDigit == 5 && moreAfterFirst);
    const bool exactHalf = firstFractionDigit == 5 && !moreAfterFirst;
    if (aboveHalf || (exactHalf && magnitude % 2 == 1))
        ++magnitude;

    const int64_t value = negative ? -magnitude : magnitude;
    const bool outside = value < range.min || value > range.max;
    if (clamped)
        *clamped = outside;
    if (value < range.min)
        return range.min;
    if (value > range.max)
        return range.max;
    return static_cast<int32_t>(value);
}

NumberOutcome numberRule(std::string_view text, const NumberField &field)
{
    bool clamped = false;
    NumberOutcome outcome{leadingNumber(text, field.range, &clamped), std::nullopt};
    if (text.empty())
        outcome.boxText = field.emptyText;
    else if (clamped)
        outcome.boxText = std::to_string(outcome.value);
    if (field.cap && outcome.value > *field.cap)
        outcome.boxText = std::to_string(*field.cap);
    return outcome;
}

int16_t checkRule(bool checked)
{
    return checked ? 1 : 0;
}

int16_t optionRule(int chosenIndex, const std::vector<int16_t> &codes)
{
    if (chosenIndex >= 0 && static_cast<size_t>(chosenIndex) < codes.size())
        return codes[static_cast<size_t>(chosenIndex)];
    return static_cast<int16_t>(chosenIndex);
}

bool imageIsBound(const Document &doc, int slot)
{
    return slotInTable(Kind::Image, slot) && doc.Images[static_cast<size_t>(slot)].bound == 1;
}

std::vector<std::string> offeredIds(const Document &doc, Kind kind, const ListFilter &filter)
{
    std::vector<std::string> ids;
    withTable(doc, kind, [&](const auto &table) {
        for (const ListLine &line : doc.list(kind).lines) {
            if (line.slot < 0 || static_cast<size_t>(line.slot) >= table.size())
                continue;
            const auto &record = table[static_cast<size_t>(line.slot)];
            if (record.isNew != 0)
                continue;
            if (filter && !filter(doc, line.slot))
                continue;
            ids.push_back(record.id);
        }
    });
    return ids;
}

} // namespace vorlane
