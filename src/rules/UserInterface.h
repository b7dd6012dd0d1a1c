#pragma once

#include <optional>
#include <string>

namespace vorlane {

enum class MessageIcon { None, Question, Exclamation, Critical, Information };
enum class MessageButtons { OK, YesNo };
enum class MessageAnswer { OK, Yes, No };

// A message box as the program shows it.
struct Message
{
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::OK;
};

// A file dialog; `filterName` and `pattern` form the filter "Data Files(*.dvb)".
struct FileDialogRequest
{
    enum class Mode { Open, Save };
    Mode mode = Mode::Open;
    std::string filterName;
    std::string pattern;
    std::string proposedName;
    std::string title;  // the dialog's caption
    std::string folder; // where the dialog starts; empty for the dialog's own choice
};

// Questions and choices put to the user. The editor answers them with message boxes and
// file dialogs; tests and the command-line tool answer them with scripted replies.
class UserInterface
{
public:
    virtual ~UserInterface() = default;
    virtual MessageAnswer showMessage(const Message &message) = 0;
    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<std::string> chooseFile(const FileDialogRequest &request) = 0;
};

} // namespace vorlane
