#pragma once

#include <string>

namespace vorlane {

// "Version " + major.minor.revision, each in plain decimal without zero padding.
std::string versionCaption(int major, int minor, int revision);

} // namespace vorlane
