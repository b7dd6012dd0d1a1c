#pragma once

#include <string>

namespace vorlane {

// What the main window keeps between generations: whether "Generate Data" may run again, and
// the folders of the last "Generate Data As...".
struct GenerateState
{
    bool generateAgainAvailable = false;
    std::string generatePath;
    std::string dataFolderRel;
};

} // namespace vorlane
