#include "history/History.h"

#include <utility>

namespace vorlane {

History::History(Document &doc, std::size_t memoryLimit)
    : m_doc(doc)
    , m_memoryLimit(memoryLimit)
{}

History::~History() = default;

void History::beginStep(const std::string &name)
{
    if (m_depth++ > 0)
        return;
    m_name = name;
    if (!m_start)
        m_start = makeDocument();
    *m_start = m_doc;
}

bool History::endStep()
{
    if (m_depth == 0 || --m_depth > 0)
        return false;
    return record(m_name);
}

bool History::cutStep(const std::string &name)
{
    if (m_depth == 0)
        return false;
    return record(name.empty() ? m_name : name);
}

std::size_t History::stepBytes(const Step &step)
{
    return sizeof(Step) + step.name.capacity() + step.delta.bytes();
}

bool History::record(const std::string &name)
{
    DocumentDelta delta = DocumentDelta::between(*m_start, m_doc);
    if (delta.empty())
        return false;
    // The step goes on from here: bring its start up to date with what was just recorded.
    delta.putAfter(*m_start);
    while (m_steps.size() > m_done) {
        m_bytes -= stepBytes(m_steps.back());
        m_steps.pop_back();
    }
    m_steps.push_back({name, std::move(delta)});
    m_bytes += stepBytes(m_steps.back());
    ++m_done;
    ++m_recorded;
    trim();
    return true;
}

void History::trim()
{
    while (m_bytes > m_memoryLimit && m_steps.size() > 1) {
        m_bytes -= stepBytes(m_steps.front());
        m_steps.pop_front();
        if (m_done > 0)
            --m_done;
    }
}

bool History::canUndo() const
{
    return !inStep() && m_done > 0;
}

bool History::canRedo() const
{
    return !inStep() && m_done < m_steps.size();
}

std::string History::undoName() const
{
    return m_done > 0 ? m_steps[m_done - 1].name : std::string();
}

std::string History::redoName() const
{
    return m_done < m_steps.size() ? m_steps[m_done].name : std::string();
}

void History::undo()
{
    if (!canUndo())
        return;
    --m_done;
    m_steps[m_done].delta.putBefore(m_doc);
}

void History::redo()
{
    if (!canRedo())
        return;
    m_steps[m_done].delta.putAfter(m_doc);
    ++m_done;
}

void History::markSaved()
{
    if (!m_saved)
        m_saved = makeDocument();
    *m_saved = m_doc;
}

bool History::unsaved() const
{
    if (!m_saved)
        return true;
    // What the file does not hold is taken over before the comparison: the selected lines
    // and the current object and animation.
    Document &saved = *m_saved;
    for (std::size_t list = 0; list < saved.lists.size(); ++list)
        saved.lists[list].selected = m_doc.lists[list].selected;
    saved.currentObjectIndex = m_doc.currentObjectIndex;
    saved.currentAnimIndex = m_doc.currentAnimIndex;
    return !(saved == m_doc);
}

} // namespace vorlane
