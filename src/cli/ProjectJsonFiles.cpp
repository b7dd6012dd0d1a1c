#include "cli/ProjectJsonFiles.h"

#include "io/SafeSave.h"
#include "io/SystemFileOps.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <ostream>

namespace vorlane {

std::optional<Json> readProjectAsJson(const std::string &path, std::ostream &err)
{
    std::string bytes;
    if (const int error = systemFileOps().readAll(path, bytes); error != 0) {
        err << "vorlane-cli: " << path << ": " << errorText(error) << "\n";
        return std::nullopt;
    }
    auto doc = makeDocument();
    const ProjectReadResult read = readProjectForJson(bytes, *doc);
    switch (read.status) {
    case ProjectReadResult::Status::Read:
        return projectToJson(*doc);
    case ProjectReadResult::Status::Empty:
        err << "vorlane-cli: " << path << ": the file is empty\n";
        break;
    case ProjectReadResult::Status::Damaged:
        err << "vorlane-cli: " << damageText(path, read.line, read.message) << "\n";
        break;
    }
    return std::nullopt;
}

bool writeProjectFileTo(const Document &doc,
                        const std::string &path,
                        int backups,
                        std::ostream &err)
{
    const FileWriteResult written =
        writeFileSafely(path, projectFileBytes(doc), systemFileOps(), SafeWriteOptions{backups});
    if (!written.ok) {
        err << "vorlane-cli: " << path << ": " << written.reason << "\n";
        return false;
    }
    for (const std::string &notKept : written.notKept)
        err << "vorlane-cli: warning: \"" << path << "\" was written, but " << notKept << "\n";
    return true;
}

} // namespace vorlane
