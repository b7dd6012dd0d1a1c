#pragma once

#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "model/modGlobal.h"
#include "io/FileOps.h"

#include <string>

namespace vorlane {

// How an Open ended. The main window acts on it: when `opened()`, it selects the first tab
// and refreshes the application statistics, and when `firstProject` is also set it sets
// projectOpen to -1, enables the entries that need a project, shows the data frames and sets
// its caption. Any other outcome has already been shown to the user in a "Load Error"
// message.
struct OpenOutcome
{
    enum class Status {
        Opened,     // the whole file was read
        Unreadable, // the file could not be read; `reason` holds the operating system's message
        Empty,      // the file holds no bytes; nothing was read
        Damaged     // reading stopped at `line`; what was read before it stays in the document
    };
    Status status = Status::Opened;
    bool firstProject = false; // opened while no project was open (projectOpen 0)
    std::string path;          // the file as chosen
    int line = 0;              // Damaged: the 1-based line of the damage
    std::string reason;        // Unreadable: the system's message; Damaged: what was expected

    bool opened() const { return status == Status::Opened; }
};

// Open with `ops` for the file calls; see Open.
OpenOutcome openProject(Document &doc,
                        const std::string &chosenPath,
                        UserInterface &ui,
                        ProgressSink &progress,
                        FileOps &ops);

// The program's Open of `chosenPath`, from storing the path to closing the file: clears the
// tables and lists when a project is open, reads the file (whose recorded path then replaces
// the chosen one) and shows an unreadable, empty or damaged file in a "Load Error" message.
// Touches no window: the caller finishes the Open from the outcome.
OpenOutcome
Open(Document &doc, const std::string &chosenPath, UserInterface &ui, ProgressSink &progress);

// A failed outcome in one line: "FILE: reason", "FILE: the file is empty" or
// "FILE:LINE: what was expected".
std::string describeOpenFailure(const OpenOutcome &outcome);

} // namespace vorlane
