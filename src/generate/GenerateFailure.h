#pragma once

#include <string>
#include <vector>

namespace vorlane {

// Why a generation stopped.
struct GenerateFailure
{
    enum class Kind {
        Write,    // `path` could not be created or written, for `reason`
        Busy,     // another generation holds the folder `path`; nothing was written
        OwnInput, // `path`, an engine file, is the project file `reason`; nothing was written
    };
    std::string path;
    std::string reason;
    // Write: the engine files already replaced before `path`, by name, in order.
    std::vector<std::string> replaced;
    Kind kind = Kind::Write;
};

} // namespace vorlane
