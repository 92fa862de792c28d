#include "frame/settings.h"

#include "platform/memory_file_system.h"
#include "text/decode.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

constexpr const char* Path = "\\program\\Zandor.ini";

struct Settings : ::testing::Test {
    MemoryFileSystem files;
    ProfileFiles profiles{files};

    Settings() { files.put("\\program\\anchor", ""); }
    std::string read(std::string_view key) { return profiles.ReadIniValue("General", key, Path); }
    bool write(std::string_view key, std::string_view value) {
        return profiles.WriteIniValue("General", key, value, Path);
    }
    std::string fileAfter(std::string_view before, std::string_view key, std::string_view value) {
        files.put(Path, before);
        EXPECT_TRUE(write(key, value));
        EXPECT_EQ(profiles.ReadIniValue("General", key, Path), value);
        return files.get(Path).value_or("none");
    }
};

TEST_F(Settings, ValuesAreReadAsAProfileFileHoldsThem) {
    files.put(Path, "Early=before any section\r\n"
                    "[Other]\r\nPlain=other\r\n"
                    "  [general]  \r\n"
                    "Plain=1\r\n"
                    "PLAIN=a second one\r\n"
                    " Blanks \t=\t  a b  \t\n"
                    "; Comment=1\r\n"
                    ";Comment=2\r\n"
                    "Double=\" in quotes \"\r"
                    "Single='x'\r\n"
                    "Half=\"x\r\n"
                    "Mixed=\"x'\r\n"
                    "Twice=\"\"x\"\"\r\n"
                    "Equals=a=b\r\n"
                    "Semicolon=a ; b\r\n"
                    "Empty=\r\n"
                    "no entry\r\n"
                    "=nothing\r\n"
                    "Accent=caf\xE9\r\n"
                    "[Third]\r\n"
                    "[General]\r\n"
                    "Late=in a section of the same name\r\n"
                    "Last=z");
    const struct {
        std::string_view key, value;
    } cases[] = {
        {"Plain", "1"},     {"pLAIN", "1"},    {"Blanks", "a b"},
        {"Comment", ""},    {"; Comment", ""}, {"Double", "in quotes"},
        {"Single", "x"},    {"Half", "\"x"},   {"Mixed", "\"x'"},
        {"Twice", "\"x\""}, {"Equals", "a=b"}, {"Semicolon", "a ; b"},
        {"Empty", ""},      {"no entry", ""},  {"", ""},
        {"Accent", "café"}, {"Early", ""},     {"Late", ""},
        {"Last", ""},       {"Missing", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(read(c.key), c.value) << c.key;
    EXPECT_EQ(profiles.ReadIniValue("OTHER", "plain", Path), "other");
    EXPECT_EQ(profiles.ReadIniValue("Absent", "Plain", Path), "");
    EXPECT_EQ(profiles.ReadIniValue("General", "Plain", "\\program\\absent.ini"), "");
}

TEST_F(Settings, AValueIsCutAt1023Characters) {
    files.put(Path, "\xEF\xBB\xBF[General]\r\nLong=" + std::string(1022, 'a') + "éé\r\n");
    EXPECT_EQ(read("Long"), std::string(1022, 'a') + "é");
}

TEST_F(Settings, EveryEncodingIsReadAndKept) {
    for (const TextEncoding encoding : {TextEncoding::Windows1252, TextEncoding::Utf8, TextEncoding::Utf16}) {
        const std::string before = "; été\r\n[General]\r\nLangage=Français\r\n\r\n[Fin]\r\nz=ü\r\n";
        const std::string after = "; été\r\n[General]\r\nLangage=Español\r\n\r\n[Fin]\r\nz=ü\r\n";
        files.put(Path, encodeText(before, encoding));
        EXPECT_EQ(read("Langage"), "Français");
        EXPECT_TRUE(write("Langage", "Español"));
        EXPECT_EQ(files.get(Path), encodeText(after, encoding));
    }
}

TEST_F(Settings, AWriteLeavesEveryOtherLineAsItStands) {
    const struct {
        std::string_view before, key, value, after;
    } cases[] = {
        {"[General]\r\na=1\r\nb=2\r\n", "A", "3", "[General]\r\na=3\r\nb=2\r\n"},
        {"[General]\n a = 1\nb=2", "a", "3", "[General]\n a =3\nb=2"},
        {"[General]\r\na=1\r\na=2\r\n", "a", "3", "[General]\r\na=3\r\na=2\r\n"},
        {"[General]\r\n;a=1\r\n", "a", "3", "[General]\r\n;a=1\r\na=3\r\n"},
        {"[General]\r\na=1\r\n\r\n \r\n[Other]\r\na=5\r\n", "b", "2",
         "[General]\r\na=1\r\nb=2\r\n\r\n \r\n[Other]\r\na=5\r\n"},
        {"[General]\r\n[Other]\r\n", "b", "2", "[General]\r\nb=2\r\n[Other]\r\n"},
        {"[General]", "b", "2", "[General]\r\nb=2\r\n"},
        {"[General]\na=1", "b", "2", "[General]\na=1\r\nb=2\r\n"},
        {"", "b", "2", "[General]\r\nb=2\r\n"},
        {"[Other]\r\nb=1", "b", "2", "[Other]\r\nb=1\r\n[General]\r\nb=2\r\n"},
        {"[Other]\r\nb=1\r\n\r\n", "b", "2", "[Other]\r\nb=1\r\n\r\n[General]\r\nb=2\r\n"},
        {"b=1\r\n[GENERAL]\r\nx\x81\x8D=\xFF\xFE\r\n", "b", "2",
         "b=1\r\n[GENERAL]\r\nx\x81\x8D=\xFF\xFE\r\nb=2\r\n"},
        {"\xEF\xBB\xBF[General]\r\nbad=\xE9\r\n", "b", "2", "\xEF\xBB\xBF[General]\r\nbad=\xE9\r\nb=2\r\n"},
        {"[General]\r\na=1\r\n", "a", "", "[General]\r\na=\r\n"},
        {"[General]\r\n", "a", "'quoted'", "[General]\r\na=\"'quoted'\"\r\n"},
        {"[General]\r\n", "a", "x=[y];z", "[General]\r\na=x=[y];z\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(fileAfter(c.before, c.key, c.value), c.after) << c.before;
}

TEST_F(Settings, CharactersThatWindows1252LacksAreKept) {
    EXPECT_EQ(fileAfter("[General]\r\nLangage=Fran\xE7"
                        "ais\r\n",
                        "Backup", "/home/łódź/"),
              "\xEF\xBB\xBF[General]\r\nLangage=Français\r\nBackup=/home/łódź/\r\n");
    EXPECT_EQ(read("Langage"), "Français");
}

TEST_F(Settings, AMissingFileIsMadeAndNothingIsWrittenTwice) {
    EXPECT_TRUE(write("a", "1"));
    EXPECT_EQ(files.get(Path), "[General]\r\na=1\r\n");
    files.put(Path, "[General]\r\na=\"1\"\r\n");
    files.log.clear();
    EXPECT_TRUE(write("A", "1"));
    EXPECT_EQ(files.get(Path), "[General]\r\na=\"1\"\r\n");
    for (const std::string& call : files.log)
        EXPECT_FALSE(call.starts_with("write")) << call;
    EXPECT_TRUE(write("b", "")); // a key that isn't there is made even when it holds nothing
    EXPECT_EQ(files.get(Path), "[General]\r\na=\"1\"\r\nb=\r\n");
}

TEST_F(Settings, ALineBreakCannotGetIntoTheFile) {
    files.put(Path, "[General]\r\na=1\r\n");
    EXPECT_FALSE(
        profiles.WriteIniValues({{"General", "a", "2"}, {"General", "b", "x\r\n[Other]\r\n"}}, Path));
    EXPECT_EQ(files.get(Path), "[General]\r\na=1\r\n");
}

TEST_F(Settings, WhatAnotherProgramWritesShowsAtTheNextRead) {
    files.put(Path, "[General]\r\na=1\r\n");
    EXPECT_EQ(read("a"), "1");
    files.put(Path, "[General]\r\na=2\r\n"); // the same size
    EXPECT_EQ(read("a"), "2");
    files.deleteFile(Path);
    EXPECT_EQ(read("a"), "");
    files.put(Path, "[General]\r\na=3\r\n");
    EXPECT_EQ(read("a"), "3");
    EXPECT_TRUE(write("a", "4"));
    EXPECT_EQ(read("a"), "4");
}

TEST_F(Settings, AFileThatDoesNotChangeIsReadOnce) {
    files.put(Path, "[General]\r\na=1\r\n");
    read("a");
    files.log.clear();
    read("b");
    for (const std::string& call : files.log)
        EXPECT_FALSE(call.starts_with("read")) << call;
}

TEST_F(Settings, AFileThatIsTooLargeHasNoValuesAndIsNotWrittenOver) {
    const std::string most = "[General]\r\na=1\r\n" + std::string(LargestProfile - 16, '\n');
    for (const std::string& bytes : {most, most + '\n'}) {
        files.put(Path, bytes);
        const bool isTooLarge = bytes.size() > LargestProfile;
        EXPECT_EQ(isProfileTooLarge(files, Path), isTooLarge);
        EXPECT_EQ(read("a"), isTooLarge ? "" : "1");
        EXPECT_EQ(write("a", "2"), !isTooLarge);
        EXPECT_EQ(files.get(Path) == bytes, isTooLarge);
    }
}

TEST_F(Settings, ADiskThatFailsAtAnyCallLosesNoSetting) {
    const std::string before = "[General]\r\na=1\r\nb=2\r\n";
    for (const bool andAllAfter : {false, true})
        for (int call = 1;; ++call) {
            MemoryFileSystem disk;
            ProfileFiles kept(disk);
            disk.put(Path, before);
            disk.failAt(call, andAllAfter);
            const bool written = kept.WriteIniValues({{"General", "a", "3"}, {"Other", "c", "4"}}, Path);
            const bool failed = disk.failed();
            disk.failAt(0);
            EXPECT_EQ(disk.get(Path), written ? "[General]\r\na=3\r\nb=2\r\n[Other]\r\nc=4\r\n" : before)
                << call;
            EXPECT_EQ(kept.ReadIniValue("General", "a", Path), written ? "3" : "1") << call;
            if (!failed)
                break;
            ASSERT_LT(call, 50);
        }
}

TEST_F(Settings, ADefaultFileHoldsEveryKeyInItsPlace) {
    WriteDefaultIni(files, Path, "Zandor 1.00", "\\program");
    const std::string expected =
        ";Informations de configuration de Zandor 1.00 un éditeur de rames pour Microsoft Train Simulator\r\n"
        "\r\n[General]\r\nInst=1\r\nAssociate=0\r\nPrintName=1\r\nPrintNumber=0\r\nControlThumbnails=0\r\n"
        "NoAlertCoupling=0\r\nPassIsBadCoupling=0\r\nPrintGreen=1\r\nOptimize=1\r\nsfCanvas=0\r\n"
        "Color1=12582847\r\nColor2=8388608\r\nColor3=12582911\r\nColor4=128\r\nColor5=16777151\r\nColor6="
        "0\r\n"
        "Color7=16777151\r\nColor8=8388608\r\nColor9=15713940\r\nNewFile=1\r\nBakFile=1\r\nCPBakFile=1\r\n"
        "Backup=" +
        files.nativePath("\\program\\Backup\\") +
        "\r\nInstallDir=\r\nTStoreDir=\r\nInitialiseMSTS=1\r\nLangage=Français\r\n\r\n";
    EXPECT_EQ(files.get(Path), encodeWindows1252(expected));
}

// Cut off anywhere, a new file still means what it meant.
TEST_F(Settings, AKeyThatIsMissingHasItsDefault) {
    WriteDefaultIni(files, Path, "Zandor 1.00", "\\program");
    const std::string whole = files.get(Path).value_or("");
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        files.put(Path, whole.substr(0, size));
        for (const Setting& row : GeneralSettings)
            if (row.kind == SettingKind::NumericFlag || row.kind == SettingKind::ExactFlag) {
                EXPECT_EQ(readFlag(profiles, row.key, Path), row.fallback == "1") << row.key << size;
            }
    }
    files.deleteFile(Path);
    EXPECT_EQ(readSetting(profiles, "color7", Path), "16777151");
    EXPECT_EQ(readSetting(profiles, "Langage", Path), "Français");
    EXPECT_EQ(readSetting(profiles, "InstallDir", Path), "");
    files.put(Path, "[General]\r\nBakFile=\r\nColor7=\r\n");
    EXPECT_FALSE(readFlag(profiles, "BakFile", Path)) << "empty is what the file says";
    EXPECT_EQ(readSetting(profiles, "Color7", Path), "");
}

TEST_F(Settings, ADefaultFileKeepsAProgramFolderOfAnyName) {
    WriteDefaultIni(files, Path, "Zandor 1.00", "\\łódź");
    EXPECT_EQ(read("Backup"), files.nativePath("\\łódź\\Backup\\"));
    EXPECT_EQ(read("Langage"), "Français");
}

TEST_F(Settings, ABooleanIsReadInTwoWays) {
    const struct {
        std::string_view value;
        bool numeric, exact;
    } cases[] = {{"1", true, true},      {"1.0", true, false}, {"1 yes", true, false}, {"+1", true, false},
                 {"0", false, false},    {"-1", false, false}, {"2", false, false},    {"", false, false},
                 {"true", false, false}, {" 1 ", true, true},  {"\"1\"", true, true},  {"1.5", false, false}};
    for (const auto& c : cases) {
        const std::string value(c.value);
        files.put(Path, "[General]\r\nBakFile=" + value + "\r\nOptimize=" + value + "\r\n");
        EXPECT_EQ(readFlag(profiles, "bakfile", Path), c.numeric) << value;
        EXPECT_EQ(readFlag(profiles, "Optimize", Path), c.exact) << value;
    }
}

} // namespace
} // namespace zandor
