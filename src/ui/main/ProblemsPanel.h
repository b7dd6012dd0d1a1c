#pragma once

#include <QDockWidget>

#include <string>
#include <vector>

class QLabel;
class QListWidget;

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
    // Empties and hides the panel.
    void clearProblems();

    QString summary() const;
    QStringList problems() const;

private:
    QLabel *m_lblProblems;
    QListWidget *m_lstProblems;
};

} // namespace vorlane
