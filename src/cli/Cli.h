#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// Exit codes of vorlane-cli.
inline constexpr int ExitSuccess = 0;
inline constexpr int ExitFailure = 1;
inline constexpr int ExitUsage = 2;

// Runs vorlane-cli with `args` (without the program name); returns the exit code.
int runCli(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

// The text of `vorlane-cli --help`.
std::string cliHelpText();

} // namespace vorlane
