#pragma once

#include "platform/Registry.h"

#include "ui_frmAbout.h"

#include <QDialog>
#include <QIcon>

#include <functional>

namespace vorlane {

class UserInterface;

// The program's icon, shown by the windows and the About box.
QIcon programIcon();

// The About box: title, version, description and the System Info button.
class frmAbout : public QDialog
{
    Q_OBJECT
public:
    // `startProgram` starts a program without waiting and reports whether it started.
    frmAbout(UserInterface &userInterface,
             Registry &registry,
             std::function<bool(const QString &)> startProgram,
             QWidget *parent = nullptr);

    void Form_Load();
    void cmdOK_Click();
    void cmdSysInfo_Click();
    void StartSysInfo();

private:
    Ui::frmAbout m_ui;
    UserInterface &m_userInterface;
    Registry &m_registry;
    std::function<bool(const QString &)> m_startProgram;
};

} // namespace vorlane
