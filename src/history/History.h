#pragma once

#include "history/DocumentDelta.h"
#include "model/modGlobal.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

namespace vorlane {

// The undo and redo history of one document, in whole steps. A window says where a step
// begins and ends; the history keeps what the step changed (a DocumentDelta) and can put the
// document back to exactly what it was before the step, or after it. Undo and redo never
// touch a file.
class History
{
public:
    // The memory the steps may hold; the oldest go first when more is needed.
    static constexpr std::size_t DefaultMemoryLimit = std::size_t{256} << 20;

    explicit History(Document &doc, std::size_t memoryLimit = DefaultMemoryLimit);
    ~History();
    History(const History &) = delete;
    History &operator=(const History &) = delete;

    // Opens a step named `name` (e.g. "Edit Button \"btnPlay\""): remembers the document as
    // it is now. A beginStep inside an open step only nests: the inner begin/end pair belongs
    // to the outer step.
    void beginStep(const std::string &name);
    // Closes the step; records it when the document differs from its start. True when
    // recorded.
    bool endStep();
    bool inStep() const { return m_depth > 0; }
    // While a step is open: records what changed since the step began (or since the last cut)
    // as a step named `name` (the open step's own name when empty), then goes on with the
    // open step from here. True when recorded.
    bool cutStep(const std::string &name = {});

    // Undo and redo wait while a step is open.
    bool canUndo() const;
    bool canRedo() const;
    // The name of the step Undo, or Redo, would take back; empty when there is none.
    std::string undoName() const;
    std::string redoName() const;
    // Puts the document back to what it was before the last done step.
    void undo();
    // Puts the document to what it was after the first undone step.
    void redo();

    // The document now equals its file (it was just saved or opened).
    void markSaved();
    // True when the document differs from the file it was last saved to or opened from, or
    // when it has none. Which line of a list is selected and which object or animation is
    // current are not part of the file and do not count.
    bool unsaved() const;

    // How many steps have been recorded since the history began, cuts included: a window
    // compares it across a session to know whether the document changed.
    std::size_t recordedSteps() const { return m_recorded; }
    // The steps held (done and undone) and the memory they hold.
    std::size_t stepCount() const { return m_steps.size(); }
    std::size_t bytes() const { return m_bytes; }

private:
    struct Step
    {
        std::string name;
        DocumentDelta delta;
    };

    // Records what changed since m_start as a step named `name`.
    bool record(const std::string &name);
    static std::size_t stepBytes(const Step &step);
    // Drops the oldest steps until the rest fit the memory limit.
    void trim();

    Document &m_doc;
    std::size_t m_memoryLimit;
    int m_depth = 0;
    std::string m_name;
    // The document as the open step (or its last cut) began.
    std::unique_ptr<Document> m_start;
    // The document as last saved or opened; none before the first.
    std::unique_ptr<Document> m_saved;
    std::deque<Step> m_steps;
    std::size_t m_done = 0; // the steps from the front that are done; the rest can be redone
    std::size_t m_bytes = 0;
    std::size_t m_recorded = 0;
};

} // namespace vorlane
