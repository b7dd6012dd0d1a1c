#pragma once

#include "project/ProjectFileWatch.h"

#include <QObject>

#include <functional>
#include <string>

class QFileSystemWatcher;

namespace vorlane {

// Watches the open project file for changes made by another program while the project is
// open and reports each, at once, as a line for the problems panel; what is a change and what
// the next Save keeps is ProjectFileWatch's.
class ProjectFileWatcher : public QObject
{
    Q_OBJECT
public:
    // `report` gets the new line and the line it replaces ("" for none).
    using Report = std::function<void(const std::string &line, const std::string &replaced)>;

    ProjectFileWatcher(Report report, QObject *parent = nullptr);

    // Watches `path`, just opened; "" watches nothing.
    void opened(const std::string &path);
    // Watches `path`, just saved by this program as `written`.
    void saved(const std::string &path, const PathInfo &written);
    // The name under which a Save of `savePath` keeps another program's version, or "".
    std::string theirsName(const std::string &savePath);
    // While a save runs, the program's own writes are not looked at.
    void setSaving(bool saving) { m_saving = saving; }

private:
    void fileWatcher_Changed();
    // Watches the file's path and its folder, since a file replaced by a rename drops out of
    // the system's watch.
    void watchPaths();

    QFileSystemWatcher *m_fileWatcher;
    ProjectFileWatch m_watch;
    Report m_report;
    std::string m_lastLine;
    bool m_saving = false;
};

} // namespace vorlane
