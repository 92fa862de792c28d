#include "platform/registry.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace zandor {
namespace {

constexpr const char* kSystem = R"(WINE REGISTRY Version 2
;; All keys relative to \\Machine

#arch=win64

[Software\\Microsoft\\Microsoft Games\\Train Simulator\\1.0] 1400000000
#time=1d0a1b2c3d4e5f6
"EXE Path"="C:\\wrong view"
"Only Plain"="plain"

[Software\\Classes\\.con] 1400000000
@="MachineFile"
"Kind"="machine"

[Software\\Wow6432Node\\Microsoft\\Microsoft Games\\Train Simulator\\1.0] 1400000000
"EXE Path"="C:\\Program Files (x86)\\Train Simulator"
"Accents"="\x00e9t\xe9\x20ac\xd83d\xde82\xd83d!"
"Escapes"="a\"b\tc\001"
"Quote\"d"="found"
"Expand"=str(2):"%ProgramFiles%\\x"
"Long List"=hex(2):43,00,3a,00,5c,00,\
  e9,00,ac,20,3d,d8,\
  82,de,00,00
"After List"="here"
"Text List"=hex(1):41,00,42,00,00,00
"Number"=dword:00000001
"Cut"="no end
"Empty"=""

[Software\\Bracket\]ed\\Key] 1400000000
"a"="b"
)";

constexpr const char* kUser = R"(WINE REGISTRY Version 2

[Software\\Classes\\.con]
@="UserFile"

[Software\\Own] 1
"Value"="of the user"
)";

class RegistryTest : public testing::Test {
  protected:
    RegistryTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "registry-XXXXXX").string();
        prefix = mkdtemp(pattern.data());
        std::ofstream(prefix + "/system.reg") << kSystem;
        std::ofstream(prefix + "/user.reg") << kUser;
        registry = makeSystemRegistry(prefix);
    }
    ~RegistryTest() override { std::filesystem::remove_all(prefix); }

    std::string prefix;
    std::unique_ptr<Registry> registry;
};

TEST_F(RegistryTest, ValuesAreFoundAndDecoded) {
    struct Case {
        RegistryHive hive;
        const char* key;
        const char* name;
        const char* text;
    };
    constexpr auto Machine = RegistryHive::LocalMachine;
    const char* game = "SOFTWARE\\Microsoft\\Microsoft Games\\Train Simulator\\1.0";
    const Case cases[] = {
        {Machine, game, "exe path", "C:\\Program Files (x86)\\Train Simulator"},
        {Machine, game, "Only Plain", "plain"},
        {Machine, game, "Accents", "été€🚂\xEF\xBF\xBD!"},
        {Machine, game, "Escapes", "a\"b\tc\x01"},
        {Machine, game, "Quote\"d", "found"},
        {Machine, game, "Expand", "%ProgramFiles%\\x"},
        {Machine, game, "Long List", "C:\\é€🚂"},
        {Machine, game, "After List", "here"},
        {Machine, game, "Text List", "AB"},
        {Machine, game, "Number", ""},
        {Machine, game, "Cut", ""},
        {Machine, game, "Empty", ""},
        {Machine, game, "None", ""},
        {Machine, "SOFTWARE\\Microsoft", "EXE Path", ""},
        {Machine, "software\\wow6432node\\microsoft\\microsoft games\\train simulator\\1.0\\", "After List",
         "here"},
        {Machine, "Software\\Bracket]ed\\Key", "a", "b"},
        {Machine, "Software\\Own", "Value", ""},
        {RegistryHive::CurrentUser, "Software\\Own", "Value", "of the user"},
        {RegistryHive::ClassesRoot, ".CON", "", "UserFile"},
        {RegistryHive::ClassesRoot, ".con", "Kind", "machine"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ReadRegistryString(*registry, c.hive, c.key, c.name), c.text) << c.key << " " << c.name;
}

TEST_F(RegistryTest, LongValuesAreCutBetweenCharacters) {
    std::string value(1023, 'a');
    std::ofstream(prefix + "/system.reg") << "[Software\\\\A] 1\n\"v\"=\"" << value << "\\x00e9bc\"\n";
    EXPECT_EQ(registry->readString(RegistryHive::LocalMachine, "Software\\A", "v"), value);
}

TEST_F(RegistryTest, MissingOrCutFilesHaveNoValues) {
    for (std::size_t length = std::string_view(kSystem).size(); length > 0;) {
        std::filesystem::resize_file(prefix + "/system.reg", --length);
        const std::string found =
            registry->readString(RegistryHive::LocalMachine,
                                 "Software\\Microsoft\\Microsoft Games\\Train Simulator\\1.0", "Only Plain");
        ASSERT_TRUE(found.empty() || found == "plain") << length;
    }
    for (const std::string& other : {std::string(), prefix + "/none"})
        EXPECT_EQ(makeSystemRegistry(other)->readString(RegistryHive::ClassesRoot, ".con", ""), "");
}

} // namespace
} // namespace zandor
