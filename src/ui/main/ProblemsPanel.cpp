#include "ProblemsPanel.h"

#include <QLabel>
#include <QListWidget>
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
    hide();
}

void ProblemsPanel::showProblems(const QString &summary, const std::vector<std::string> &problems)
{
    m_lblProblems->setText(summary);
    m_lstProblems->clear();
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
    }
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
    hide();
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
