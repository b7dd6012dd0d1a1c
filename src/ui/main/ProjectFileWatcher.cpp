#include "ProjectFileWatcher.h"

#include "io/SafeSave.h"
#include "io/SystemFileOps.h"

#include <QFileSystemWatcher>

namespace vorlane {

ProjectFileWatcher::ProjectFileWatcher(Report report, QObject *parent)
    : QObject(parent)
    , m_fileWatcher(new QFileSystemWatcher(this))
    , m_report(std::move(report))
{
    connect(m_fileWatcher,
            &QFileSystemWatcher::fileChanged,
            this,
            &ProjectFileWatcher::fileWatcher_Changed);
    connect(m_fileWatcher,
            &QFileSystemWatcher::directoryChanged,
            this,
            &ProjectFileWatcher::fileWatcher_Changed);
}

void ProjectFileWatcher::opened(const std::string &path)
{
    m_watch.watch(path, systemFileOps());
    m_lastLine.clear();
    watchPaths();
}

void ProjectFileWatcher::saved(const std::string &path, const PathInfo &written)
{
    m_watch.watch(path, written);
    m_lastLine.clear();
    watchPaths();
}

std::string ProjectFileWatcher::theirsName(const std::string &savePath)
{
    return m_watch.theirsName(savePath, systemFileOps());
}

void ProjectFileWatcher::watchPaths()
{
    if (const QStringList watched = m_fileWatcher->files() + m_fileWatcher->directories();
        !watched.isEmpty())
        m_fileWatcher->removePaths(watched);
    const std::string &path = m_watch.path();
    if (path.empty())
        return;
    m_fileWatcher->addPath(QString::fromStdString(folderOf(path)));
    m_fileWatcher->addPath(QString::fromStdString(path)); // fails quietly while it is gone
}

void ProjectFileWatcher::fileWatcher_Changed()
{
    if (m_saving)
        return;
    const QString path = QString::fromStdString(m_watch.path());
    if (!path.isEmpty() && !m_fileWatcher->files().contains(path))
        m_fileWatcher->addPath(path);
    if (const auto line = m_watch.look(systemFileOps())) {
        m_report(*line, m_lastLine);
        m_lastLine = *line;
    }
}

} // namespace vorlane
