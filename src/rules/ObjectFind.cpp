#include "rules/ObjectFind.h"

#include "model/Kinds.h"

#include <algorithm>

namespace vorlane {

namespace {

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool holds(std::string_view text, std::string_view part)
{
    const auto found =
        std::search(text.begin(), text.end(), part.begin(), part.end(), [](char a, char b) {
            return lower(a) == lower(b);
        });
    return found != text.end();
}

} // namespace

std::vector<FoundObject> findObjects(const Document &doc, std::string_view part)
{
    std::vector<FoundObject> found;
    if (part.empty())
        return found;
    for (Kind kind : ListOrder) {
        for (const ListLine &line : doc.list(kind).lines) {
            if (slotInTable(kind, line.slot) && holds(line.text, part))
                found.push_back({{kind, line.slot}, kindCaption(kind) + " \"" + line.text + "\""});
        }
    }
    return found;
}

} // namespace vorlane
