#include "generate/GenData.h"

#include "generate/EngineFiles.h"
#include "io/FolderLock.h"
#include "model/Kinds.h"
#include "rules/NewObjects.h"

#include <vector>

#include <string>

namespace vorlane {

namespace {

// Ends the progress window however generation ends.
class ProgressScope
{
public:
    explicit ProgressScope(ProgressSink &progress)
        : m_progress(progress)
    {
        m_progress.begin("Generating Data...");
    }
    ~ProgressScope() { m_progress.end(); }
    ProgressScope(const ProgressScope &) = delete;
    ProgressScope &operator=(const ProgressScope &) = delete;

private:
    ProgressSink &m_progress;
};

} // namespace

std::optional<GenerateFailure>
GenData(Document &doc, std::string_view dataFolderRel, ProgressSink &progress, FileOutput &files)
{
    const std::string &folder = doc.ProjectInfo.generatePath;
    // Two generations into one folder would each replace some of the files: the second is
    // refused before it changes anything.
    const FolderLock lock(folder);
    if (lock.busy())
        return GenerateFailure{folder, {}, {}, GenerateFailure::Kind::Busy};
    // No engine file may be the project file being read or saved.
    std::vector<std::string_view> names{AppCfgName};
    for (Kind kind : FileOrder)
        names.push_back(kindInfo(kind).dataFile);
    names.push_back(LogCfgName);
    for (const std::string &project : {doc.openedFrom, projectSavePath(doc)}) {
        for (std::string_view name : names) {
            std::string path = folder;
            path.append(name);
            if (isSameFile(path, project))
                return GenerateFailure{
                    std::move(path), project, {}, GenerateFailure::Kind::OwnInput};
        }
    }

    ProgressScope scope(progress);
    progress.setLabel("Removing New Objects...");
    removeNewObjects(doc);

    // One step for app.cfg, one per object.
    int maximum = 1;
    for (const ObjectList &list : doc.lists)
        maximum += static_cast<int>(list.lines.size());
    progress.setMaximum(maximum);

    std::vector<std::string> replaced;
    const auto write = [&](std::string_view name,
                           const std::string &bytes) -> std::optional<GenerateFailure> {
        std::string path = folder;
        path.append(name);
        if (auto reason = files.writeFile(path, bytes))
            return GenerateFailure{
                std::move(path), std::move(*reason), replaced, GenerateFailure::Kind::Write};
        replaced.emplace_back(name);
        return std::nullopt;
    };

    progress.setLabel("Generating Application Data...");
    if (auto failure = write(AppCfgName, appCfg(doc.AppSettings, dataFolderRel)))
        return failure;
    int value = 1;
    progress.setValue(value);

    const RecordWritten step = [&] {
        progress.setValue(++value);
    };
    for (Kind kind : FileOrder) {
        const KindInfo &info = kindInfo(kind);
        progress.setLabel(info.generateLabel);
        if (auto failure = write(info.dataFile, dataFile(doc, kind, step)))
            return failure;
    }

    progress.setLabel("Generating Log Data...");
    if (auto failure = write(LogCfgName, logCfg(doc.AppSettings)))
        return failure;
    progress.setValue(maximum);
    return std::nullopt;
}

} // namespace vorlane
