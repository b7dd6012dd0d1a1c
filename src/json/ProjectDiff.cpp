#include "json/ProjectDiff.h"

#include "json/JsonShape.h"

#include <algorithm>
#include <map>

namespace vorlane {

namespace {

using namespace jsonshape;

// The positions (in `order`) of the items that keep their relative order: the longest
// increasing run of `order`; the others are the items that moved.
std::vector<bool> staying(const std::vector<size_t> &order)
{
    std::vector<size_t> tails;                          // index into order of each run's end
    std::vector<size_t> before(order.size(), SIZE_MAX); // the previous item of the run
    for (size_t i = 0; i < order.size(); ++i) {
        const auto at =
            std::lower_bound(tails.begin(), tails.end(), order[i], [&](size_t t, size_t value) {
                return order[t] < value;
            });
        if (at != tails.begin())
            before[i] = *(at - 1);
        if (at == tails.end())
            tails.push_back(i);
        else
            *at = i;
    }
    std::vector<bool> stays(order.size(), false);
    for (size_t i = tails.empty() ? SIZE_MAX : tails.back(); i != SIZE_MAX; i = before[i])
        stays[i] = true;
    return stays;
}

struct Differ
{
    std::vector<std::string> lines;

    // The fields of two objects; `subject` starts each line, `prefix` each detail.
    void record(const std::string &subject,
                const std::string &prefix,
                const Json *a,
                const Json *b,
                bool topLevel)
    {
        for (const std::string &key : keysOf(b, a)) {
            const Json *va = field(a, key);
            const Json *vb = field(b, key);
            if (same(va, vb))
                continue;
            if (const char *name = keyedItemName(key, topLevel)) {
                keyed(topLevel ? std::string() : subject, prefix, name, va, vb);
            } else if (key == "layers") {
                positional(subject, prefix + "layer ", "", va, vb);
            } else if (key == "frames") {
                positional(subject, prefix + "frame ", "cell ", va, vb);
            } else if (key == "customFilters") {
                positional(subject, prefix + "custom filter ", "", va, vb);
            } else if (va && vb && va->is_array() && vb->is_array() && va->size() == vb->size()) {
                for (size_t i = 0; i < va->size(); ++i)
                    if ((*va)[i] != (*vb)[i])
                        add(subject,
                            prefix + key + "[" + std::to_string(i) + "] " + (*va)[i].dump() +
                                " -> " + (*vb)[i].dump());
            } else {
                add(subject, prefix + key + " " + show(va) + " -> " + show(vb));
            }
        }
    }

    void add(const std::string &subject, const std::string &detail)
    {
        lines.push_back(subject.empty() ? detail : subject + ": " + detail);
    }

    static const Json &orEmpty(const Json *list)
    {
        static const Json empty = Json::array();
        return list && list->is_array() ? *list : empty;
    }

    // Objects matched by id. At the top each object is a subject of its own; inside an object
    // (animations) the item is part of the detail.
    void keyed(const std::string &outer,
               const std::string &prefix,
               const char *name,
               const Json *listA,
               const Json *listB)
    {
        const Json &a = orEmpty(listA);
        const Json &b = orEmpty(listB);
        const std::vector<ItemKey> keysA = itemKeys(a);
        const std::vector<ItemKey> keysB = itemKeys(b);
        std::map<ItemKey, size_t> inA;
        for (size_t i = 0; i < keysA.size(); ++i)
            inA[keysA[i]] = i;
        std::map<ItemKey, size_t> inB;
        for (size_t i = 0; i < keysB.size(); ++i)
            inB[keysB[i]] = i;

        const auto where = [&](const ItemKey &key) {
            const std::string label = itemLabel(name, key);
            return outer.empty() ? std::pair(label, std::string())
                                 : std::pair(outer, prefix + label + " ");
        };
        for (size_t i = 0; i < keysA.size(); ++i) {
            if (!inB.count(keysA[i])) {
                const auto [subject, detail] = where(keysA[i]);
                add(subject, detail + "removed");
            }
        }
        // Which of the items both have moved against the others.
        std::vector<size_t> order; // positions in A, in B's order
        for (const ItemKey &key : keysB)
            if (const auto found = inA.find(key); found != inA.end())
                order.push_back(found->second);
        const std::vector<bool> stays = staying(order);
        size_t common = 0;
        for (size_t j = 0; j < keysB.size(); ++j) {
            const auto [subject, detail] = where(keysB[j]);
            const auto found = inA.find(keysB[j]);
            if (found == inA.end()) {
                add(subject, detail + "added");
                continue;
            }
            // In a swap the one item left in place is not listed as moved.
            if (!stays[common++] && found->second != j)
                add(subject,
                    detail + "moved from position " + std::to_string(found->second + 1) + " to " +
                        std::to_string(j + 1));
            record(subject, detail, &a[found->second], &b[j], false);
        }
    }

    // Items matched by position: "layer 3 removed", "frame 2 cell 4 -> 5". The runs of equal
    // items at both ends are passed over first, so that one item taken out of the middle is
    // named as removed rather than as every later item changing.
    void positional(const std::string &subject,
                    const std::string &item,
                    const std::string &label,
                    const Json *listA,
                    const Json *listB)
    {
        const Json &a = orEmpty(listA);
        const Json &b = orEmpty(listB);
        const size_t shorter = std::min(a.size(), b.size());
        size_t head = 0;
        while (head < shorter && a[head] == b[head])
            ++head;
        size_t tail = 0;
        while (tail < shorter - head && a[a.size() - 1 - tail] == b[b.size() - 1 - tail])
            ++tail;
        const size_t endA = a.size() - tail;
        const size_t endB = b.size() - tail;
        const size_t both = std::min(endA, endB);
        for (size_t i = head; i < both; ++i) {
            if (a[i] == b[i])
                continue;
            const std::string name = item + std::to_string(i + 1);
            if (a[i].is_object() && b[i].is_object())
                record(subject, name + " ", &a[i], &b[i], false);
            else
                add(subject, name + " " + label + a[i].dump() + " -> " + b[i].dump());
        }
        for (size_t i = both; i < endA; ++i)
            add(subject, item + std::to_string(i + 1) + " removed");
        for (size_t i = both; i < endB; ++i)
            add(subject, item + std::to_string(i + 1) + " added");
    }
};

} // namespace

std::vector<std::string> diffProjects(const Json &a, const Json &b)
{
    Differ ordered;
    // Sections in the order of the JSON form: format, project, settings, the nine kinds, log.
    for (const std::string &key : keysOf(&b, &a)) {
        const Json *va = field(&a, key);
        const Json *vb = field(&b, key);
        if (same(va, vb))
            continue;
        if (const char *name = keyedItemName(key, true)) {
            ordered.keyed("", "", name, va, vb);
        } else if (va && vb && va->is_object() && vb->is_object()) {
            ordered.record(key, "", va, vb, false);
        } else {
            ordered.lines.push_back(key + ": " + show(va) + " -> " + show(vb));
        }
    }
    return ordered.lines;
}

} // namespace vorlane
