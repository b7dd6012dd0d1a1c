#include "frmRename.h"

#include "TextLength.h"
#include "rules/ObjectRename.h"

namespace vorlane {

frmRename::frmRename(const Document &doc, ObjectRef object, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , m_object(object)
{
    m_ui.setupUi(this);
    allowAnyLength(this);
    const std::string id = objectIdentifier(doc, object);
    setWindowTitle(
        QStringLiteral("Rename %1 \"%2\"")
            .arg(QString::fromStdString(kindCaption(object.kind)), QString::fromStdString(id)));
    m_ui.txtRenameID->setText(QString::fromStdString(id));
    m_ui.txtRenameID->selectAll();
    m_ui.lblRenameReferences->setText(QString::fromStdString(
        followingReferencesCaption(static_cast<int>(usedBy(doc, object).size()))));
    m_ui.lblRenameRefusal->hide();
    connect(m_ui.txtRenameID, &QLineEdit::textChanged, this, &frmRename::txtRenameID_Change);
    connect(m_ui.cmdRenameOK, &QPushButton::clicked, this, &frmRename::cmdRenameOK_Click);
    connect(m_ui.cmdRenameCancel, &QPushButton::clicked, this, &frmRename::cmdRenameCancel_Click);
}

void frmRename::txtRenameID_Change()
{
    // A refusal stands for the name it was given for only.
    m_ui.lblRenameRefusal->clear();
    m_ui.lblRenameRefusal->hide();
}

void frmRename::cmdRenameOK_Click()
{
    if (const auto refusal = renameRefusal(m_doc, m_object, newId())) {
        m_ui.lblRenameRefusal->setText(QString::fromStdString(*refusal));
        m_ui.lblRenameRefusal->show();
        return;
    }
    accept();
}

void frmRename::cmdRenameCancel_Click()
{
    reject();
}

std::string frmRename::newId() const
{
    return m_ui.txtRenameID->text().toStdString();
}

} // namespace vorlane
