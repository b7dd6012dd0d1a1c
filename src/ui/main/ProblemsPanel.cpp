#include "ProblemsPanel.h"

#include <QLabel>
#include <QListWidget>
#include <QSet>
#include <QVBoxLayout>

namespace vorlane {

ProblemsPanel::ProblemsPanel(QWidget *parent)
    : QDockWidget(QStringLiteral("Problems"), parent)
    , m_lblProblems(new QLabel)
    , m_lstProblems(new QListWidget)
{
    setObjectName(QStringLiteral("ProblemsPanel"));
    m_lblProblems->setObjectName(QStringLiteral("lblProblems"));
    m_lblProblems->setWordWrap(true);
    m_lstProblems->setObjectName(QStringLiteral("lstProblems"));
    // Problem lines are long: they scroll sideways rather than being cut.
    m_lstProblems->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    auto *body = new QWidget;
    auto *layout = new QVBoxLayout(body);
    layout->addWidget(m_lblProblems);
    layout->addWidget(m_lstProblems);
    setWidget(body);
    setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    connect(
        m_lstProblems, &QListWidget::itemDoubleClicked, this, &ProblemsPanel::lstProblems_DblClick);
    hide();
}

void ProblemsPanel::showProblems(const QString &summary, const std::vector<std::string> &problems)
{
    m_lblProblems->setText(summary);
    m_lstProblems->clear();
    m_objects.clear();
    m_notices.clear();
    for (const std::string &problem : problems)
        m_lstProblems->addItem(QString::fromStdString(problem));
    m_lstProblems->setVisible(!problems.empty());
    show();
    raise();
}

void ProblemsPanel::addProblem(const QString &summary,
                               const std::string &problem,
                               const std::string &replaced)
{
    if (!replaced.empty()) {
        const auto found =
            m_lstProblems->findItems(QString::fromStdString(replaced), Qt::MatchExactly);
        for (QListWidgetItem *item : found)
            delete m_lstProblems->takeItem(m_lstProblems->row(item));
        std::erase(m_notices, replaced);
    }
    m_notices.push_back(problem);
    m_lblProblems->setText(summary);
    m_lstProblems->addItem(QString::fromStdString(problem));
    m_lstProblems->setVisible(true);
    show();
    raise();
}

void ProblemsPanel::clearProblems()
{
    m_lblProblems->clear();
    m_lstProblems->clear();
    m_objects.clear();
    m_notices.clear();
    hide();
}

bool ProblemsPanel::fill(const QString &summary, const std::vector<ProjectProblem> &problems)
{
    const QStringList before = this->problems();
    m_lblProblems->setText(summary);
    m_lstProblems->clear();
    m_objects.clear();
    bool appeared = false;
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(problems.size()));
    for (const ProjectProblem &problem : problems) {
        const QString line = (problem.warning ? QStringLiteral("warning: ") : QString()) +
                             QString::fromStdString(problem.line);
        lines << line;
        m_objects.push_back(problem.object);
    }
    for (const std::string &notice : m_notices) {
        lines << QString::fromStdString(notice);
        m_objects.push_back(std::nullopt);
    }
    // Compared as a set: a report of hundreds of lines stays quick.
    const QSet<QString> shown(before.begin(), before.end());
    for (const QString &line : lines)
        appeared = appeared || !shown.contains(line);
    m_lstProblems->addItems(lines);
    m_lstProblems->setVisible(!lines.isEmpty());
    return appeared;
}

void ProblemsPanel::showReport(const QString &summary, const std::vector<ProjectProblem> &problems)
{
    fill(summary, problems);
    show();
    raise();
}

void ProblemsPanel::updateProblems(const QString &summary,
                                   const std::vector<ProjectProblem> &problems)
{
    const bool appeared = fill(summary, problems);
    if (problems.empty() && m_notices.empty()) {
        hide();
    } else if (appeared) {
        show();
        raise();
    }
}

void ProblemsPanel::lstProblems_DblClick(QListWidgetItem *item)
{
    const int row = m_lstProblems->row(item);
    if (row < 0 || row >= static_cast<int>(m_objects.size()))
        return;
    if (const auto &object = m_objects[static_cast<size_t>(row)]; object && m_open)
        m_open(*object);
}

QString ProblemsPanel::summary() const
{
    return m_lblProblems->text();
}

QStringList ProblemsPanel::problems() const
{
    QStringList lines;
    for (int i = 0; i < m_lstProblems->count(); ++i)
        lines << m_lstProblems->item(i)->text();
    return lines;
}

} // namespace vorlane
