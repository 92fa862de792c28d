#include "simfiles/sim_fixture.h"

#include "simfiles/consist_file.h"

namespace zandor {

struct ConsistFixture : SimFixture {
    Rame rame;
    std::vector<RameItem> items;

    ReadAnswer read(std::string_view config) {
        files.put("\\c\\Test.con", utf16(signed_("Train (\r\n" + std::string(config) + ")\r\n")));
        return ReadConsistFile(reader, rame, items, "\\c\\Test.con");
    }
};

TEST_F(ConsistFixture, AFullFileIsUnderstood) {
    EXPECT_TRUE(
        read("TrainCfg ( \"Two Words\"\nName ( \"Full name\" )\nSerial ( 7 )\nDefault ( )\n"
             "MaxVelocity ( 30.0 0.5 )\nNextWagonUID ( 2 )\nDurability ( 0.50000 )\nUnknown ( 1 )\n"
             "Engine (\nFlip ( )\nUiD ( 4 )\nEngineData ( Loco_A Park_A )\nEngineVariables( 1 2 )\n)\n"
             "Engine (\nUiD ( 5 )\nEngineVariables ( )\nEngineData ( \"L B\" \"P B\" )\n)\n"
             "Wagon (\nWagonData ( Car Park )\nUiD ( 6 )\nEngineVariables ( 9 )\n)\n)\n")
            .sound());
    EXPECT_EQ(rame.CfgName, "Two Words");
    EXPECT_EQ(rame.Name, "Full name");
    EXPECT_EQ(rame.Serial, 7);
    EXPECT_EQ(rame.DefaultKey, "Default( )");
    EXPECT_EQ(rame.MaxVelocity, "30.0 0.5");
    EXPECT_EQ(rame.NextWagonUID, 2);
    EXPECT_EQ(rame.Durability, "0.50000");
    EXPECT_EQ(rame.FileName, "Test.con");
    ASSERT_EQ(items.size(), 3u);
    EXPECT_TRUE(items[0].Flip && items[0].IsEngine && !items[1].Flip && !items[2].IsEngine);
    EXPECT_EQ(items[0].UiD, 4);
    EXPECT_EQ(items[0].EngineVariables, "EngineVariables(1 2)");
    EXPECT_EQ(items[1].EngineVariables, "EngineVariables( )");
    EXPECT_EQ(items[1].Name, "L B");
    EXPECT_EQ(items[1].Folder, "P B");
    EXPECT_EQ(items[2].EngineVariables, "");
}

TEST_F(ConsistFixture, VehicleDataIsSplitIntoNameAndFolder) {
    struct Row {
        const char *value, *name, *folder;
    };
    for (const Row& row :
         {Row{"Loco_A Park_A", "Loco_A", "Park_A"}, Row{"\"A B\" \"C D\"", "A B", "C D"},
          Row{"\"A B\" Park", "A B", "Park"}, Row{"Loco \"C D\"", "Loco", "C D"}, Row{"Loco_A", "", "Loco_A"},
          Row{"Car Coach (old)", "Car", "Coach (old)"}, Row{"Car(1) (a) (b)", "Car(1)", "(a) (b)"},
          Row{"Car Park)", "Car", "Park"}, Row{"\"\" x", "\"", "x"}, Row{"", "", ""}, Row{"\"", "", ""},
          Row{"\"A B", "A", "B"}}) {
        std::string name, folder;
        splitVehicleData(row.value, name, folder);
        EXPECT_EQ(name, row.name) << row.value;
        EXPECT_EQ(folder, row.folder) << row.value;
    }
}

TEST_F(ConsistFixture, AVehicleWithoutNameIsLeftOutAndTold) {
    struct Row {
        const char *vehicle, *line;
        int number;
    };
    for (const Row& row : {Row{"Engine (\nEngineData ( Lost )\n)\n", "EngineData ( Lost )", 9},
                           Row{"Wagon (\nWagonData ( )\n)\n", "WagonData ( )", 9},
                           Row{"Wagon (\nUiD ( 1 )\n)\n", "Wagon (", 8}})
        for (const std::string behind : {"", "Wagon (\nWagonData ( W2 Park )\n)\n"}) {
            const ReadAnswer answer = read("TrainCfg ( A\nWagon (\nWagonData ( W1 Park )\nUiD ( 1 )\n)\n" +
                                           std::string(row.vehicle) + behind + ")\n");
            EXPECT_EQ(items.size(), behind.empty() ? 1u : 2u);
            EXPECT_EQ(answer.flaw, Flaw::VehicleNameless);
            EXPECT_EQ(answer.text, row.line);
            EXPECT_EQ(answer.line, row.number);
        }
}

TEST_F(ConsistFixture, AVehicleWithoutNameLeavesNothingToTheNext) {
    read("TrainCfg ( A\nEngine (\nFlip ( )\nUiD ( 3 )\nEngineData ( Lost )\n)\nWagon (\nWagonData ( Car Park "
         ")\n)\n)\n");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].Name, "Car");
    EXPECT_FALSE(items[0].Flip || items[0].IsEngine);
    EXPECT_EQ(items[0].UiD, 0);
    EXPECT_EQ(rame.Name, "A") << "a consist without a full name shows its short one";
}

TEST_F(ConsistFixture, AnUnreadableFileLeavesTheDefaults) {
    files.put("\\bad.con", "something else");
    for (const char* path : {"\\none.con", "\\bad.con"}) {
        EXPECT_FALSE(ReadConsistFile(reader, rame, items, path, 0.25).accepted());
        EXPECT_TRUE(items.empty());
        EXPECT_EQ(rame.Durability, "0.25000");
        EXPECT_EQ(rame.MaxVelocity, EngineMaxVelocity);
    }
}

