#include "verify/report.h"

#include "target_fixture.h"

namespace zandor {

struct Reports : TargetFixture {
    Reports() {
        results.DuplicateEntries = {{"A\\x.wag", {"B\\x.wag"}}, {"A\\y.wag", {"B\\y.wag", "C\\y|1.wag"}}};
        results.MissingEntries = {
            {MissingKind::Sound, "A\\Sound\\x.sms", "x.sms", "", {{"a.wav", "File ( \"a|2.wav\" )", 3}}},
            {MissingKind::Texture, "A\\{é}.s", "", "", {{"b.ace", "image ( b.ace )", 5}, {"c", "c", 6}}},
            {MissingKind::Texture, "A\\e.s", "", "", {{"A\\e.s", EmptyFileMark, 0}}}};
    }
};

namespace {

// Blanks that don't break are blanks here.
std::string plainOf(const Report& report) {
    constexpr std::string_view unbreakable = "\u00A0";
    std::string plain = plainText(report);
    for (std::size_t at = 0; (at = plain.find(unbreakable, at)) != std::string::npos;)
        plain.replace(at, unbreakable.size(), " ");
    return plain;
}

std::size_t countOf(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string_view::npos; at += part.size())
        ++count;
    return count;
}

// Brackets balanced, all ASCII, and every control word one of those that are written.
void checkRichText(std::string_view rich) {
    int depth = 0;
    for (std::size_t i = 0; i < rich.size(); ++i) {
        ASSERT_LT(static_cast<unsigned char>(rich[i]), 0x7F);
        if (rich[i] == '\\' && std::string_view("\\{}").find(rich[i + 1]) != std::string_view::npos)
            ++i;
        else if (rich[i] == '\\')
            ASSERT_TRUE(rich[i + 1] >= 'a' && rich[i + 1] <= 'z') << rich.substr(i, 20);
        else
            depth += rich[i] == '{' ? 1 : rich[i] == '}' ? -1 : 0;
        ASSERT_TRUE(depth > 0 || i + 3 >= rich.size()) << rich.substr(i);
    }
    EXPECT_EQ(depth, 0);
}

} // namespace

TEST_F(Reports, ListTheDuplicates) {
    const Report report = duplicatesReport(frame, results);
    EXPECT_TRUE(report.hasContent);
    EXPECT_EQ(plainOf(report), "2 fichiers dupliqués\r\n"
                               "« ..\\ » est le dossier TRAINSET du simulateur.\r\n"
                               "\r\n"
                               "Le fichier ..\\A\\x.wag se trouve dans deux dossiers.\r\n"
                               "L’autre fichier est :\r\n"
                               "   - ..\\B\\x.wag\r\n"
                               "Le fichier ..\\A\\y.wag se trouve dans plusieurs dossiers.\r\n"
                               "Les 2 autres fichiers sont :\r\n"
                               "   - ..\\B\\y.wag\r\n"
                               "   - ..\\C\\y|1.wag\r\n"
                               "\r\n"
                               "\r\n" +
                                   std::string(68, '_') + "\r\n");
    EXPECT_TRUE(report.paragraphs.front().centred && report.paragraphs.back().centred);
    EXPECT_FALSE(report.paragraphs[1].centred);
    EXPECT_EQ(report.paragraphs[0].runs[0].style, (TextStyle{true, true, false, TextColour::Red}));
    EXPECT_TRUE(report.paragraphs[1].runs[0].style.italic);
    EXPECT_EQ(report.paragraphs[3].runs[1].text, "A\\x.wag");
    EXPECT_TRUE(report.paragraphs[3].runs[1].style.bold);
    results.DuplicateEntries.clear();
    EXPECT_EQ(plainOf(duplicatesReport(frame, results)), "\r\n\r\nAucun fichier dupliqué\r\n");
    EXPECT_FALSE(duplicatesReport(frame, results).hasContent);
}

TEST_F(Reports, ListTheMissingTexturesThenTheSounds) {
    EXPECT_EQ(plainOf(missingReport(frame, results)),
              "3 textures manquantes\r\n\r\n"
              "Le fichier A\\{é}.s nomme 2 fichiers introuvables :\r\n"
              " - b.ace\r\n Ligne du fichier : image ( b.ace )\r\n   Fichier à rechercher :\r\nb.ace\r\n"
              "- c\r\n Ligne du fichier : c\r\n   Fichier à rechercher :\r\nc\r\n\r\n"
              "Le fichier A\\e.s nomme 1 fichier introuvable :\r\n"
              " - A\\e.s\r\n Le fichier « A\\e.s » est vide (0 octet).\r\n"
              "   Fichier à rechercher :\r\nA\\e.s\r\n\r\n\r\n\r\n" +
                  std::string(68, '_') +
                  "\r\nUn son manquant\r\n\r\n"
                  "Le fichier A\\Sound\\x.sms nomme 1 fichier introuvable :\r\n"
                  " - a.wav\r\n Ligne du fichier : File ( \"a|2.wav\" )\r\n"
                  "   Fichier à rechercher :\r\na.wav\r\n\r\n\r\n\r\n" +
                  std::string(68, '_') + "\r\n");
    results.MissingEntries.clear();
    EXPECT_TRUE(missingReport(frame, results).empty());
}

TEST_F(Reports, RichTextIsWellFormed) {
    results.MissingEntries[1].Items.push_back({"\\par}{\t😀\x01|1", "}", 9});
    const std::string rich = richText(missingReport(frame, results));
    checkRichText(rich);
    EXPECT_EQ(countOf(rich, "A\\\\\\{\\u233?\\}.s"), 1u);
    EXPECT_EQ(countOf(rich, "\\\\par\\}\\{\\tab \\u-10179?\\u-8704? |1"), 2u);
    EXPECT_TRUE(rich.starts_with("{\\rtf1\\ansi")) << rich;
    EXPECT_EQ(countOf(rich, "{\\b\\ul\\cf1 Un son manquant}"), 1u);
    checkRichText(richText(duplicatesReport(frame, results)));
    checkRichText(richText({}));
}

TEST_F(Reports, AreSavedByTheNameOfTheirFile) {
    const Report report = duplicatesReport(frame, results);
    EXPECT_TRUE(saveReport(files, "\\program\\list.RTF", report));
    EXPECT_EQ(files.get("\\program\\list.RTF"), richText(report));
    EXPECT_TRUE(saveReport(files, "\\program\\list.doc", report));
    EXPECT_EQ(files.get("\\program\\list.doc"), "\xEF\xBB\xBF" + plainText(report));
    EXPECT_FALSE(saveReport(files, "\\none\\list.txt", report));
}

} // namespace zandor
