// Two simulator folders on a disk in memory.
#pragma once

#include "catalogue/catalogue.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zandor {

inline constexpr const char* MstsRoot = "C:\\MSTS";
inline constexpr const char* StoreRoot = "C:\\Store";

struct CatalogueTest : ::testing::Test, TestFrame {
    Catalogue catalogue;

    CatalogueTest() {
        files.put(state.LanguagePath, "[Test]\r\n214=reading\r\n389=engines\r\n390=wagons\r\n498=step\r\n"
                                      "446=services\r\n450=activities\r\n502=consists\r\n503=route\r\n586="
                                      "limit |2 in |1\r\n804=passed over|1\r\n"
                                      "805=|1 of |2 MB\r\n806=and |1 more\r\n");
        state.Language = "Test";
        state.roots.RootMSTS = MstsRoot;
        state.roots.RootTStore = StoreRoot;
        state.Optimize = true;
        state.Busy = true;
    }

    void putStock(std::string_view folderAndFile, std::string_view body = {},
                  std::string_view root = MstsRoot) {
        files.put(trainsetPath(root) + std::string(folderAndFile), signedText(body));
    }
    // Each vehicle is a line such as "EngineData ( loco Parc )".
    void putConsist(std::string_view file, std::string_view head, const std::vector<std::string>& vehicles,
                    std::string_view root = MstsRoot) {
        std::string body = "Train (\r\nTrainCfg ( " + std::string(head) + "\r\n";
        for (const std::string& vehicle : vehicles)
            body += (vehicle.starts_with("Engine") ? "Engine (\r\n" : "Wagon (\r\n") + vehicle + "\r\n)\r\n";
        files.put(consistsPath(root) + std::string(file), signedText(body + ")\r\n)\r\n"));
    }
    static std::string signedText(std::string_view body) {
        return std::string(ConsistSignature) + "\r\n" + std::string(body);
    }

    // "folder\file" of every entry that isn't free.
    std::vector<std::string> stockNames() const {
        std::vector<std::string> names;
        for (const Materiel& materiel : catalogue.here().Materiels)
            if (!materiel.FileName.empty())
                names.push_back(materiel.Folder + "\\" + materiel.FileName);
        return names;
    }
    // "folder\file count" of every record of use.
    std::vector<std::string> usage() const {
        std::vector<std::string> rows;
        for (const StockUse& use : catalogue.StockUsage)
            if (!use.FileName.empty())
                rows.push_back(use.Folder + "\\" + use.FileName + " " + std::to_string(use.Count));
        return rows;
    }
    // "lower-upper:current text" of every step.
    std::vector<std::string> progressShown() const {
        std::vector<std::string> rows;
        for (const FakeProgress::Step& step : progress.steps)
            rows.push_back(std::to_string(step.lower) + "-" + std::to_string(step.upper) + ":" +
                           std::to_string(step.current) + " " + step.text);
        return rows;
    }
    std::vector<std::string> messagesShown() const {
        std::vector<std::string> rows;
        for (const FakeDialogs::Shown& one : dialogs.shown)
            rows.push_back(std::to_string(one.style) + " " + one.text);
        return rows;
    }
};

using Names = std::vector<std::string>;

} // namespace zandor
