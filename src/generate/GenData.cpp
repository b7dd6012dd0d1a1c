#include "generate/GenData.h"

#include "generate/EngineFiles.h"
#include "model/Kinds.h"
#include "model/NewObjects.h"

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
    ProgressScope scope(progress);
    progress.setLabel("Removing New Objects...");
    removeNewObjects(doc);

    // One step for app.cfg, one per object.
    int maximum = 1;
    for (const ObjectList &list : doc.lists)
        maximum += static_cast<int>(list.lines.size());
    progress.setMaximum(maximum);

    const std::string &folder = doc.ProjectInfo.generatePath;
    std::string bytes; // one buffer for all files: each starts where the last one's capacity is
    const auto write = [&](std::string_view name) -> std::optional<GenerateFailure> {
        std::string path = folder;
        path.append(name);
        if (auto reason = files.writeFile(path, bytes))
            return GenerateFailure{std::move(path), std::move(*reason)};
        return std::nullopt;
    };

    progress.setLabel("Generating Application Data...");
    appendAppCfg(bytes, doc.AppSettings, dataFolderRel);
    if (auto failure = write(AppCfgName))
        return failure;
    int value = 1;
    progress.setValue(value);

    const RecordWritten step = [&] {
        progress.setValue(++value);
    };
    for (Kind kind : FileOrder) {
        const KindInfo &info = kindInfo(kind);
        progress.setLabel(info.generateLabel);
        bytes.clear();
        appendDataFile(bytes, doc, kind, step);
        if (auto failure = write(info.dataFile))
            return failure;
    }

    progress.setLabel("Generating Log Data...");
    bytes.clear();
    appendLogCfg(bytes, doc.AppSettings);
    if (auto failure = write(LogCfgName))
        return failure;
    progress.setValue(maximum);
    return std::nullopt;
}

} // namespace vorlane
