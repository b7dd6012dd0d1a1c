#include "UsedByPanel.h"

#include <QListWidget>

namespace vorlane {

UsedByPanel::UsedByPanel(QWidget *parent)
    : QDockWidget(QStringLiteral("Used By"), parent)
    , m_lstUsedBy(new QListWidget)
{
    setObjectName(QStringLiteral("UsedByPanel"));
    m_lstUsedBy->setObjectName(QStringLiteral("lstUsedBy"));
    setWidget(m_lstUsedBy);
    // No close box: nothing in the menus would bring the panel back.
    setFeatures(QDockWidget::DockWidgetMovable);
    connect(m_lstUsedBy, &QListWidget::itemDoubleClicked, this, &UsedByPanel::lstUsedBy_DblClick);
}

void UsedByPanel::showObject(const Document &doc, std::optional<ObjectRef> object)
{
    m_lstUsedBy->clear();
    m_owners.clear();
    if (!object)
        return;
    const std::vector<Reference> references = usedBy(doc, *object);
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(references.size()));
    for (const Reference &reference : references) {
        lines << QString::fromStdString(referenceLine(doc, reference));
        m_owners.push_back(reference.owner);
    }
    if (references.empty())
        lines << QString::fromStdString(usedByLines(doc, *object).front());
    // One insertion: an image used by every record has some two thousand lines.
    m_lstUsedBy->addItems(lines);
}

QStringList UsedByPanel::lines() const
{
    QStringList texts;
    for (int i = 0; i < m_lstUsedBy->count(); ++i)
        texts << m_lstUsedBy->item(i)->text();
    return texts;
}

void UsedByPanel::lstUsedBy_DblClick(QListWidgetItem *item)
{
    const int row = m_lstUsedBy->row(item);
    if (row >= 0 && row < static_cast<int>(m_owners.size()) && m_open)
        m_open(m_owners[static_cast<size_t>(row)]);
}

} // namespace vorlane
