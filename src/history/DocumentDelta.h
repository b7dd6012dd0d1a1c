#pragma once

#include "model/modGlobal.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace vorlane {

// What one step changed in a document, record by record: each changed slot of each table (a
// sprite by its own fields and by each of its animations), each changed object list, and the
// settings, ProjectInfo and counters when they changed, each as its value before and after.
// It costs memory in proportion to what changed, not to the document.
class DocumentDelta
{
public:
    // One changed part of the document with its two values.
    class Part
    {
    public:
        virtual ~Part() = default;
        // Puts the value after the change into `doc` when `after`, else the value before.
        virtual void put(Document &doc, bool after) const = 0;
        // The memory this part holds, its values' texts included.
        virtual std::size_t bytes() const = 0;
    };

    DocumentDelta() = default;
    DocumentDelta(DocumentDelta &&) noexcept = default;
    DocumentDelta &operator=(DocumentDelta &&) noexcept = default;
    ~DocumentDelta();

    // What differs from `before` to `after`.
    static DocumentDelta between(const Document &before, const Document &after);

    // True when nothing differs.
    bool empty() const { return m_parts.empty(); }
    // Puts back every changed part as it was before.
    void putBefore(Document &doc) const;
    // Puts every changed part as it is after.
    void putAfter(Document &doc) const;
    // The memory the delta holds.
    std::size_t bytes() const { return m_bytes; }
    std::size_t partCount() const { return m_parts.size(); }

private:
    std::vector<std::unique_ptr<Part>> m_parts;
    std::size_t m_bytes = 0;
};

} // namespace vorlane
