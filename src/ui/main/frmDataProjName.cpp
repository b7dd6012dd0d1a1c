#include "frmDataProjName.h"

#include "TextLength.h"

namespace vorlane {

frmDataProjName::frmDataProjName(QWidget *parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    allowAnyLength(this);
    connect(m_ui.txtDataProjName,
            &QLineEdit::textChanged,
            this,
            &frmDataProjName::txtDataProjName_Change);
    connect(m_ui.cmdDataProjNameOK,
            &QPushButton::clicked,
            this,
            &frmDataProjName::cmdDataProjNameOK_Click);
    connect(m_ui.cmdDataProjNameCancel,
            &QPushButton::clicked,
            this,
            &frmDataProjName::cmdDataProjNameCancel_Click);
    Form_Load();
}

void frmDataProjName::Form_Load()
{
    m_ui.txtDataProjName->setText(QStringLiteral("My Project"));
    txtDataProjName_Change();
}

void frmDataProjName::txtDataProjName_Change()
{
    m_ui.cmdDataProjNameOK->setEnabled(!m_ui.txtDataProjName->text().isEmpty());
}

void frmDataProjName::cmdDataProjNameOK_Click()
{
    // Enter in the box presses the default button even while it is disabled.
    if (m_ui.cmdDataProjNameOK->isEnabled())
        accept();
}

void frmDataProjName::cmdDataProjNameCancel_Click()
{
    reject();
}

QString frmDataProjName::name() const
{
    return m_ui.txtDataProjName->text();
}

} // namespace vorlane
