#pragma once

#include "project/ProjectCheck.h"

#include <QDockWidget>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QListWidget;
class QListWidgetItem;

namespace vorlane {

// The main window's problems panel: a summary line and one line per problem (object, field and
// reason), shown beside the lists without stopping the user, as after a Save whose file would
// not read back intact, or on File > Check Project.
class ProblemsPanel : public QDockWidget
{
    Q_OBJECT
public:
    explicit ProblemsPanel(QWidget *parent = nullptr);

    // Shows `summary` above `problems` and brings the panel up.
    void showProblems(const QString &summary, const std::vector<std::string> &problems);
    // Adds `problem` below the lines shown, in place of `replaced` when that is one of them,
    // and brings the panel up under `summary`.
    void addProblem(const QString &summary,
                    const std::string &problem,
                    const std::string &replaced = {});
    // The same with the check's lines, each knowing the object it names; a warning's line
    // begins with "warning: ".
    void showReport(const QString &summary, const std::vector<ProjectProblem> &problems);
    // Empties and hides the panel.
    void clearProblems();
    // Shows `problems` under `summary` after a change of the project: the panel comes up when a
    // line appears that it did not show, and goes when there is none left. A warning's line
    // begins with "warning: ".
    void updateProblems(const QString &summary, const std::vector<ProjectProblem> &problems);

    // What a double click on a line naming an object does with that object.
    using Opener = std::function<void(ObjectRef)>;
    void setOpener(Opener open) { m_open = std::move(open); }

    QString summary() const;
    QStringList problems() const;

private:
    void lstProblems_DblClick(QListWidgetItem *item);
    // Puts the lines in; true when one of them was not shown before.
    bool fill(const QString &summary, const std::vector<ProjectProblem> &problems);

    QLabel *m_lblProblems;
    QListWidget *m_lstProblems;
    std::vector<std::optional<ObjectRef>> m_objects; // one per line
    // The lines addProblem added (a change of the project file on disk): a refresh after a
    // change of the project keeps them below the check's lines; a Save's report ends them.
    std::vector<std::string> m_notices;
    Opener m_open;
};

} // namespace vorlane
