#include "history/StepNames.h"

#include "model/Kinds.h"

#include <string_view>

namespace vorlane {

namespace {

std::string quoted(const std::string &text)
{
    return '"' + text + '"';
}

} // namespace

std::string kindStepName(Kind kind)
{
    // The tab's caption less its " Data": "Button Data" names buttons.
    std::string_view caption = kindInfo(kind).tabCaption;
    constexpr std::string_view suffix = " Data";
    if (caption.ends_with(suffix))
        caption.remove_suffix(suffix.size());
    return std::string(caption);
}

std::string editStepName(Kind kind, const std::string &id)
{
    return "Edit " + kindStepName(kind) + " " + quoted(id);
}

std::string addStepName(Kind kind)
{
    return "Add " + kindStepName(kind);
}

std::string removeStepName(Kind kind, const std::string &id)
{
    return "Remove " + kindStepName(kind) + " " + quoted(id);
}

std::string renameStepName(Kind kind, const std::string &oldId)
{
    return "Rename " + kindStepName(kind) + " " + quoted(oldId);
}

std::string openStepName(const std::string &path)
{
    // Both separators: a project may name a Windows path.
    const std::size_t slash = path.find_last_of("/\\");
    return "Open " + quoted(slash == std::string::npos ? path : path.substr(slash + 1));
}

} // namespace vorlane