TEST_F(ConsistFixture, AMalformedVehicleKeepsThoseBeforeIt) {
    const ReadAnswer answer =
        read("TrainCfg ( A\nWagon (\nWagonData ( Car Park )\n)\nWagon (\nWagonData Car2 Park )\n)\n)\n");
    EXPECT_EQ(errorNumber(answer), MalformedConsist);
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].Name, "Car");
}

TEST_F(ConsistFixture, ASecondConsistOfTheFileJoinsTheFirst) {
    EXPECT_TRUE(read("TrainCfg ( A\nWagon (\nWagonData ( W1 Park )\n)\n)\n"
                     "TrainCfg ( B\nWagon (\nWagonData ( W2 Park )\n)\n)\n")
                    .sound());
    EXPECT_EQ(rame.CfgName, "B");
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].Name + items[1].Name, "W1W2");
}

TEST_F(ConsistFixture, VehiclesAreFoundAmongBracketsRemarksAndNamesBelow) {
    EXPECT_TRUE(read("TrainCfg (\n\"Two Words\"\nName ( \"Full\" )\n"
                     "Wagon (\nWagonData ( Fell_Van Coach (old) )\nUiD ( 3 )\n)\n"
                     "(* Wagon (\nWagonData ( Gone Park )\n) *)\n"
                     "Engine ( EngineData ( Defaut_Loco (a) ) Flip ( ) )\n"
                     "Wagon (\n(* old\nWagonData Gone Park\n*)\nWagonData ( \"Wag (1)\" Park )\n)\n)\n")
                    .sound());
    EXPECT_EQ(rame.CfgName + "|" + rame.Name, "Two Words|Full");
    std::string all;
    for (const RameItem& item : items)
        all += item.Name + "/" + item.Folder + (item.Flip ? "!;" : ";");
    EXPECT_EQ(all, "Fell_Van/Coach (old);Defaut_Loco/(a)!;Wag (1)/Park;");
    EXPECT_EQ(items[0].UiD, 3);
}

// A name of a file or a folder comes back as it was, or is told to be one that doesn't.
TEST_F(ConsistFixture, ANameReadsBackOrIsFound) {
    const std::string_view comeBack[] = {"Car",  "A  (b", "(* a *)", " a ", "Defaut_Wagon", "a+",
                                         "5\"g", "#1",    "£¤@3",    "a)",  "Жд é 日",      "+"};
    const std::string_view lost[] = {"a\tb", "a\t",   "a\nb",           "a\r", "",
                                     "\"",   "\"a\"", "a \") Flip ( )", "\xFF"};
    rame.CfgName = rame.Name = "Test";
    const VehicleLines plain{true, true, 1, "Loco", "Park", "EngineVariables(1 2)"};
    const auto firstLost = [&](std::string_view name, std::string_view folder) {
        const VehicleLines odd{false, false, 2, std::string(name), std::string(folder), ""};
        return findUnreadable(reader, rame, {plain, odd, odd, plain});
    };
    for (const std::string_view name : comeBack) {
        EXPECT_FALSE(firstLost(name, "Park")) << name;
        EXPECT_FALSE(firstLost("Car", name)) << name;
    }
    for (const std::string_view name : lost) {
        EXPECT_EQ(firstLost(name, "Park"), 1u) << name;
        EXPECT_EQ(firstLost("Car", name), 1u) << name;
    }
}

TEST_F(ConsistFixture, NumbersOverSeveralLinesAreKept) {
    read("TrainCfg ( A\nEngine (\nEngineData ( Loco Park )\nEngineVariables ( 1 2\n3 4 )\nUiD ( 2 )\n)\n)\n");
    EXPECT_EQ(items[0].EngineVariables, "EngineVariables(1 2 3 4)");
    EXPECT_EQ(items[0].UiD, 2);
}

TEST_F(ConsistFixture, TheTextIsWrittenByteForByteAndReadsBack) {
    rame.CfgName = "Test";
    rame.Name = "Test";
    rame.Serial = 1;
    rame.MaxVelocity = EngineMaxVelocity;
    rame.NextWagonUID = 2;
    rame.Durability = "1,00000";
    const std::string text = buildConsistText(
        rame, {{true, false, 0, "Loco1", "Folder1", ""}, {false, true, 1, "Wag (1)", "Folder 1", ""}});
    EXPECT_EQ(
        text,
        "SIMISA@@@@@@@@@@JINX0D0t______\r\n\r\nTrain (\r\n\tTrainCfg ( Test\r\n\t\tName ( \"Test\" )\r\n"
        "\t\tSerial ( 1 )\r\n\t\tMaxVelocity ( 40.00000 1.00000 )\r\n\t\tNextWagonUID ( 2 )\r\n"
        "\t\tDurability ( 1.00000 )\r\n\t\tEngine (\r\n\t\t\tUiD ( 0 )\r\n"
        "\t\t\tEngineData ( Loco1 Folder1 )\r\n\t\t)\r\n\t\tWagon (\r\n"
        "\t\t\tWagonData ( \"Wag (1)\" \"Folder 1\" )\r\n\t\t\tUiD ( 1 )\r\n\t\t\tFlip ( )\r\n\t\t)\r\n"
        "\t)\r\n)\r\n");
    const std::string bytes = encodeConsist(text);
    EXPECT_EQ(bytes.substr(0, 6), std::string("\xFF\xFES\0I\0", 6));
    files.put("\\c\\Test.con", bytes);
    Rame again;
    ReadConsistFile(reader, again, items, "\\c\\Test.con");
    EXPECT_EQ(again.CfgName, "Test");
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[1].Name, "Wag (1)");
    EXPECT_EQ(items[1].Folder, "Folder 1");
    EXPECT_TRUE(items[1].Flip);
}

} // namespace zandor
