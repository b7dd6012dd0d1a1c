#include "platform/SysInfo.h"

#include <cstdio>
#include <vector>

namespace vorlane {

namespace {

constexpr std::uint32_t BufferSize = 1024;

// "&h" + hex digits read as a 32-bit signed number, given as decimal text.
std::string hexToDecimalText(const std::string &hex)
{
    std::uint32_t value = 0;
    for (char c : hex) {
        const int digit = (c >= '0' && c <= '9') ? c - '0' : c - 'A' + 10;
        value = (value << 4) | static_cast<std::uint32_t>(digit);
    }
    return std::to_string(static_cast<std::int32_t>(value));
}

} // namespace

bool GetKeyValue(Registry &registry,
                 Registry::Root root,
                 const std::string &keyPath,
                 const std::string &valueName,
                 std::string &value)
{
    Registry::Key key = 0;
    if (registry.openKey(root, keyPath, KeyAllAccess, key) != 0) {
        value.clear();
        return false;
    }
    std::vector<unsigned char> buffer(BufferSize, 0);
    std::uint32_t size = BufferSize;
    std::uint32_t type = 0;
    if (registry.queryValue(key, valueName, type, buffer, size) != 0) {
        value.clear();
        registry.closeKey(key);
        return false;
    }
    if (size > buffer.size())
        size = static_cast<std::uint32_t>(buffer.size());
    std::string raw(buffer.begin(), buffer.begin() + size);
    if (!raw.empty() && raw.back() == '\0')
        raw.pop_back();

    if (type == RegSz) {
        value = raw;
    } else if (type == RegDword) {
        // Digits of each byte without zero padding: a byte below 16 gives one digit.
        std::string hex;
        for (auto it = raw.rbegin(); it != raw.rend(); ++it) {
            char digits[3];
            std::snprintf(digits, sizeof digits, "%X", static_cast<unsigned char>(*it));
            hex += digits;
        }
        if (hex.size() > 8)
            hex = hex.substr(hex.size() - 8);
        value = hexToDecimalText(hex);
    }
    registry.closeKey(key);
    return true;
}

std::optional<std::string>
findSysInfoProgram(Registry &registry, const std::function<bool(const std::string &)> &fileExists)
{
    std::string path;
    if (GetKeyValue(registry,
                    Registry::Root::LocalMachine,
                    "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO",
                    "PATH",
                    path))
        return path;
    if (GetKeyValue(registry,
                    Registry::Root::LocalMachine,
                    "SOFTWARE\\Microsoft\\Shared Tools Location",
                    "MSINFO",
                    path)) {
        path += "\\MSINFO32.EXE";
        if (fileExists(path))
            return path;
    }
    return std::nullopt;
}

} // namespace vorlane
