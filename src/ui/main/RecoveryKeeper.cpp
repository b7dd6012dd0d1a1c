#include "RecoveryKeeper.h"

#include <utility>

namespace vorlane {

RecoveryKeeper::RecoveryKeeper(const Document &doc,
                               RecoveryStore store,
                               std::function<bool()> unsaved,
                               QObject *parent)
    : QObject(parent)
    , m_doc(doc)
    , m_store(std::move(store))
    , m_unsaved(std::move(unsaved))
{
    m_timer.setInterval(PollInterval);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::poll);
}

void RecoveryKeeper::start()
{
    m_timer.start();
}

void RecoveryKeeper::poll()
{
    // Without a project, or with everything in the project's own file, there is nothing to
    // recover.
    if (m_doc.ProjectInfo.projectOpen != -1 || !m_unsaved()) {
        removeFile();
        return;
    }
    if (m_written && *m_written == m_doc)
        return;
    // A write that fails is tried again at the next comparison; the editor goes on meanwhile.
    if (!m_store.write(m_doc).ok)
        return;
    if (m_written)
        *m_written = m_doc;
    else
        m_written = std::make_unique<Document>(m_doc);
}

void RecoveryKeeper::closing()
{
    m_timer.stop();
    poll();
}

void RecoveryKeeper::removeFile()
{
    if (!m_written)
        return; // only this editor writes its file, and it has not
    m_store.removeOwn();
    m_written.reset();
}

} // namespace vorlane
