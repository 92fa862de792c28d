#include "simfiles/sim_fixture.h"

#include "simfiles/stock_reader.h"

namespace zandor {

namespace {

const char* const FullEngine =
    "Wagon ( Loco_A\n\tType ( Engine )\n\tSize ( 3m 4m 18.5m )\n\tMass ( 80t # heavy )\n"
    "\tBrakeSystemType( \"Air_single_pipe\" )\n\tCoupling (\n\t\tType ( Chain )\n\t)\n"
    "\tCoupling (\n\t\tType ( Bar )\n\t\tCouplingUniqueType ( \"X1\" )\n\t)\n)\n"
    "Engine ( Loco_A\n\tType ( Electric )\n\tMaxPower ( 2000kW )\n\tCabView ( a.cvf )\n"
    "\tName ( \"Loco A\" )\n)\n";

std::string wagonBody(const char* more) {
    return std::string("Wagon ( W\nType ( Freight )\nSize ( 1m 2m 3m )\nMass ( 9t )\nCoupling (\nType ( "
                       "Chain )\n)\n") +
           more + ")\n";
}

} // namespace

TEST_F(SimFixture, BothReadersFillAnEngine) {
    files.put("\\R\\F\\a.eng", utf16(signed_(FullEngine)));
    Materiel full, quick;
    quick.BasePath = "\\R\\";
    quick.Folder = "F";
    quick.FileName = "a.eng";
    EXPECT_TRUE(ReadStockFile(reader, "\\r\\f\\A.ENG", full).answer.sound());
    QuickStockReader(files).QuickReadStock(quick);
    for (const Materiel* read : {&full, &quick}) {
        EXPECT_EQ(read->Type, "Engine");
        EXPECT_EQ(read->Size, "3m 4m 18.5m");
        EXPECT_EQ(read->BrakeSystem, "Air_single_pipe");
        EXPECT_EQ(read->EngineName, "Loco A");
        EXPECT_EQ(read->WagonName, "Loco_A");
        EXPECT_EQ(read->EngineType, "Electric");
        EXPECT_EQ(read->MaxPower, "2000kW");
        EXPECT_EQ(read->CabView, "a.cvf");
        EXPECT_EQ(read->CouplingUnique, "X1_END");
        EXPECT_EQ(read->Coupling, "Chain_Bar");
    }
    EXPECT_EQ(full.Mass, "80t");
    EXPECT_EQ(quick.Mass, "80t # heavy");
}

TEST_F(SimFixture, CouplingsOfTwoEndsBecomeAPair) {
    struct Row {
        const char *couplings, *pair, *unique;
    };
    const Row rows[] = {{"Coupling (\nType ( Chain )\n)\n", "Chain", ""},
                        {"Coupling (\nType ( Bar )\n)\n", "Chain_Bar", ""},
                        {"Coupling (\nType ( Semi_Auto )\n)\nCoupling (\nType ( Auto )\n)\n"
                         "Coupling (\nType ( CHAIN )\n)\nCoupling (\nType ( semi_auto )\n)\n",
                         "Chain_Semi_Auto_Auto", ""},
                        {"Coupling (\nType ( Bar )\nCouplingUniqueType ( u )\n)\n", "Chain_Bar", "u_END"}};
    for (const Row& row : rows) {
        files.put("\\a.wag", utf16(signed_(wagonBody(row.couplings))));
        Materiel materiel;
        ReadStockFile(reader, "\\a.wag", materiel);
        EXPECT_EQ(materiel.Coupling, row.pair);
        EXPECT_EQ(materiel.CouplingUnique, row.unique);
        ReadStockFile(reader, "\\a.wag", materiel);
        EXPECT_EQ(materiel.Coupling, row.pair) << "read a second time";
    }
}

// The forms of an engine block whose remark has a bracket too many or too few.
TEST_F(SimFixture, RemarksHideNoName) {
    const char* const remarks[] = {"",
                                   "(* was\nType ( Steam )\nName ( \"Old\" )\n*)\n",
                                   "(* was )\nType ( Steam )\nName ( \"Old\" )\n*)\n",
                                   "(* was *)\n",
                                   "(* was )\n",
                                   "(* was\n",
                                   "( was )\n",
                                   "(* a *)\n(* was )\n( b )\n"};
    for (const std::string remark : remarks) {
        const std::string body = "Wagon ( W\n" + remark + wagonBody("").substr(10) + "Engine ( W\n" + remark +
                                 "Type ( Diesel )\nMaxPower ( 9kW )\nName ( \"N\xC3\xA9\" )\n" + remark +
                                 ")\n";
        files.put("\\R\\F\\a.eng", utf16(signed_(body)));
        Materiel full, quick;
        quick.BasePath = "\\R\\";
        quick.Folder = "F";
        quick.FileName = "a.eng";
        EXPECT_TRUE(ReadStockFile(reader, "\\R\\F\\a.eng", full).answer.sound()) << body;
        QuickStockReader(files).QuickReadStock(quick);
        for (const Materiel* read : {&full, &quick})
            EXPECT_EQ(read->EngineName + read->EngineType + read->MaxPower + read->Type + read->Mass,
                      "N\xC3\xA9"
                      "Diesel9kWFreight9t")
                << body;
    }
}

TEST_F(SimFixture, TheQuickReaderDropsAWholeCharacterWhereABracketIsMissing) {
    Materiel quick;
    quick.FileName = "a.wag";
    files.put("\\a.wag", utf16(signed_("Wagon ( W\nName ( Z\xC3\xBCge\xE6\x97\xA5\nMass ( 9t\xC3\xA9\n")));
    QuickStockReader(files).QuickReadStock(quick);
    EXPECT_EQ(quick.WagonName + "|" + quick.Mass, "Z\xC3\xBCge|9t");
}

TEST_F(SimFixture, TheFirstMissingWagonKeyIsNamed) {
    struct Row {
        const char *body, *key;
    };
    for (const Row& row :
         {Row{"Wagon ( W\n)", "Wagon\\Coupling\\Type"},
          Row{"Wagon ( W\nCoupling (\nType ( Bar )\n)\nSize ( 1 )\n)", "Wagon\\Mass"},
          Row{"Wagon ( W\nCoupling (\nType ( Bar )\n)\nMass ( 1 )\nSize ( 1 )\n)", "Wagon\\Type"}}) {
        files.put("\\a.wag", utf16(signed_(row.body)));
        Materiel materiel;
        const ReadAnswer answer = ReadStockFile(reader, "\\a.wag", materiel).answer;
        EXPECT_EQ(errorNumber(answer), MissingStockKeyError);
        EXPECT_EQ(answer.text, row.key);
        EXPECT_EQ(materiel.WagonName, "W");
    }
}

TEST_F(SimFixture, AWrongSignatureLeavesTheEntryAsItWas) {
    files.put("\\a.wag", "not a stock file\nWagon ( W\n)");
    Materiel materiel;
    materiel.WagonName = "before";
    EXPECT_EQ(ReadStockFile(reader, "\\a.wag", materiel).answer.outcome, ReadOutcome::OtherKind);
    EXPECT_EQ(materiel.WagonName, "before");
}

TEST_F(SimFixture, SeveralNamesAreRepairedInAWagonFileOnly) {
    struct Row {
        const char *names, *stays;
    };
    const Row rows[] = {{"Name ( one )\nName ( two )\n", "one"},
                        {"Name ( one )\nWagonShape ( a.s )\nName ( two )\n", "two"},
                        {"Name ( one )\nWagonShape ( a.s )\n\n\n\n\n\n\n\n\nName ( far )\n", "one"}};
    for (const Row& row : rows) {
        const std::string before = utf16(signed_(wagonBody(row.names)));
        files.put("\\a.eng", before);
        Materiel materiel;
        EXPECT_FALSE(ReadStockFile(reader, "\\a.eng", materiel).needsRepair);
        files.put("\\a.wag", before);
        EXPECT_FALSE(ReadStockFile(reader, "\\a.wag", materiel, NameRepair::Never).repaired);
        EXPECT_EQ(files.get("\\a.wag"), before);
        files.setAttributes("\\a.wag", {.readOnly = true});
        EXPECT_TRUE(ReadStockFile(reader, "\\a.wag", materiel).repaired);
        EXPECT_EQ(materiel.EngineName, row.stays);
        EXPECT_TRUE(files.attributes("\\a.wag").readOnly);
        EXPECT_FALSE(ReadStockFile(reader, "\\a.wag", materiel).needsRepair);
        EXPECT_EQ(materiel.EngineName, row.stays);
        EXPECT_EQ(materiel.Mass, "9t");
    }
}

TEST_F(SimFixture, ARepairLeavesTheOtherLinesAsTheyAreToTheLastCharacter) {
    const std::string before = "x SIMISA@@@@@@@@@@jinx0D0t______ \n\tWagon ( W\xE9 \r\n\n Name\t( one )\n";
    const std::string surplus = "\tName ( \"two\" ) \r", behind =
                                                             "Type ( Freight )  \rSize ( 1 )\nMass ( 2t )\r\n"
                                                             "Coupling (\nType ( Bar )\n)\n Name(3)\n)";
    files.put("\\a.wag", before + surplus + behind);
    Materiel materiel;
    EXPECT_TRUE(ReadStockFile(reader, "\\a.wag", materiel).repaired);
    std::string text;
    decodeSimulatorText(files.get("\\a.wag").value(), text);
    const std::string kept = behind.substr(0, behind.size() - 10) + ")";
    EXPECT_EQ(text, std::string(ConsistSignature) + "\n\tWagon ( W\xC3\xA9 \r\n\n Name\t( one )\n" + kept);
    EXPECT_EQ(files.get("\\a.wag"), utf16(text));
}

TEST_F(SimFixture, NamesThatShareTheirLinesAreLeftAlone) {
    for (const char* names :
         {"Name ( one )\nName ( two ) NumWheels ( 4 )\n", "Name ( one )\nName (\n\"two\" )\n",
          "Name ( one )\nName ( \"two\" +\n\"three\" )\n"}) {
        const std::string before = utf16(signed_(wagonBody(names)));
        files.put("\\a.wag", before);
        Materiel materiel;
        const StockReading reading = ReadStockFile(reader, "\\a.wag", materiel);
        EXPECT_TRUE(reading.needsRepair && !reading.repaired) << names;
        EXPECT_EQ(files.get("\\a.wag"), before);
    }
}

TEST_F(SimFixture, ARepairThatFailsLosesNothing) {
    const std::string before = utf16(signed_(wagonBody("Name ( one )\nName ( two )\n")));
    Materiel materiel;
    for (int call = 1; call < 40; ++call) {
        MemoryFileSystem disk;
        disk.put("\\a.wag", before);
        SimReader failing(disk);
        disk.failAt(call, true);
        const bool repaired = ReadStockFile(failing, "\\a.wag", materiel).repaired;
        disk.failAt(0);
        EXPECT_TRUE(repaired || disk.get("\\a.wag") == before) << call;
        EXPECT_TRUE(ReadStockFile(failing, "\\a.wag", materiel, NameRepair::Never).answer.sound()) << call;
    }
}

} // namespace zandor
