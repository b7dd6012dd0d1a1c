#include "platform/AboutInfo.h"

namespace vorlane {

std::string versionCaption(int major, int minor, int revision)
{
    return "Version " + std::to_string(major) + "." + std::to_string(minor) + "." +
           std::to_string(revision);
}

} // namespace vorlane
