#include "project/ProjectFileWatch.h"

#include "io/SafeSave.h"

#include <ctime>

namespace vorlane {

namespace {

std::string nameOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

} // namespace

void ProjectFileWatch::watch(const std::string &path, FileOps &ops)
{
    m_path = path;
    m_known = path.empty() ? PathInfo{} : current(ops);
    m_reported = m_known;
}

void ProjectFileWatch::watch(const std::string &path, const PathInfo &written)
{
    m_path = path;
    m_known = written;
    m_reported = written;
}

PathInfo ProjectFileWatch::current(FileOps &ops, std::string *target) const
{
    PathInfo info;
    std::string resolved;
    std::string reason;
    if (!resolveSaveTarget(m_path, ops, resolved, reason) || ops.inspect(resolved, info) != 0)
        return PathInfo{};
    if (target)
        *target = resolved;
    return info;
}

std::optional<std::string> ProjectFileWatch::look(FileOps &ops)
{
    if (m_path.empty())
        return std::nullopt;
    std::string target = m_path;
    const PathInfo now = current(ops, &target);
    if (sameVersion(now, m_known) || sameVersion(now, m_reported))
        return std::nullopt;
    m_reported = now;
    if (now.type == PathInfo::Type::Missing)
        return "\"" + m_path +
               "\" was removed or renamed by another program; the next Save writes it again";
    return "\"" + m_path +
           "\" was changed by another program; the next Save keeps its version as \"" +
           nameOf(theirsCopyName(target, now.modifiedNs)) + "\"";
}

std::string ProjectFileWatch::theirsName(const std::string &savePath, FileOps &ops) const
{
    if (m_path.empty() || savePath != m_path)
        return {};
    std::string target;
    const PathInfo now = current(ops, &target);
    if (now.type != PathInfo::Type::Regular || sameVersion(now, m_known))
        return {};
    return theirsCopyName(target, now.modifiedNs);
}

std::string theirsCopyName(const std::string &path, long long modifiedNs)
{
    const std::time_t seconds = static_cast<std::time_t>(modifiedNs / 1000000000LL);
    std::tm local{};
    localtime_r(&seconds, &local);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y%m%d-%H%M", &local);
    return nameBeside(path, std::string(".theirs-") + stamp);
}

bool sameVersion(const PathInfo &a, const PathInfo &b)
{
    return a.type == b.type && a.device == b.device && a.inode == b.inode && a.size == b.size &&
           a.modifiedNs == b.modifiedNs;
}

} // namespace vorlane
