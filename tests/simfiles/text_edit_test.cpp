#include "simfiles/text_edit.h"

#include "simfiles/sim_fixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace zandor {

namespace {

// "path|key|value" of every key, and every change that one key's value makes.
struct KeyValue {
    std::string name, value;
    TextSpan place;
    bool operator==(const KeyValue& other) const { return name == other.name && value == other.value; }
};

std::vector<KeyValue> valuesOf(SimReader& reader, std::string_view path, std::string_view bytes) {
    EXPECT_TRUE(reader.readBytes(path, bytes).accepted());
    std::vector<KeyValue> values;
    for (const SimKey& key : reader.SimKeys)
        values.push_back(
            {std::string(key.Path) + "|" + std::string(key.Key), std::string(key.Value), key.place});
    return values;
}

std::string edited(EditableText file, TextSpan place, std::string text) {
    const TextEdit edits[] = {{place, std::move(text)}};
    EXPECT_TRUE(replaceSpans(file.text, edits));
    return file.encoded().value_or("");
}

// Each value put back where it stands changes no byte, and another one put there is read in its place and
// changes no other key. Returns how many values were changed.
int checkEveryValue(SimReader& reader, std::string_view path, const std::string& bytes) {
    const std::vector<KeyValue> before = valuesOf(reader, path, bytes);
    const EditableText file = editableText(bytes);
    int changed = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        SCOPED_TRACE(std::string(path) + ": " + before[i].name);
        const TextSpan place = before[i].place;
        if (place.nowhere() || before[i].name.find("comment") != std::string::npos)
            continue; // a key in a comment is part of its text, too
        const std::string old = file.text.substr(place.begin, place.size());
        EXPECT_EQ(edited(file, place, old), bytes);
        std::vector<KeyValue> wanted = before;
        const bool quoted = old.starts_with('"');
        wanted[i].value = quoted && before[i].value.starts_with('"') ? "\"New\"" : "New";
        if (!old.empty() && before[i].value.starts_with(old + " ")) // words behind the bracket
            wanted[i].value += before[i].value.substr(old.size());
        const std::string with = edited(file, place, quoted ? "\"New\"" : old.empty() ? " New " : "New");
        std::vector<KeyValue> after = valuesOf(reader, path, with);
        if (quoted && after.size() == wanted.size() && after[i].value == "\"New\"")
            wanted[i].value = "\"New\""; // joined pieces have become one
        EXPECT_TRUE(std::equal(after.begin(), after.end(), wanted.begin(), wanted.end()));
        ++changed;
    }
    return changed;
}

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace

TEST_F(SimFixture, EveryValueOfTheDemonstrationCanBeChangedInItsPlace) {
    int changed = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZANDOR_SOURCE_DIR "/demo")) {
        const std::string path = entry.path().string();
        if (entry.is_regular_file() && kindOfFile(path) != FileKind::Unknown)
            if (const std::string bytes = bytesOf(path); reader.readBytes(path, bytes).accepted())
                changed += checkEveryValue(reader, path, bytes);
    }
    EXPECT_GT(changed, 1000);
}

TEST_F(SimFixture, ValuesInOddPlacesCanBeChangedThere) {
    for (const std::string body :
         {"W (\nD ( \"a\" +\n\t\"b\" +\r\n\"c\" )\nX ( 1 )\n)", "W (\nD (\n\"a\" +\n\"b\"\n)\nX ( 1 )\n)",
          "W (\nD (\n\"a\" )\nX ( 1 )\n)", "W\n\n(\nX ( 1 )\n)", "W (\nMass\n( 30t ) word\nX ( 1 )\n)",
          "W (\nL ( 1\n2 3\n4\n)\nY ( 2 )\n)", "Wagon (\n Car\n\tType ( defaut: 1 )\n)",
          "Wagon ( Car  Type ( \"a (b)\" ) X ( ) Y(2)\nZ ( 1 )\n)"})
        for (const std::string& bytes : {signed_(body), utf16(signed_(body)) + "\r"})
            EXPECT_GE(checkEveryValue(reader, "x.wag", bytes), 2) << body;
}

TEST_F(SimFixture, AHitsPlaceLeavesItsComment) {
    const std::string text = signed_("Wagon ( A\n\tMass ( 30t # heavy )\n)");
    ASSERT_TRUE(reader.readBytes("x.wag", text, {"Wagon", "Mass"}).found);
    EXPECT_EQ(edited(editableText(text), reader.SimHits[0].place, "9t"),
              signed_("Wagon ( A\n\tMass ( 9t # heavy )\n)"));
}

TEST_F(SimFixture, AnEditIsWrittenWholeOrRefused) {
    const std::string plain = "a\tb\r\nc\xE9";
    struct Row {
        std::vector<TextEdit> edits;
        EditOutcome outcome;
        std::string bytes;
    };
    for (const Row& row :
         {Row{{{{0, 1}, "x"}, {{1, 1}, "\xE2\x82\xAC"}, {{5, 8}, ""}}, EditOutcome::Written, "x\x80\tb\r\n"},
          Row{{{{0, 1}, "a"}}, EditOutcome::Same, plain},
          Row{{{{0, 3}, "x", "a b"}}, EditOutcome::Written, "x\r\nc\xE9"},
          Row{{{{0, 3}, "x", "a c"}}, EditOutcome::Refused, plain},
          Row{{{{0, 2}, "x"}, {{1, 3}, "y"}}, EditOutcome::Refused, plain},
          Row{{{{0, 9}, "x"}}, EditOutcome::Refused, plain},
          Row{{{{0, 1}, "\xD0\x96"}}, EditOutcome::Refused, plain},
          Row{{{{6, 7}, ""}}, EditOutcome::Refused, plain},
          Row{{{{0, 5}, "\xC3\xBF\xC3\xBE"}}, EditOutcome::Refused, plain}}) {
        files.put("\\a.wag", plain);
        files.setAttributes("\\a.wag", {.readOnly = true});
        EXPECT_EQ(editFile(files, "\\a.wag", row.edits), row.outcome);
        EXPECT_EQ(files.get("\\a.wag"), row.bytes);
        EXPECT_TRUE(files.attributes("\\a.wag").readOnly);
    }
    const TextEdit edits[] = {{{0, 1}, "x"}};
    EXPECT_EQ(editFile(files, "\\none.wag", edits), EditOutcome::Failed);
}

TEST_F(SimFixture, LinesAreCountedAsTheReaderDoes) {
    const std::string_view text = "1\r2\n\r\n4";
    const TextSpan spans[] = {{0, 2}, {2, 4}, {4, 6}, {6, 7}, {7, 7}};
    for (int line = 1; line <= 5; ++line)
        EXPECT_EQ(lineSpan(text, line), spans[line - 1]) << line;
}

} // namespace zandor
