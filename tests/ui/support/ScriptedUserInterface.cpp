#include "ScriptedUserInterface.h"

namespace vorlane {

MessageAnswer ScriptedUserInterface::showMessage(const Message &message)
{
    messages.push_back(message);
    if (message.buttons == MessageButtons::OK)
        return MessageAnswer::OK;
    if (answers.empty())
        return MessageAnswer::Yes;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<std::string> ScriptedUserInterface::chooseFile(const FileDialogRequest &request)
{
    fileRequests.push_back(request);
    if (fileChoices.empty())
        return std::nullopt;
    auto choice = fileChoices.front();
    fileChoices.pop_front();
    return choice;
}

} // namespace vorlane
