#pragma once

#include "ui_frmDataProjName.h"

#include <QDialog>

namespace vorlane {

// Asks for the name of a new project. Accepted with the name in name().
class frmDataProjName : public QDialog
{
    Q_OBJECT
public:
    explicit frmDataProjName(QWidget *parent = nullptr);

    void Form_Load();
    void txtDataProjName_Change();
    void cmdDataProjNameOK_Click();
    void cmdDataProjNameCancel_Click();

    QString name() const;

private:
    Ui::frmDataProjName m_ui;
};

} // namespace vorlane
