// What follows a pass, over a tree in memory: a few wagons of which some are faulty, and two consists.
#pragma once

#include "editor/consist_document.h"
#include "support/fakes.h"
#include "text/decode.h"
#include "verify/checks.h"
#include "verify/messages.h"
#include "verify/result_lists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

struct ResultsTest : ::testing::Test, TestFrame {
    static constexpr const char* Trainset = "C:\\MSTS\\TRAINS\\TRAINSET\\";
    static constexpr const char* Consists = "C:\\MSTS\\TRAINS\\CONSISTS\\";

    Catalogue catalogue;
    ConsistDocument document;
    Editor editor{frame, catalogue, document};
    VerifOptions options;
    VerifResults results;
    VerifWork work{frame, options, results};
    Findings told;

    ResultsTest() {
        state.Language = "English";
        state.roots.RootMSTS = "C:\\MSTS";
        state.PrintGreen = state.Optimize = true;
        for (const char* name : {"a.wag", "b.wag", "c.wag"})
            putWagon(name, "Fright");
        putWagon("sound.wag", "Freight");
        putConsist("used.con", "gone F");
        putConsist("lonely.con", "gone F");
        work.places = placesOf(state.roots);
        LoadCatalogue(frame, catalogue, ReadOnlyLoad);
        catalogue.here().RamesEnService = {"USED.con"};
        catalogue.here().Routes = {{"The line", "LINE\\", {{"", "s", "used"}}, {}}};
        initialiseDocument(editor);
        dialogs.shown.clear();
        for (const char* name : {"a.wag", "b.wag", "c.wag", "sound.wag"})
            CheckStockFile(work, "F", name);
    }

    static std::string simText(std::string_view body) {
        return encodeText("SIMISA@@@@@@@@@@JINX0D0t______\r\n\r\n" + std::string(body), TextEncoding::Utf16);
    }
    void putWagon(std::string_view name, std::string_view type) {
        files.put(wagonPath(name),
                  simText("Wagon ( X\r\n\tType ( " + std::string(type) + " )\r\n\tSize ( 1m 2m 3m )\r\n" +
                          "\tMass ( 9t )\r\n\tCoupling (\r\n\t\tType ( Chain )\r\n\t)\r\n)\r\n"));
    }
    void putConsist(std::string_view name, std::string_view wagon) {
        files.put(Consists + std::string(name),
                  simText("Train (\r\n\tTrainCfg ( x\r\n\t\tWagon (\r\n\t\t\tWagonData ( " +
                          std::string(wagon) +
                          " )\r\n\t\t\tUiD ( 0 )\r\n\t\t)\r\n\t\tWagon (\r\n\t\t\tWagonData ( a F )\r\n" +
                          "\t\t\tUiD ( 1 )\r\n\t\t)\r\n\t)\r\n)\r\n"));
    }
    static std::string wagonPath(std::string_view name) { return Trainset + ("F\\" + std::string(name)); }

    std::vector<std::string> invalid() const {
        std::vector<std::string> names;
        for (const InvalidFile& file : results.InvalidFiles)
            names.push_back(file.File);
        return names;
    }
    int countOf(std::string_view wagon) {
        const StockUse* use = findStockUse(catalogue, "F", wagon);
        return use ? use->Count : 0;
    }
    const Materiel* stock(std::string_view wagon) {
        RootCatalogue& root = catalogue.here();
        const int index = root.finder.find(root.Materiels, "F", wagon);
        return index < 0 ? nullptr : &root.Materiels[static_cast<std::size_t>(index)];
    }
    std::vector<int> toldNumbers() const {
        std::vector<int> numbers;
        for (const Finding& finding : told)
            numbers.push_back(finding.message.number);
        return numbers;
    }
    int move(const std::vector<int>& chosen) { return take(moveInvalidFiles(editor, results, chosen)); }
    int remove(const std::vector<int>& chosen) { return take(deleteInvalidFiles(editor, results, chosen)); }
    int take(FilesGone outcome) {
        told = std::move(outcome.told);
        return outcome.gone;
    }
};

} // namespace zandor
