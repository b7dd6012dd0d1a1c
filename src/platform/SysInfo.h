#pragma once

#include "platform/Registry.h"

#include <functional>
#include <optional>
#include <string>

namespace vorlane {

// Reads the registry value `valueName` of `keyPath` into `value`; true when it was read.
// A REG_DWORD is given as decimal text built from its bytes' hexadecimal digits, last byte
// first, without zero padding.
bool GetKeyValue(Registry &registry,
                 Registry::Root root,
                 const std::string &keyPath,
                 const std::string &valueName,
                 std::string &value);

// The path of the system-information program, looked up in the registry, or nothing.
std::optional<std::string>
findSysInfoProgram(Registry &registry, const std::function<bool(const std::string &)> &fileExists);

inline constexpr const char *SysInfoUnavailable = "System Information Is Unavailable At This Time";

} // namespace vorlane
