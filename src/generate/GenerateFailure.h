#pragma once

#include <string>

namespace vorlane {

// An engine file that could not be created or written, and the operating system's reason.
struct GenerateFailure
{
    std::string path;
    std::string reason;
};

} // namespace vorlane
