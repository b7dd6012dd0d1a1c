#include "platform/Registry.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vorlane {

namespace {

#ifdef _WIN32
class WindowsRegistry : public Registry
{
public:
    long openKey(Root root, const std::string &path, std::uint32_t access, Key &key) override
    {
        HKEY handle = nullptr;
        const HKEY base = root == Root::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
        const LONG rc = RegOpenKeyExA(base, path.c_str(), 0, access, &handle);
        key = reinterpret_cast<Key>(handle);
        return rc;
    }
    long queryValue(Key key,
                    const std::string &name,
                    std::uint32_t &type,
                    std::vector<unsigned char> &data,
                    std::uint32_t &size) override
    {
        DWORD valueType = 0;
        DWORD valueSize = size;
        data.resize(size);
        const LONG rc = RegQueryValueExA(reinterpret_cast<HKEY>(key),
                                         name.c_str(),
                                         nullptr,
                                         &valueType,
                                         data.data(),
                                         &valueSize);
        type = valueType;
        size = valueSize;
        return rc;
    }
    long closeKey(Key key) override { return RegCloseKey(reinterpret_cast<HKEY>(key)); }
};
#else
// No registry on this system: every key is missing.
class EmptyRegistry : public Registry
{
public:
    long openKey(Root, const std::string &, std::uint32_t, Key &key) override
    {
        key = 0;
        return 2; // ERROR_FILE_NOT_FOUND
    }
    long queryValue(Key,
                    const std::string &,
                    std::uint32_t &,
                    std::vector<unsigned char> &,
                    std::uint32_t &size) override
    {
        size = 0;
        return 2;
    }
    long closeKey(Key) override { return 0; }
};
#endif

} // namespace

std::unique_ptr<Registry> systemRegistry()
{
#ifdef _WIN32
    return std::make_unique<WindowsRegistry>();
#else
    return std::make_unique<EmptyRegistry>();
#endif
}

} // namespace vorlane
