#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vorlane {

// The few registry calls the About box needs, shaped like RegOpenKeyExA, RegQueryValueExA
// and RegCloseKey so that the Windows implementation is a thin pass-through. Results are
// the Win32 status codes: 0 for success.
class Registry
{
public:
    using Key = std::uintptr_t;
    enum class Root { LocalMachine, CurrentUser };

    virtual ~Registry() = default;
    virtual long openKey(Root root, const std::string &path, std::uint32_t access, Key &key) = 0;
    // Fills `data` (up to `size` bytes on entry; the bytes written on return) and `type`.
    virtual long queryValue(Key key,
                            const std::string &name,
                            std::uint32_t &type,
                            std::vector<unsigned char> &data,
                            std::uint32_t &size) = 0;
    virtual long closeKey(Key key) = 0;
};

inline constexpr std::uint32_t KeyAllAccess = 0x2003F;
inline constexpr std::uint32_t RegSz = 1;
inline constexpr std::uint32_t RegDword = 4;

// The system's registry on Windows; elsewhere a registry that holds nothing.
std::unique_ptr<Registry> systemRegistry();

} // namespace vorlane
