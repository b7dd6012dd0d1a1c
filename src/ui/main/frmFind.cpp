#include "frmFind.h"

#include "TextLength.h"

namespace vorlane {

frmFind::frmFind(const Document &doc, Selector select, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , m_select(std::move(select))
{
    m_ui.setupUi(this);
    allowAnyLength(this);
    connect(m_ui.txtFind, &QLineEdit::textChanged, this, &frmFind::txtFind_Change);
    connect(m_ui.txtFind, &QLineEdit::returnPressed, this, &frmFind::txtFind_Return);
    connect(m_ui.lstFind, &QListWidget::itemDoubleClicked, this, &frmFind::lstFind_DblClick);
    connect(m_ui.lstFind, &QListWidget::itemActivated, this, &frmFind::lstFind_DblClick);
}

void frmFind::txtFind_Change()
{
    m_found = findObjects(m_doc, m_ui.txtFind->text().toStdString());
    m_ui.lstFind->clear();
    for (const FoundObject &found : m_found)
        m_ui.lstFind->addItem(QString::fromStdString(found.line));
    if (!m_found.empty())
        m_ui.lstFind->setCurrentRow(0);
}

void frmFind::txtFind_Return()
{
    selectLine(m_ui.lstFind->currentRow());
}

void frmFind::lstFind_DblClick()
{
    selectLine(m_ui.lstFind->currentRow());
}

void frmFind::selectLine(int row)
{
    if (row < 0 || row >= static_cast<int>(m_found.size()))
        return;
    m_select(m_found[static_cast<size_t>(row)].object);
}

} // namespace vorlane
