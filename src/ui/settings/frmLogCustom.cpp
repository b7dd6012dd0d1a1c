#include "frmLogCustom.h"

#include "rules/LogFilterRules.h"
#include "rules/UserInterface.h"

namespace vorlane {

namespace {

constexpr int SlotRole = Qt::UserRole;

} // namespace

frmLogCustom::frmLogCustom(Document &doc, UserInterface &userInterface, QWidget *parent)
    : BoundForm(doc, parent)
    , m_userInterface(userInterface)
{
    m_ui.setupUi(this);
    connect(m_ui.cmdCustomCreateFilter,
            &QPushButton::clicked,
            this,
            &frmLogCustom::cmdCustomCreateFilter_Click);
    connect(
        m_ui.cmdCustomRemove, &QPushButton::clicked, this, &frmLogCustom::cmdCustomRemove_Click);
    connect(m_ui.txtCustomFilterName,
            &QLineEdit::textChanged,
            this,
            &frmLogCustom::txtCustomFilterName_Change);
    // Delete acts on the line that shows as selected, never on a line that only has the focus.
    connect(m_ui.lstCustomFilter, &QListWidget::itemSelectionChanged, this, [this]() {
        if (m_mirroring)
            return;
        const QList<QListWidgetItem *> chosen = m_ui.lstCustomFilter->selectedItems();
        m_list.selected = chosen.isEmpty() ? -1 : m_ui.lstCustomFilter->row(chosen.front());
    });
}

void frmLogCustom::Form_Load()
{
    BoundForm::Form_Load();
    m_list = customFilterList(document().AppSettings);
    showList();
    m_ui.cmdCustomRemove->setEnabled(!m_list.lines.empty());
    txtCustomFilterName_Change();
}

void frmLogCustom::Form_Unload()
{
    document().AppSettings.customFilterCount = static_cast<int16_t>(m_list.lines.size());
}

void frmLogCustom::showList()
{
    QListWidget *widget = m_ui.lstCustomFilter;
    m_mirroring = true;
    widget->clear();
    for (const ListLine &line : m_list.lines) {
        auto *item = new QListWidgetItem(QString::fromStdString(line.text));
        item->setData(SlotRole, static_cast<int>(line.slot));
        widget->addItem(item);
    }
    widget->setCurrentRow(m_list.selected);
    m_mirroring = false;
}

void frmLogCustom::cmdCustomCreateFilter_Click()
{
    const FilterCreation made =
        createCustomFilter(document(), m_list, m_ui.txtCustomFilterName->text().toStdString());
    if (made.refusal) {
        m_userInterface.showMessage(*made.refusal);
        return;
    }
    showList();
    m_ui.cmdCustomRemove->setEnabled(true);
}

void frmLogCustom::cmdCustomRemove_Click()
{
    if (!removeCustomFilter(document().AppSettings, m_list))
        return;
    showList();
    if (m_list.lines.empty())
        m_ui.cmdCustomRemove->setEnabled(false);
}

void frmLogCustom::txtCustomFilterName_Change()
{
    m_ui.cmdCustomCreateFilter->setEnabled(
        canCreateFilter(m_ui.txtCustomFilterName->text().toStdString()));
}

} // namespace vorlane
