#pragma once

#include "rules/UserInterface.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace vorlane {

// Answers the program's questions from a script and records what was asked.
class ScriptedUserInterface : public UserInterface
{
public:
    std::vector<Message> messages;
    std::vector<FileDialogRequest> fileRequests;
    std::deque<MessageAnswer> answers;                  // Yes/No replies; Yes when empty
    std::deque<std::optional<std::string>> fileChoices; // nothing = cancelled

    MessageAnswer showMessage(const Message &message) override;
    std::optional<std::string> chooseFile(const FileDialogRequest &request) override;
};

} // namespace vorlane
