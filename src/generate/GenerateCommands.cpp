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

// Passes every file on to `files` and counts those written whole.
class CountingOutput final : public FileOutput
{
public:
    explicit CountingOutput(FileOutput &files)
        : m_files(files)
    {}
    std::optional<std::string> writeFile(const std::string &path, std::string_view bytes) override
    {
        return counted(m_files.writeFile(path, bytes));
    }
    int written() const { return m_written; }

private:
    std::optional<std::string> counted(std::optional<std::string> failure)
    {
        if (!failure)
            ++m_written;
        return failure;
    }

    FileOutput &m_files;
    int m_written = 0;
};

GenerateResult generate(Document &doc,
                        const std::string &dataFolderRel,
                        UserInterface &ui,
                        ProgressSink &progress,
                        FileOutput &files)
{
    GenerateResult result;
    result.folder = doc.ProjectInfo.generatePath;
    CountingOutput counting(files);
    result.failure = GenData(doc, dataFolderRel, progress, counting);
    result.filesWritten = counting.written();
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

std::string generatedText(int filesWritten, const std::string &folder)
{
    return "Generated " + std::to_string(filesWritten) + (filesWritten == 1 ? " file" : " files") +
           " into " + folder;
}

std::string writeFailureText(const GenerateFailure &failure)
{
    switch (failure.kind) {
    case GenerateFailure::Kind::Busy:
        return "Another generation is writing into " + failure.path +
               ". No data was generated; try again when it has finished.";
    case GenerateFailure::Kind::OwnInput:
        return "Generating would write " + failure.path + " over the project file " +
               failure.reason + ". No data was generated.";
    case GenerateFailure::Kind::Write:
        break;
    }
    std::string text = "Could not write " + failure.path + ": " + failure.reason +
                       ". Generation stopped at this file, which was left as it was.";
    if (failure.replaced.empty())
        return text + " No file was replaced.";
    text += " Already replaced:";
    for (size_t i = 0; i < failure.replaced.size(); ++i)
        text += (i == 0 ? " " : ", ") + failure.replaced[i];
    return text + ".";
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
    // The dialog starts beside the project file, where the engine's data usually goes.
    if (const std::string project = projectSavePath(doc); project.find('/') != std::string::npos)
        request.folder = project.substr(0, project.rfind('/'));
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
