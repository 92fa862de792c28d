#include "simfiles/shape_description.h"
#include "simfiles/sim_fixture.h"

#include "simfiles/stock_keys.h"

namespace zandor {

using Rows = std::vector<std::string>;

struct ParseCase {
    const char* name;
    const char* body; // from line 2 on
    Rows keys;
};

class KeysOfLines : public SimFixture, public ::testing::WithParamInterface<ParseCase> {};

TEST_P(KeysOfLines, KeepTheirPathsAndValues) {
    EXPECT_EQ(keysOf(GetParam().body), GetParam().keys);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, KeysOfLines,
    ::testing::Values(
        ParseCase{
            "Plain", "Wagon ( A\r\n\tType ( Freight )\r\n)\r\n", {"Wagon||A|2", "Wagon|Type|Freight|3"}},
        ParseCase{
            "LoneLineFeeds", "Wagon ( A\n\tType ( Freight )\n)\n", {"Wagon||A|2", "Wagon|Type|Freight|3"}},
        ParseCase{
            "SeveralOnALine", "W (\nA ( 1 ) B ( 2 ) C ( 3 )\n)", {"W|||2", "W|A|1|3", "W|B|2|3", "W|C|3|3"}},
        ParseCase{
            "NestedOnALine",
            "W (\nC ( Type ( Chain ) S ( L ( 1 2 ) ) )\nMass ( 3t )\n)",
            {"W|||2", "W\\C|||3", "W\\C|Type|Chain|3", "W\\C\\S|||3", "W\\C\\S|L|1 2|3", "W|Mass|3t|4"}},
        ParseCase{"ClosingsRunTogether",
                  "W (\nC ( Type ( Chain ))\nMass ( 3t )\n)",
                  {"W|||2", "W\\C|||3", "W\\C|Type|Chain|3", "W|Mass|3t|4"}},
        ParseCase{
            "NoBlankBeforeBracket", "W(\nMaxBrakeForce( 68.7kN )\n)", {"W|||2", "W|MaxBrakeForce|68.7kN|3"}},
        ParseCase{"QuotedBrackets",
                  "W (\nName ( \"A (B) C\" )\nX ( 1 )\n)",
                  {"W|||2", "W|Name|\"A (B) C\"|3", "W|X|1|4"}},
        ParseCase{
            "LoneQuote", "W (\nName ( 12\" gun )\nX ( 1 )\n)", {"W|||2", "W|Name|12\" gun|3", "W|X|1|4"}},
        ParseCase{"CommentHoldsAKey",
                  "W (\ncomment( Coupling ( ) )\nX ( 1 )\n)",
                  {"W|||2", "W\\comment||Coupling (|3", "W\\comment|Coupling||3", "W|X|1|4"}},
        ParseCase{
            "CommentHoldsCopyright",
            "W (\ncomment(All rights (c ) 2006 Maker )\nX ( 1 )\n)",
            {"W|||2", "W\\comment||All rights (c|3", "W\\comment|All rights|c 2006 Maker|3", "W|X|1|4"}},
        ParseCase{"NameBelowBracket",
                  "Wagon (\n  Car_A  \n\n Type ( Carriage )\n)",
                  {"Wagon||Car_A|3", "Wagon|Type|Carriage|5"}},
        ParseCase{"BracketBelowName",
                  "W (\nLights\n\n(\nX ( 1 )\n)\nY ( 2 )\n)",
                  {"W|||2", "W\\Lights||Lights|3", "W\\Lights|X|1|6", "W|Y|2|8"}},
        ParseCase{"ValueBelowName", "W (\nMass\n( 30t )\nY ( 2 )\n)", {"W|||2", "W|Mass|30t|3", "W|Y|2|5"}},
        ParseCase{"WordBehindAValueBelowItsName",
                  "W (\nMass\n( 30t ) word\nType ( Engine )\nY ( 2 )\n)",
                  {"W|||2", "W|Mass|30t|3", "W|Type|Engine|5", "W|Y|2|6"}},
        ParseCase{"NumbersBelow",
                  "W (\nLights ( 10\n1 2\n3 4\n)\nY ( 2 )\n)",
                  {"W|||2", "W\\Lights||10 1 2 3 4|5", "W|Y|2|7"}},
        ParseCase{
            "ValueOverTwoLines", "W (\nV ( a b\nc )\nY ( 2 )\n)", {"W|||2", "W\\V||a b c|3", "W|Y|2|5"}},
        ParseCase{"DescriptionJoined",
                  "E (\nDescription ( \"first\" +\n\"second\" +\n\"third\" )\nX ( 1 )\n)",
                  {"E|||2", "E|Description|firstsecondthird|3", "E|X|1|6"}},
        ParseCase{"DescriptionBelowItsBracket",
                  "E (\nDescription (\n\"one\" +\n\"two\"\n)\nX ( 1 )\n)",
                  {"E|||2", "E|Description|onetwo|4", "E|X|1|7"}},
        ParseCase{"DescriptionOnOneLineBelow",
                  "E (\nDescription (\n\"one\" )\nX ( 1 )\n)",
                  {"E|||2", "E|Description|one|4", "E|X|1|5"}},
        ParseCase{"TwoTextsWithoutPlus",
                  "E (\nDescription (\n\"one\"\n\"two\" )\nX ( 1 )\n)",
                  {"E|||2", "E|Description|\"one\"|4", "E|X|1|6"}},
        ParseCase{"TextAfterTheEndOfAText",
                  "E (\nDescription (\n\"a\" +\n\"b\"\n\"c\" )\nX ( 1 )\n)",
                  {"E|||2", "E|Description|ab|4", "E|X|1|7"}},
        ParseCase{"DescriptionAndItsBlockCloseTogether",
                  "W (\nD ( \"a\" +\n\"b\" ))\nV (\nX ( 1 )\n)",
                  {"W|||2", "W|D|ab|3", "V|||5", "V|X|1|6"}},
        ParseCase{"KeyBehindADescription",
                  "W (\nD ( \"a\" +\n\"b\" ) Mass ( 3t )\n)",
                  {"W|||2", "W|D|ab|3", "W|Mass|3t|4"}},
        ParseCase{
            "RemarkBehindAKey", "W (\nMass ( 31t ) heavy\nX ( 1 )\n)", {"W|||2", "W|Mass|31t|3", "W|X|1|4"}},
        ParseCase{"BracketsWithoutName", "W ( A\n( 12 )\nX ( 1 )\n)", {"W||A|2", "W|X|1|4"}},
        ParseCase{"ClosingBeforeKey",
                  "W (\nC (\nT ( 1 )\n) Mass ( 3t )\n)",
                  {"W|||2", "W\\C|||3", "W\\C|T|1|4", "W|Mass|3t|5"}},
        ParseCase{"ValueBeforeNextName",
                  "Wagon ( Car_A  Type ( Freight )\nX ( 1 )\n)",
                  {"Wagon||Car_A|2", "Wagon|Type|Freight|2", "Wagon|X|1|3"}},
        ParseCase{"SkipBelongsToTheKeyAbove",
                  "Wagon (\nSound ( a.sms )\nSkip ( b )\nX ( 1 )\n)",
                  {"Wagon|||2", "Wagon|Sound|a.sms|3", "Wagon\\Sound|Skip|b|4", "Wagon|X|1|5"}},
        ParseCase{"MisspeltDefault", "W (\nA ( defaut: 12 )\n)", {"W|||2", "W|A|12|3"}},
        ParseCase{"QuotedTextAtTheTop",
                  "comment ( \"a\" +\n\"b\" )\nW (\nX ( 1 )\n)\nc (\n\"a\" +\n\"b\"\n)\nd (\n\"a\" )\n"
                  "E (\nY ( 2 )\n)",
                  {"W|||4", "W|X|1|5", "E|||13", "E|Y|2|14"}},
        ParseCase{"QuotedNameBelowBracket",
                  "W (\n\"A B\"\nT (\n\"C D\"\n\n(* r *)\nX ( 1 )\n)\nD (\n\"e\"\n) Y ( 2 )\n)",
                  {"W||\"A B\"|3", "W\\T||\"C D\"|5", "W\\T|X|1|8", "W|D|\"e\"|11", "W|Y|2|12"}},
        ParseCase{"StrayClosing", ")\n)\nW (\nX ( 1 )\n)", {"W|||4", "W|X|1|5"}},
        ParseCase{"RemarkUpToItsStar",
                  "W (\n(* old\nA ( 1 )\nB (\n*)\nX ( 1 )\n(* o ) \nC ( 1 )\n*) Y ( 2 )\n(* o *) )\nV (\n)",
                  {"W|||2", "W|X|1|7", "W|Y|2|10", "V|||12"}},
        ParseCase{"RemarkUpToItsBracket",
                  "W (\n( a (b) c\nD ( 1 )\n) )\nV (\n(* a ) X ( 1 )\n(c) 2005 by me\n(\nwords\n)\n"
                  "( \" ) \" )\nY ( 2 ) ( a )\nZ ( 3 ) (* a\n*)\n)\nU (\n)",
                  {"W|||2", "V|||6", "V|X|1|7", "V|Y|2|13", "V|Z|3|14", "U|||17"}},
        ParseCase{"RemarkWithoutAnEnd",
                  "W (\n(* o\nX ( 1 )\n(* o\nA ( 1 )\n*)\n( o\nY ( 2 )\n)\nV (\n(* o\n)\nU (\n)",
                  {"W|||2", "W|X|1|4", "W|Y|2|9", "V|||11", "U|||14"}},
        ParseCase{
            "RemarksAmongWords",
            "W (\nCar\n(* o\nA ( 1 )\n*)\nX ( 1 )\nL ( 1\n2 3\n( o )\n4\n)\nY ( 2 ) w\n( o )\nZ ( 3 )\n)",
            {"W||Car|3", "W|X|1|7", "W\\L||1 2 3 4|11", "W|Y|2|13", "W|Z|3|15"}},
        ParseCase{"ValuesBelowANameAreNoRemark",
                  "W (\nExhaust1\n\n(* o *)\n( -0.3 4.0 2.9\n0.2\n)\nMass\n( 30t ) ( o ) X ( 1 )\nY ( 2 )\n)",
                  {"W|||2", "W\\Exhaust1||-0.3 4.0 2.9 0.2|7", "W|Mass|30t|9", "W|X|1|9", "W|Y|2|11"}},
        ParseCase{"SignatureAlone", "", {}}),
    [](const auto& info) { return info.param.name; });

TEST_F(SimFixture, BlocksOfOneNameStayApart) {
    keysOf("W (\nC (\nT ( 1 )\n)\nC (\nT ( 2 )\n)\n)");
    ASSERT_EQ(reader.SimKeys.size(), 5u);
    EXPECT_EQ(reader.SimKeys[1].Path, "W\\C");
    EXPECT_EQ(reader.SimKeys[3].Path, "W\\C£¤@2");
    EXPECT_EQ(reader.SimKeys[4].Path, "W\\C£¤@2");
    EXPECT_EQ(StripOccurrence("Train£¤@3\\TrainCfg\\Engine£¤@17\\X"), "Train\\TrainCfg\\Engine\\X");
}

TEST_F(SimFixture, SearchStopsCountsAndCutsComments) {
    const std::string bytes = utf16(signed_("Wagon ( A\nName ( a#b )\nMass ( 30t #note )\nSize ( #1 )\n"
                                            "Coupling (\nType ( Chain )\n)\nCoupling (\nType ( Bar )\n)\n"
                                            "Description ( \"one\" +\n\"two\" )\n)"));
    struct Row {
        const char *section, *key;
        int count;
        std::vector<std::string> values;
    };
    const Row rows[] = {{"Wagon", "MASS", 1, {"30t"}},
                        {"wagon", "name", 1, {"a#b"}},
                        {"Wagon", "Size", 1, {"#1"}},
                        {"Wagon", "", 1, {"A"}},
                        {"Wagon\\Coupling", "Type", 0, {"Chain", "Bar"}},
                        {"Wagon\\Coupling", "Type", 1, {"Chain"}},
                        {"Wagon", "Description", 0, {"onetwo"}},
                        {"Wagon", "Absent", 0, {}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key);
        EXPECT_EQ(reader.readBytes("x.wag", bytes, {row.section, row.key, row.count}).found,
                  !row.values.empty());
        std::vector<std::string> values;
        for (const SimHit& hit : reader.SimHits)
            values.push_back(hit.Value);
        EXPECT_EQ(values, row.values);
    }
    ASSERT_TRUE(reader.readBytes("x.wag", bytes, {"Wagon", "Description"}).found);
    EXPECT_EQ(reader.SimHits[0].FirstLine, 12);
    EXPECT_EQ(reader.SimHits[0].LastLine, 13);
    ASSERT_TRUE(reader.readBytes("x.wag", bytes, {"Wagon", "Mass"}).found);
    EXPECT_EQ(reader.SimHits[0].FirstLine, 4);
    EXPECT_EQ(reader.SimKeys.back().Value, "30t #note");
}

TEST_F(SimFixture, ACommentBeginsOutsideOfQuotes) {
    struct Row {
        const char *value, *kept;
    };
    for (const Row& row : {Row{"\"a #1.sms\"", "\"a #1.sms\""},
                           {"\"a #1.sms\" # old", "\"a #1.sms\""},
                           {"\"#1.sms\"", "\"#1.sms\""},
                           {"a #1.sms", "a"},
                           {"\"a #1.sms", "\"a"},
                           {"\"a\" #\"b\"", "\"a\""},
                           {"#1", "#1"},
                           {"", ""}})
        EXPECT_EQ(cutComment(row.value), row.kept) << row.value;
}

TEST_F(SimFixture, ADescriptionNamesItsShapeWhereverItsBracketCloses) {
    struct Row {
        const char *body, *shape;
        int line;
    };
    for (const Row& row : {Row{"\r\nshape ( a b.s\r\n\tESD_Detail_Level ( 0 )\r\n)\r\n", "a b.s", 3},
                           {"Shape ( \"a.s\" )\r\nESD_Detail_Level ( 0 )\r\n", "\"a.s\"", 2},
                           {"shape (\r\n\ta.s\r\n\tESD_Detail_Level ( 0 )\r\n)", "a.s", 3},
                           {"ESD_Detail_Level ( 0 )\r\nOther ( shape ( b.s ) )\r\n", "", 0}}) {
        files.put("\\a.sd", utf16(signed_(row.body, FileKind::ShapeDescription)));
        const std::optional<SimKey> shape = shapeOfDescription(reader, "\\a.sd");
        ASSERT_EQ(shape.has_value(), row.line > 0) << row.body;
        EXPECT_EQ(shape ? shape->Value : "", row.shape);
        EXPECT_EQ(shape ? shape->Line : 0, row.line);
    }
    EXPECT_FALSE(shapeOfDescription(reader, "\\none.sd"));
}

TEST_F(SimFixture, AnEngineIsLookedForBehindItsWagonBlock) {
    const std::string bytes = utf16(signed_("Wagon ( A\nType ( Engine )\n)\nEngine ( A\nType ( Diesel )\n)"));
    ASSERT_TRUE(reader.readBytes("x.eng", bytes, {"Engine", "Type"}).found);
    EXPECT_EQ(reader.SimHits[0].Value, "Diesel");
}

TEST_F(SimFixture, StockModeHitsEachKeyOnceButEveryCoupling) {
    const std::string bytes =
        utf16(signed_("Wagon ( A\nMass ( 1t )\nMass ( 2t )\nCoupling (\nType ( Chain )\n)\n"
                      "Coupling (\nType ( Chain )\n)\nSound ( a )\nSkip ( b )\n)"));
    ASSERT_TRUE(reader.readBytes("x.wag", bytes, {.stockMode = true}).found);
    std::vector<std::string> hits;
    for (const SimHit& hit : reader.SimHits)
        hits.push_back(hit.Path + "|" + hit.Key + "|" + hit.Value);
    EXPECT_EQ(hits, (Rows{"Wagon||A", "Wagon|Mass|1t", "Wagon\\Coupling|Type|Chain",
                          "Wagon\\Coupling|Type|Chain", "Wagon|Sound|a", "Wagon\\Sound|Skip|b"}));
}

TEST_F(SimFixture, KindsAreHeldToTheirSignatures) {
    struct Row {
        const char *name, *firstLine;
        bool accepted;
    };
    using enum ReadOutcome;
    const Row rows[] = {{"a.CON", "simisa@@@@@@@@@@jinx0d0T______", true},
                        {"a.sd", "SIMISA@@@@@@@@@@JINX0t1t______", true},
                        {"a.sd", "SIMISA@@@@@@@@@@JINX0s1t______", false},
                        {"a.S", "xx SIMISA@@@@@@@@@@JINX0s1t______ yy", true},
                        {"a.wag", "SIMISA@F\x01\x02", false},
                        {"a.wag", "", false},
                        {"a.txt", "SIMISA@@@@@@@@@@JINX0D0t______", false}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(reader.readBytes(row.name, std::string(row.firstLine) + "\nA ( 1 )").outcome,
                  row.accepted ? Read : OtherKind);
        EXPECT_EQ(reader.SimKeys.size(), row.accepted ? 1u : 0u);
        EXPECT_TRUE(reader.SimHits.empty());
    }
    EXPECT_EQ(reader.readBytes("a.wag", "").outcome, Empty);
    EXPECT_EQ(reader.ReadSimFile("\\none.wag").outcome, NoFile);
    EXPECT_EQ(reader.readBytes("a.wag", signed_("")).outcome, Read);
    EXPECT_TRUE(reader.SimKeys.empty());
}

TEST_F(SimFixture, AFilterOfLinesKeepsTheirNumbersRight) {
    const std::string body = "shape (\npoints ( 1 )\nimages ( 1\nImage ( \"a.ace\" )\n)\n)";
    const Rows rows = keysOf(body, "x.s", {.keepLines = textureLines(FileKind::Shape)});
    EXPECT_EQ(rows, (Rows{"images||1|4", "images|Image|\"a.ace\"|5"}));
    EXPECT_EQ(keysOf(body, "x.s").size(), 4u) << "all lines, unless less was asked for";
}

TEST_F(SimFixture, AVehicleLineOfAConsistNeedsItsBrackets) {
    struct Row {
        const char* line;
        int number;
    };
    for (const Row& row :
         {Row{"EngineData Loco Park )", 321}, Row{"WagonData ( Car Park", 321},
          Row{"WagonData ( Car Park (old )", 321}, Row{"Wagon ( WagonData ( Car (1 Park )", 321},
          Row{"Wagon ( WagonData ( Car (1) Park ) )", 0}, Row{"WagonData ( Car Park )", 0}}) {
        const ReadAnswer answer = reader.readBytes(
            "x.con", utf16(signed_(std::string("Train (\nTrainCfg ( A\n") + row.line + "\n)\n)")));
        EXPECT_EQ(errorNumber(answer), row.number) << row.line;
        EXPECT_EQ(answer.text, row.number == 0 ? "" : row.line);
        EXPECT_EQ(answer.line, row.number == 0 ? 0 : 4);
        EXPECT_GE(reader.SimKeys.size(), 2u) << "what was read before stands";
    }
}

TEST_F(SimFixture, GarbageEndsQuickly) {
    const std::string open = "a(\n", close = ")\n", quoted = "\"x\" +\n", word = "word\n";
    std::string joins = "W (\nw\n", nested = "W ( ", comments = "W (\n", deep = "W (\n",
                joined = "D ( \"x\" +\n", words = "W ( 1\n", remarks = "W (\n", stars = "W (\n";
    for (int i = 0; i < 200000; ++i) {
        deep += open;
        nested += "a ( ";
        comments += "comment ( ";
        joined += quoted;
        words += word;
        joins += "( a ) w\n";
        remarks += "( a\nw w\n";
        stars += "(* a\nw w\n";
    }
    for (const std::string& body :
         {deep, nested, joins, comments, comments + ")", "W (\n" + joined, words, remarks, stars,
          stars + "*)", std::string(3000000, '('), std::string(3000000, '"'), std::string(3000000, ')'),
          std::string("\0\0(\0)\n", 6)})
        reader.readBytes("x.wag", signed_(body));
    EXPECT_EQ(keysOf("W (\nX ( 1 )\n)"), (Rows{"W|||2", "W|X|1|3"})) << "the reader is as new afterwards";
}

} // namespace zandor
