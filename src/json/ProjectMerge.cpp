#include "json/ProjectMerge.h"

#include "json/JsonShape.h"

#include <algorithm>
#include <map>
#include <set>

namespace vorlane {

namespace {

using namespace jsonshape;

class Merger
{
public:
    std::vector<std::string> conflicts;

    // The fields of three objects merged one by one; `subject` and `prefix` name them in
    // conflict lines.
    Json record(const std::string &subject,
                const std::string &prefix,
                const Json *base,
                const Json *ours,
                const Json *theirs,
                bool topLevel)
    {
        Json out = Json::object();
        std::vector<std::string> keys = keysOf(ours, theirs);
        for (const std::string &key : keysOf(base, nullptr))
            if (std::find(keys.begin(), keys.end(), key) == keys.end())
                keys.push_back(key);
        for (const std::string &key : keys) {
            const Json *b = field(base, key);
            const Json *o = field(ours, key);
            const Json *t = field(theirs, key);
            if (const char *name = keyedItemName(key, topLevel)) {
                out[key] = keyed(topLevel ? std::string() : subject, prefix, name, b, o, t);
                continue;
            }
            if (topLevel && o && t && o->is_object() && t->is_object()) {
                out[key] = record(key, "", b, o, t, false);
                continue;
            }
            if (o && t && o->is_array() && t->is_array() && b && b->is_array() &&
                o->size() == b->size() && t->size() == b->size() && isFixedArray(key)) {
                Json merged = Json::array();
                for (size_t i = 0; i < b->size(); ++i)
                    merged.push_back(*value(subject,
                                            prefix + key + "[" + std::to_string(i) + "]",
                                            &(*b)[i],
                                            &(*o)[i],
                                            &(*t)[i]));
                out[key] = std::move(merged);
                continue;
            }
            if (const Json *chosen = value(subject, prefix + key, b, o, t))
                out[key] = *chosen;
        }
        return out;
    }

private:
    static bool isFixedArray(const std::string &key)
    {
        return key == "logTypeFilters" || key == "logFileFilters";
    }

    void conflict(const std::string &subject, const std::string &detail)
    {
        conflicts.push_back(subject.empty() ? detail : subject + ": " + detail);
    }

    // One value: the side that changed it wins; changed both ways alike is no conflict.
    const Json *value(const std::string &subject,
                      const std::string &name,
                      const Json *b,
                      const Json *o,
                      const Json *t)
    {
        if (same(o, t) || same(b, t))
            return o;
        if (same(b, o))
            return t;
        conflict(subject,
                 name + ": ours " + show(o) + ", theirs " + show(t) + " (base " + show(b) +
                     "); ours kept");
        return o;
    }

    static const Json &orEmpty(const Json *list)
    {
        static const Json empty = Json::array();
        return list && list->is_array() ? *list : empty;
    }

    // The keys of `side` that are in `kept`, in order.
    static std::vector<ItemKey> within(const std::vector<ItemKey> &side,
                                       const std::set<ItemKey> &kept)
    {
        std::vector<ItemKey> out;
        for (const ItemKey &key : side)
            if (kept.count(key))
                out.push_back(key);
        return out;
    }

