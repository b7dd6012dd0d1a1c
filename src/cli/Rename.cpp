#include "cli/Rename.h"

#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "io/SystemFileOps.h"
#include "model/Kinds.h"
#include "project/ProjectCheck.h"
#include "project/Save.h"
#include "rules/ObjectRename.h"

#include <optional>
#include <ostream>

namespace vorlane {

namespace {

std::optional<int> slotCalled(const Document &doc, Kind kind, const std::string &id)
{
    for (const ListLine &line : doc.list(kind).lines) {
        if (slotInTable(kind, line.slot) && objectIdentifier(doc, {kind, line.slot}) == id)
            return line.slot;
    }
    return std::nullopt;
}

std::string kindWord(Kind kind)
{
    std::string word = kindCaption(kind);
    word[0] = static_cast<char>(word[0] - 'A' + 'a');
    return word;
}

} // namespace

int runRename(const std::vector<std::string> &args, std::ostream & /*out*/, std::ostream &err)
{
    if (args.size() != 4 && args.size() != 5) {
        err << "vorlane-cli: rename needs PROJECT.dvb KIND OLD NEW and optionally OUT.dvb; see "
               "vorlane-cli --help\n";
        return ExitUsage;
    }
    const std::string &path = args[0];
    const std::optional<Kind> kind = kindFromWord(args[1]);
    if (!kind) {
        err << "vorlane-cli: unknown kind \"" << args[1]
            << "\"; KIND is one of button, cursor, image, text, font, music, sfx, sprite, "
               "scene\n";
        return ExitUsage;
    }
    const std::string &oldId = args[2];
    const std::string &newId = args[3];
    const std::string &outPath = args.size() == 5 ? args[4] : path;

    // The file records where it was written; a name it cannot carry would make it unreadable.
    if (!projectFileCarries(outPath)) {
        err << "vorlane-cli: " << outPath
            << ": a project file cannot record this name as its path (it holds a line break or "
               "a double quote followed by a comma); nothing was written\n";
        return ExitFailure;
    }

    Unattended ui;
    ProgressSink quiet;
    const auto doc = openForCommand(path, ui, quiet, err);
    if (!doc)
        return ExitFailure;

    const std::optional<int> slot = slotCalled(*doc, *kind, oldId);
    if (!slot) {
        err << "vorlane-cli: " << path << ": no " << kindWord(*kind) << " is called \"" << oldId
            << "\"; nothing was written\n";
        return ExitFailure;
    }
    const RenameOutcome renamed = renameObject(*doc, {*kind, *slot}, newId);
    if (renamed.refusal) {
        err << "vorlane-cli: " << path << ": " << kindWord(*kind) << " \"" << oldId
            << "\" cannot be renamed to \"" << newId << "\": " << *renamed.refusal
            << " Nothing was written.\n";
        return ExitFailure;
    }

    recordChosenPath(*doc, outPath); // as Save As records the chosen file
    const SaveResult saved = saveProject(*doc, ui, quiet, systemFileOps());
    if (!saved.written()) {
        err << "vorlane-cli: " << outPath << ": " << saved.reason << "\n";
        return ExitFailure;
    }
    for (const std::string &notice : saved.notices)
        err << "vorlane-cli: warning: " << notice << "\n";
    printWarnings(*doc, outPath, err);
    return ExitSuccess;
}

} // namespace vorlane
