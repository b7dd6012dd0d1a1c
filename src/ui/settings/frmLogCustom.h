#pragma once

#include "BoundForm.h"
#include "model/modGlobal.h"

#include "ui_frmLogCustom.h"

namespace vorlane {

class UserInterface;

// The custom log filters: free texts the engine is to log, kept in the CustomFilters slots.
class frmLogCustom : public BoundForm
{
    Q_OBJECT
public:
    // `userInterface` shows the message refusing a filter when there is no room.
    frmLogCustom(Document &doc, UserInterface &userInterface, QWidget *parent = nullptr);

    // Lists the filters in slot order.
    void Form_Load() override;
    // Stores how many filters the list holds.
    void Form_Unload() override;

    void cmdCustomCreateFilter_Click();
    void cmdCustomRemove_Click();
    void txtCustomFilterName_Change();

    const Ui::frmLogCustom &form() const { return m_ui; }

private:
    void showList();

    Ui::frmLogCustom m_ui;
    UserInterface &m_userInterface;
    ObjectList m_list;
    bool m_mirroring = false;
};

} // namespace vorlane
