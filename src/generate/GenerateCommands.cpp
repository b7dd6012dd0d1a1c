#include "generate/GenerateCommands.h"

#include "generate/GenData.h"
#include "generate/GeneratePaths.h"

namespace vorlane {

namespace {

bool confirmed(UserInterface &ui)
{
    const Message question{
        GenerateConfirmText, "Warning!", MessageIcon::Question, MessageButtons::YesNo};
    return ui.showMessage(question) != MessageAnswer::No;
}

GenerateResult generate(Document &doc,
                        const std::string &dataFolderRel,
                        UserInterface &ui,
                        ProgressSink &progress,
                        FileOutput &files)
{
    GenerateResult result;
    result.folder = doc.ProjectInfo.generatePath;
    result.failure = GenData(doc, dataFolderRel, progress, files);
    if (!result.failure) {
        result.outcome = GenerateOutcome::Generated;
        return result;
    }
    result.outcome = GenerateOutcome::Failed;
    ui.showMessage({writeFailureText(*result.failure),
                    GenerateTitle,
                    MessageIcon::Critical,
                    MessageButtons::OK});
    return result;
}

} // namespace

std::string outsideRootText(const std::string &folder, const std::string &rootFolder)
{
    return "The folder " + folder + " lies outside the application root folder " + rootFolder +
           ". No data was generated.";
}

std::string writeFailureText(const GenerateFailure &failure)
{
    return "Could not write " + failure.path + ": " + failure.reason +
           ". Generation stopped at this file.";
}

GenerateResult generateDataAs(Document &doc,
                              GenerateState &state,
                              UserInterface &ui,
                              ProgressSink &progress,
                              FileOutput &files)
{
    if (!confirmed(ui))
        return {GenerateOutcome::Declined, std::nullopt, {}};

    FileDialogRequest request;
    request.mode = FileDialogRequest::Mode::Save;
    request.filterName = "Game Data Files";
    request.pattern = "*.dat";
    request.proposedName = GenerateProposedName;
    request.title = "Generate Data As";
    const std::optional<std::string> chosen = ui.chooseFile(request);
    if (!chosen)
        return {GenerateOutcome::Cancelled, std::nullopt, {}};

    const std::string &rootFolder = doc.AppSettings.rootFolder;
    std::optional<GeneratePaths> paths = computeGeneratePaths(*chosen, rootFolder);
    if (!paths) {
        const std::string folder = folderOf(*chosen);
        ui.showMessage({outsideRootText(folder, rootFolder),
                        GenerateTitle,
                        MessageIcon::Exclamation,
                        MessageButtons::OK});
        return {GenerateOutcome::OutsideRoot, std::nullopt, folder};
    }

    doc.ProjectInfo.generatePath = paths->generatePath;
    state.generateAgainAvailable = true;
    state.generatePath = std::move(paths->generatePath);
    state.dataFolderRel = std::move(paths->dataFolderRel);
    return generate(doc, state.dataFolderRel, ui, progress, files);
}

GenerateResult generateDataAgain(Document &doc,
                                 const GenerateState &state,
                                 UserInterface &ui,
                                 ProgressSink &progress,
                                 FileOutput &files)
{
    if (!state.generateAgainAvailable)
        return {GenerateOutcome::Unavailable, std::nullopt, {}};
    if (!confirmed(ui))
        return {GenerateOutcome::Declined, std::nullopt, {}};
    // The folder chosen last, even when a project opened since carried another one.
    doc.ProjectInfo.generatePath = state.generatePath;
    return generate(doc, state.dataFolderRel, ui, progress, files);
}

} // namespace vorlane
