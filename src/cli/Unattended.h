#pragma once

#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "model/modGlobal.h"

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

namespace vorlane {

// The command line's answers to the program's questions: Yes to every question, `chosen` in
// every file dialog, and no message shown (the commands report failures themselves).
class Unattended : public UserInterface
{
public:
    explicit Unattended(std::optional<std::string> chosen = std::nullopt)
        : m_chosen(std::move(chosen))
    {}
    MessageAnswer showMessage(const Message &message) override;
    std::optional<std::string> chooseFile(const FileDialogRequest &) override { return m_chosen; }

private:
    std::optional<std::string> m_chosen;
};

// Reads the project `path` as Open does at program start. On failure prints
// "vorlane-cli: FILE:LINE: ..." (or the file and the reason) on `err` and returns nothing.
std::unique_ptr<Document> openForCommand(const std::string &path,
                                         UserInterface &ui,
                                         ProgressSink &progress,
                                         std::ostream &err);

// Prints what `vorlane-cli check` would print for the project in `doc`, each line as
// "vorlane-cli: warning: LINE" on `err`; `file` is the FILE part of the lines.
void printWarnings(const Document &doc, const std::string &file, std::ostream &err);

} // namespace vorlane
