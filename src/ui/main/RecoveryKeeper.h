#pragma once

#include "model/modGlobal.h"
#include "project/RecoveryStore.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace vorlane {

// Keeps the running editor's recovery file: a few seconds after the document changes while it
// has unsaved changes, the document is written to the store; once nothing is unsaved, or when
// no project is open, the file goes. The document is compared with the copy last written, on
// a timer, so no window has to report its changes.
class RecoveryKeeper : public QObject
{
    Q_OBJECT
public:
    // How often the document is compared with the copy last written, in milliseconds.
    static constexpr int PollInterval = 2000;

    // `unsaved` tells whether the document differs from the file it was last saved to or
    // opened from.
    RecoveryKeeper(const Document &doc,
                   RecoveryStore store,
                   std::function<bool()> unsaved,
                   QObject *parent = nullptr);

    // Starts comparing the document every PollInterval.
    void start();
    // One comparison: writes the document when it has unsaved changes that the file does not
    // hold yet, removes the file when nothing is unsaved.
    void poll();
    // The editor closes: the file goes when nothing is unsaved, and otherwise holds the last
    // state.
    void closing();

    const RecoveryStore &store() const { return m_store; }
    QTimer &timer() { return m_timer; }

private:
    void removeFile();

    const Document &m_doc;
    RecoveryStore m_store;
    std::function<bool()> m_unsaved;
    std::unique_ptr<Document> m_written; // the document as the file holds it; null: no file
    QTimer m_timer;
};

} // namespace vorlane
