#include "json/JsonShape.h"

#include <algorithm>
#include <map>

namespace vorlane::jsonshape {

const char *keyedItemName(std::string_view key, bool topLevel)
{
    if (topLevel) {
        for (const JsonKind &kind : jsonKinds())
            if (key == kind.key)
                return kind.name;
        return nullptr;
    }
    return key == "animations" ? "animation" : nullptr;
}

std::vector<ItemKey> itemKeys(const Json &list)
{
    std::vector<ItemKey> keys;
    std::map<std::string, int> seen;
    for (const Json &item : list) {
        std::string id;
        if (item.is_object()) {
            const auto found = item.find("id");
            if (found != item.end())
                id = found->is_string() ? found->get<std::string>() : found->dump();
        }
        const int occurrence = seen[id]++;
        keys.emplace_back(std::move(id), occurrence);
    }
    return keys;
}

std::string itemLabel(const char *name, const ItemKey &key)
{
    std::string label = std::string(name) + " " + Json(key.first).dump();
    if (key.second > 0)
        label += " (" + std::to_string(key.second + 1) + ")";
    return label;
}

std::string show(const Json *value)
{
    return value ? value->dump() : "(none)";
}

const Json *field(const Json *obj, const std::string &key)
{
    if (!obj || !obj->is_object())
        return nullptr;
    const auto found = obj->find(key);
    return found == obj->end() ? nullptr : &*found;
}

std::vector<std::string> keysOf(const Json *first, const Json *second)
{
    std::vector<std::string> keys;
    for (const Json *obj : {first, second}) {
        if (!obj || !obj->is_object())
            continue;
        for (auto it = obj->begin(); it != obj->end(); ++it)
            if (std::find(keys.begin(), keys.end(), it.key()) == keys.end())
                keys.push_back(it.key());
    }
    return keys;
}

bool same(const Json *a, const Json *b)
{
    if (!a || !b)
        return a == b;
    return *a == *b;
}

} // namespace vorlane::jsonshape
