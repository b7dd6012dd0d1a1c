#include "platform/AboutInfo.h"
#include "platform/SysInfo.h"

#include <gtest/gtest.h>

#include <map>

namespace vorlane {
namespace {

// A registry holding a few values, counting the calls made on it.
class FakeRegistry : public Registry
{
public:
    struct Value
    {
        std::uint32_t type;
        std::vector<unsigned char> bytes;
    };
    std::map<std::pair<std::string, std::string>, Value> values;
    std::map<std::string, Key> keys;
    std::uint32_t lastAccess = 0;
    int opened = 0;
    int closed = 0;

    long openKey(Root, const std::string &path, std::uint32_t access, Key &key) override
    {
        lastAccess = access;
        for (auto &[name, value] : values)
            if (name.first == path) {
                key = 100 + static_cast<Key>(++opened);
                keys[path] = key;
                return 0;
            }
        return 2;
    }
    long queryValue(Key key,
                    const std::string &name,
                    std::uint32_t &type,
                    std::vector<unsigned char> &data,
                    std::uint32_t &size) override
    {
        for (auto &[path, k] : keys)
            if (k == key) {
                auto it = values.find({path, name});
                if (it == values.end())
                    return 2;
                type = it->second.type;
                EXPECT_EQ(size, 1024u);
                std::copy(it->second.bytes.begin(), it->second.bytes.end(), data.begin());
                size = static_cast<std::uint32_t>(it->second.bytes.size());
                return 0;
            }
        return 6;
    }
    long closeKey(Key) override
    {
        ++closed;
        return 0;
    }
};

std::vector<unsigned char> text(const std::string &s, bool nul = true)
{
    std::vector<unsigned char> bytes(s.begin(), s.end());
    if (nul)
        bytes.push_back(0);
    return bytes;
}

TEST(GetKeyValue, ReadsAStringWithoutItsTrailingNul)
{
    FakeRegistry reg;
    reg.values[{"K", "PATH"}] = {RegSz, text("C:\\msinfo32.exe")};
    std::string value = "old";
    EXPECT_TRUE(GetKeyValue(reg, Registry::Root::LocalMachine, "K", "PATH", value));
    EXPECT_EQ(value, "C:\\msinfo32.exe");
    EXPECT_EQ(reg.lastAccess, 0x2003Fu);
    EXPECT_EQ(reg.closed, 1);
}

TEST(GetKeyValue, ReadsADwordLastByteFirstWithoutZeroPadding)
{
    FakeRegistry reg;
    // 0x0A0B0C0D stored little-endian: 0D 0C 0B 0A -> "A" "B" "C" "D" -> &hABCD = 43981.
    reg.values[{"K", "N"}] = {RegDword, {0x0D, 0x0C, 0x0B, 0x0A}};
    // 0x12 0x34 with a high byte of 0x01: 34 12 01 05 -> "5" "1" "12" "34" = &h511234.
    reg.values[{"K", "M"}] = {RegDword, {0x34, 0x12, 0x01, 0x05}};
    // A last byte of 0 counts as a trailing NUL and is dropped: 01 00 00 00 -> "0" "0" "1".
    reg.values[{"K", "One"}] = {RegDword, {0x01, 0x00, 0x00, 0x00}};
    std::string value;
    EXPECT_TRUE(GetKeyValue(reg, Registry::Root::LocalMachine, "K", "N", value));
    EXPECT_EQ(value, "43981");
    EXPECT_TRUE(GetKeyValue(reg, Registry::Root::LocalMachine, "K", "M", value));
    EXPECT_EQ(value, std::to_string(0x511234));
    EXPECT_TRUE(GetKeyValue(reg, Registry::Root::LocalMachine, "K", "One", value));
    EXPECT_EQ(value, "1");
    EXPECT_EQ(reg.closed, 3);
}

TEST(GetKeyValue, OtherTypesLeaveTheValueUnchanged)
{
    FakeRegistry reg;
    reg.values[{"K", "B"}] = {3, {1, 2, 3}};
    std::string value = "kept";
    EXPECT_TRUE(GetKeyValue(reg, Registry::Root::LocalMachine, "K", "B", value));
    EXPECT_EQ(value, "kept");
    EXPECT_EQ(reg.closed, 1);
}

TEST(GetKeyValue, MissingKeyOrValueGivesFalseAndEmpty)
{
    FakeRegistry reg;
    reg.values[{"K", "PATH"}] = {RegSz, text("x")};
    std::string value = "old";
    EXPECT_FALSE(GetKeyValue(reg, Registry::Root::LocalMachine, "Nope", "PATH", value));
    EXPECT_EQ(value, "");
    value = "old";
    EXPECT_FALSE(GetKeyValue(reg, Registry::Root::LocalMachine, "K", "Other", value));
    EXPECT_EQ(value, "");
    EXPECT_EQ(reg.closed, 1); // the opened key is closed even when the query fails
}

TEST(SysInfo, PrefersThePathValue)
{
    FakeRegistry reg;
    reg.values[{"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"}] = {RegSz, text("C:\\a.exe")};
    auto path = findSysInfoProgram(reg, [](const std::string &) { return false; });
    ASSERT_TRUE(path);
    EXPECT_EQ(*path, "C:\\a.exe");
}

TEST(SysInfo, FallsBackToTheToolsLocationWhenTheFileExists)
{
    FakeRegistry reg;
    reg.values[{"SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO"}] = {RegSz, text("C:\\T")};
    std::string asked;
    auto path = findSysInfoProgram(reg, [&](const std::string &p) {
        asked = p;
        return true;
    });
    ASSERT_TRUE(path);
    EXPECT_EQ(*path, "C:\\T\\MSINFO32.EXE");
    EXPECT_EQ(asked, "C:\\T\\MSINFO32.EXE");
    EXPECT_FALSE(findSysInfoProgram(reg, [](const std::string &) { return false; }));
}

TEST(SysInfo, NothingFoundWithAnEmptyRegistry)
{
    auto reg = systemRegistry();
    bool askedForFile = false;
    EXPECT_FALSE(findSysInfoProgram(*reg, [&](const std::string &) {
        askedForFile = true;
        return true;
    }));
    EXPECT_FALSE(askedForFile);
    EXPECT_STREQ(SysInfoUnavailable, "System Information Is Unavailable At This Time");
}

TEST(About, VersionHasNoZeroPadding)
{
    EXPECT_EQ(versionCaption(2, 0, 11), "Version 2.0.11");
    EXPECT_EQ(versionCaption(1, 10, 0), "Version 1.10.0");
}

} // namespace
} // namespace vorlane