    Json keyed(const std::string &outer,
               const std::string &prefix,
               const char *name,
               const Json *baseList,
               const Json *oursList,
               const Json *theirsList)
    {
        const Json &base = orEmpty(baseList);
        const Json &ours = orEmpty(oursList);
        const Json &theirs = orEmpty(theirsList);
        const std::vector<ItemKey> keysB = itemKeys(base);
        const std::vector<ItemKey> keysO = itemKeys(ours);
        const std::vector<ItemKey> keysT = itemKeys(theirs);
        std::map<ItemKey, size_t> inB, inO, inT;
        for (size_t i = 0; i < keysB.size(); ++i)
            inB[keysB[i]] = i;
        for (size_t i = 0; i < keysO.size(); ++i)
            inO[keysO[i]] = i;
        for (size_t i = 0; i < keysT.size(); ++i)
            inT[keysT[i]] = i;
        const auto at =
            [](const Json &list, const std::map<ItemKey, size_t> &index, const ItemKey &key) {
                const auto found = index.find(key);
                return found == index.end() ? nullptr : &list[found->second];
            };
        const auto where = [&](const ItemKey &key) {
            const std::string label = itemLabel(name, key);
            return outer.empty() ? std::pair(label, std::string())
                                 : std::pair(outer, prefix + label + " ");
        };

        // Which items stay, and their merged values.
        std::map<ItemKey, Json> merged;
        // In list order, so that conflicts are listed as the objects stand.
        std::vector<ItemKey> all;
        std::set<ItemKey> listed;
        for (const auto *keys : {&keysO, &keysT, &keysB})
            for (const ItemKey &key : *keys)
                if (listed.insert(key).second)
                    all.push_back(key);
        for (const ItemKey &key : all) {
            const Json *b = at(base, inB, key);
            const Json *o = at(ours, inO, key);
            const Json *t = at(theirs, inT, key);
            const auto [subject, detail] = where(key);
            if (o && t) {
                merged[key] = same(o, t) ? *o : record(subject, detail, b, o, t, false);
            } else if (o) { // theirs removed it, or only ours has it
                if (b && !same(b, o))
                    conflict(subject, detail + "changed in ours, removed in theirs; ours kept");
                if (!b || !same(b, o))
                    merged[key] = *o;
            } else if (t) { // ours removed it, or only theirs has it
                if (b && !same(b, t))
                    conflict(subject,
                             detail + "removed in ours, changed in theirs; the removal kept");
                if (!b)
                    merged[key] = *t;
            }
        }
        std::set<ItemKey> kept;
        for (const auto &entry : merged)
            kept.insert(entry.first);

        // The order: a side that moved items against the base gives it; the other side's
        // own items follow the item they follow there.
        const std::vector<ItemKey> orderB = within(keysB, kept);
        const std::vector<ItemKey> orderO = within(keysO, kept);
        const std::vector<ItemKey> orderT = within(keysT, kept);
        const auto commonOrder = [&](const std::vector<ItemKey> &order) {
            std::vector<ItemKey> common;
            for (const ItemKey &key : order)
                if (inB.count(key) && inO.count(key) && inT.count(key))
                    common.push_back(key);
            return common;
        };
        const std::vector<ItemKey> common = commonOrder(orderB);
        const bool oursMoved = commonOrder(orderO) != common;
        const bool theirsMoved = commonOrder(orderT) != common;
        if (oursMoved && theirsMoved && commonOrder(orderO) != commonOrder(orderT))
            conflict(outer.empty() ? std::string(name) + " list" : outer,
                     prefix + "the order was changed both ways; ours kept");
        const bool theirsFirst = theirsMoved && !oursMoved;
        const std::vector<ItemKey> &skeleton = theirsFirst ? orderT : orderO;
        const std::vector<ItemKey> &other = theirsFirst ? orderO : orderT;
        std::vector<ItemKey> order = skeleton;
        for (size_t i = 0; i < other.size(); ++i) {
            if (std::find(order.begin(), order.end(), other[i]) != order.end())
                continue;
            auto place = order.begin();
            for (size_t j = i; j-- > 0;) {
                const auto found = std::find(order.begin(), order.end(), other[j]);
                if (found != order.end()) {
                    place = found + 1;
                    break;
                }
            }
            order.insert(place, other[i]);
        }
        // Items only the base still lists in order (kept because the other side changed them).
        for (const ItemKey &key : orderB)
            if (std::find(order.begin(), order.end(), key) == order.end())
                order.push_back(key);

        Json out = Json::array();
        for (const ItemKey &key : order)
            out.push_back(std::move(merged[key]));
        return out;
    }
};

} // namespace

MergeResult mergeProjects(const Json &base, const Json &ours, const Json &theirs)
{
    Merger merger;
    MergeResult result;
    result.merged = merger.record("", "", &base, &ours, &theirs, true);
    result.conflicts = std::move(merger.conflicts);
    return result;
}

} // namespace vorlane
