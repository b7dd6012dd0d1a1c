#include "project/RecoveryStore.h"

#include "platform/ProcessLiveness.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include <sys/stat.h>

namespace vorlane {

namespace {

constexpr std::string_view NamePrefix = "vorlane-";
constexpr std::string_view NameSuffix = ".dvb";

// Makes `folder` and the folders above it that are missing, readable by the user alone, as the
// state of a user should be; 0 or the errno value of the failure.
int makeFolders(const std::string &folder)
{
    std::size_t at = 0;
    for (;;) {
        at = folder.find('/', at + 1);
        const std::string part = folder.substr(0, at);
        if (!part.empty() && ::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST)
            return errno;
        if (at == std::string::npos)
            return 0;
    }
}

bool sameFile(const std::string &a, const std::string &b)
{
    if (a == b)
        return true;
    std::error_code error;
    return std::filesystem::equivalent(a, b, error);
}

// The name recorded in the project file `path`; empty when it cannot be read.
std::string recordedProjectName(const std::string &path, FileOps &ops)
{
    std::string bytes;
    if (ops.readAll(path, bytes) != 0)
        return {};
    auto doc = makeDocument();
    if (readProject(bytes, *doc).status != ProjectReadResult::Status::Read)
        return {};
    return doc->ProjectInfo.projectName;
}

} // namespace

std::string RecoveryStore::defaultFolder()
{
    const char *state = std::getenv("XDG_STATE_HOME");
    std::string base;
    if (state && state[0] == '/') {
        base = state;
    } else {
        const char *home = std::getenv("HOME");
        base = std::string(home ? home : "") + "/.local/state";
    }
    while (base.size() > 1 && base.back() == '/')
        base.pop_back();
    return base + "/vorlane/recovery";
}

RecoveryStore::RecoveryStore(std::string folder, FileOps &ops)
    : RecoveryStore(
          std::move(folder), currentProcessId(), processStartTime(currentProcessId()), ops)
{}

RecoveryStore::RecoveryStore(std::string folder, int pid, long long startTime, FileOps &ops)
    : m_folder(std::move(folder))
    , m_pid(pid)
    , m_startTime(startTime)
    , m_ops(ops)
{}

std::string RecoveryStore::ownPath() const
{
    return m_folder + "/" + recoveryFileName(m_pid, m_startTime);
}

FileWriteResult RecoveryStore::write(const Document &doc)
{
    const std::string path = ownPath();
    const std::string projectPath = projectSavePath(doc);
    if (!projectPath.empty() && sameFile(projectPath, path))
        return {false, "it is the project's own file", path, {}};
    if (const int error = makeFolders(m_folder); error != 0)
        return {false, errorText(error), path, {}};
    std::string bytes;
    {
        // The path as Save would write to it: the recovered project is no longer opened from
        // the folder a relative path was taken in.
        auto copy = std::make_unique<Document>(doc);
        copy->ProjectInfo.projectFilePath = projectPath;
        try {
            bytes = projectFileBytes(*copy);
        } catch (const std::exception &failure) {
            return {false, failure.what(), path, {}};
        }
    }
    return writeFileSafely(path, bytes, m_ops);
}

void RecoveryStore::removeOwn()
{
    m_ops.remove(ownPath());
}

std::vector<RecoveryFile> RecoveryStore::abandoned() const
{
    std::vector<RecoveryFile> files;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(m_folder, error)) {
        RecoveryFile file;
        const std::string name = entry.path().filename().string();
        if (!parseRecoveryFileName(name, file.pid, file.startTime))
            continue;
        // This editor's own file, and the files of editors still running, are theirs.
        if (name == recoveryFileName(m_pid, m_startTime) ||
            processRunning(file.pid, file.startTime))
            continue;
        file.path = m_folder + "/" + name;
        PathInfo info;
        if (m_ops.inspect(file.path, info) != 0 || info.type != PathInfo::Type::Regular)
            continue;
        struct stat status
        {
        };
        if (::stat(file.path.c_str(), &status) == 0)
            file.changed = status.st_mtime;
        file.projectName = recordedProjectName(file.path, m_ops);
        files.push_back(std::move(file));
    }
    std::sort(files.begin(), files.end(), [](const RecoveryFile &a, const RecoveryFile &b) {
        return a.changed != b.changed ? a.changed < b.changed : a.path < b.path;
    });
    return files;
}

bool RecoveryStore::remove(const RecoveryFile &file)
{
    std::error_code error;
    return std::filesystem::remove(file.path, error);
}

std::string recoveryFileName(int pid, long long startTime)
{
    return std::string(NamePrefix) + std::to_string(pid) + "-" +
           std::to_string(std::max(startTime, 0LL)) + std::string(NameSuffix);
}

bool parseRecoveryFileName(std::string_view name, int &pid, long long &startTime)
{
    if (!name.starts_with(NamePrefix) || !name.ends_with(NameSuffix))
        return false;
    name.remove_prefix(NamePrefix.size());
    name.remove_suffix(NameSuffix.size());
    const std::size_t dash = name.find('-');
    if (dash == std::string_view::npos)
        return false;
    const auto digitsOnly = [](std::string_view text) {
        return !text.empty() &&
               std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    };
    const std::string_view pidText = name.substr(0, dash);
    const std::string_view startText = name.substr(dash + 1);
    if (!digitsOnly(pidText) || !digitsOnly(startText))
        return false;
    const auto pidRead = std::from_chars(pidText.data(), pidText.data() + pidText.size(), pid);
    const auto startRead =
        std::from_chars(startText.data(), startText.data() + startText.size(), startTime);
    return pidRead.ec == std::errc() && startRead.ec == std::errc() && pid > 0;
}

std::string localTimeText(std::time_t when)
{
    std::tm local{};
    ::localtime_r(&when, &local);
    char text[32];
    const std::size_t size = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    return std::string(text, size);
}

Message recoveryQuestion(const RecoveryFile &file)
{
    const std::string project = file.projectName.empty()
                                    ? "the project kept in \"" + file.path + "\""
                                    : "the project \"" + file.projectName + "\"";
    return {"Vorlane ended without saving " + project + ". Its state at its last change, on " +
                localTimeText(file.changed) + ", was kept.\n\nOpen it? No discards the kept state.",
            "Recover Project",
            MessageIcon::Question,
            MessageButtons::YesNo};
}

} // namespace vorlane
