#include "generate/EngineLine.h"

#include "io/Cp1252.h"

#include <array>
#include <string>

namespace vorlane {

namespace {

constexpr std::array<EngineLine::SmallNumber, EngineLine::SmallNumbers> makeSmallNumbers()
{
    std::array<EngineLine::SmallNumber, EngineLine::SmallNumbers> table{};
    for (uint32_t value = 0; value < EngineLine::SmallNumbers; ++value) {
        char reversed[4] = {};
        uint32_t length = 0;
        uint32_t rest = value;
        do {
            reversed[length++] = static_cast<char>('0' + rest % 10);
            rest /= 10;
        } while (rest != 0);
        auto &entry = table[value];
        for (uint32_t k = 0; k < 4; ++k)
            entry.text[k] = k < length ? reversed[length - 1 - k] : ' ';
        entry.length = length;
    }
    return table;
}

constexpr auto Table = makeSmallNumbers();
static_assert(Table[0].text[0] == '0' && Table[0].length == 1);
static_assert(Table[9999].text[3] == '9' && Table[9999].length == 4);
static_assert(Table[407].text[0] == '4' && Table[407].text[2] == '7' && Table[407].length == 3);

} // namespace

// Built by the compiler: nothing runs at start-up.
const std::array<EngineLine::SmallNumber, EngineLine::SmallNumbers> EngineLine::SmallNumberTable =
    Table;

char *EngineLine::putConverted(char *p, std::string_view utf8)
{
    // One scratch buffer, so converting allocates only when it grows.
    static std::string converted;
    converted.clear();
    appendCp1252(converted, utf8);
    std::memcpy(p, converted.data(), converted.size());
    return p + converted.size();
}

} // namespace vorlane
