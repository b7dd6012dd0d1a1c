#pragma once

#include "rules/UserInterface.h"

class QWidget;

namespace vorlane {

// Answers the program's questions with message boxes and the system's file dialogs.
class QtUserInterface : public UserInterface
{
public:
    explicit QtUserInterface(QWidget *parent = nullptr);
    void setParent(QWidget *parent) { m_parent = parent; }

    MessageAnswer showMessage(const Message &message) override;
    std::optional<std::string> chooseFile(const FileDialogRequest &request) override;

private:
    QWidget *m_parent;
};

} // namespace vorlane
