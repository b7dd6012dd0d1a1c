#pragma once

#include "cli/Cli.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace vorlane::testsupport {

// The problems `vorlane-cli check PATH` reports, as convert and generate print them on standard
// error: each line as "vorlane-cli: warning: LINE", naming `file` instead of PATH.
inline std::string checkAsWarnings(const std::string &path, const std::string &file)
{
    std::ostringstream out, err;
    runCli({"check", path}, out, err);
    std::istringstream lines(out.str());
    std::string warnings;
    for (std::string line; std::getline(lines, line);) {
        // Files the game will not find are check's own warnings, not problems of the project.
        if (line.rfind("warning: ", 0) == 0)
            continue;
        EXPECT_EQ(line.rfind(path + ": ", 0), 0u) << line;
        warnings += "vorlane-cli: warning: " + file + line.substr(path.size()) + "\n";
    }
    return warnings;
}

} // namespace vorlane::testsupport
