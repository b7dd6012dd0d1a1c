#include "CheckFilterForm.h"

#include "rules/LogFilterRules.h"

#include <QCheckBox>

#include <stdexcept>
#include <string>

namespace vorlane {

CheckFilterForm::CheckFilterForm(Document &doc,
                                 std::span<int16_t> values,
                                 int16_t &count,
                                 QWidget *parent)
    : BoundForm(doc, parent)
    , m_values(values)
    , m_count(count)
{}

void CheckFilterForm::bindFilterBoxes(const char *arrayName)
{
    for (size_t i = 0; i < m_values.size(); ++i) {
        const QString name = QStringLiteral("%1_%2").arg(QString::fromUtf8(arrayName)).arg(i);
        auto *box = findChild<QCheckBox *>(name);
        if (!box)
            throw std::logic_error("the form has no check box " + name.toStdString());
        m_boxes.push_back(box);
        bindCheck(box, m_values[i]);
    }
}

QCheckBox *CheckFilterForm::filterBox(int index) const
{
    return m_boxes.at(static_cast<size_t>(index));
}

void CheckFilterForm::Form_Unload()
{
    m_count = checkedCount(m_values);
}

} // namespace vorlane
