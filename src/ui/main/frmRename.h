#pragma once

#include "model/modGlobal.h"
#include "rules/References.h"

#include "ui_frmRename.h"

#include <QDialog>

#include <string>

namespace vorlane {

// Asks for a new identifier of one object and says how many references will follow it. OK
// refuses a name that cannot be the object's, saying why under the box; accepted, the name is
// in newId() and the caller renames.
class frmRename : public QDialog
{
    Q_OBJECT
public:
    frmRename(const Document &doc, ObjectRef object, QWidget *parent = nullptr);

    void txtRenameID_Change();
    void cmdRenameOK_Click();
    void cmdRenameCancel_Click();

    std::string newId() const;
    const Ui::frmRename &form() const { return m_ui; }

private:
    Ui::frmRename m_ui;
    const Document &m_doc;
    ObjectRef m_object;
};

} // namespace vorlane
