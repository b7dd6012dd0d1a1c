#pragma once

#include "AppPropsForm.h"

#include "ui_frmAppLogProps.h"

namespace vorlane {

// The engine's log: whether it is written, and where.
class frmAppLogProps : public AppPropsForm
{
    Q_OBJECT
public:
    explicit frmAppLogProps(Document &doc,
                            frmMain *mainWindow = nullptr,
                            QWidget *parent = nullptr);

    const Ui::frmAppLogProps &form() const { return m_ui; }

private:
    void showLogEnabled();

    Ui::frmAppLogProps m_ui;
};

} // namespace vorlane
