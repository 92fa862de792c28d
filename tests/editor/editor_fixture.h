// An editor over a disk in memory, with a small catalogue and short messages.
#pragma once

#include "editor/consist_io.h"
#include "editor/coupling.h"
#include "simfiles/consist_file.h"
#include "support/fakes.h"
#include "text/decode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

inline constexpr const char* Simulator = "C:\\MSTS";
inline constexpr const char* Store = "C:\\Store";

class EditorTest : public ::testing::Test, protected TestFrame {
  protected:
    Catalogue catalogue;
    ConsistDocument document;
    Editor editor{frame, catalogue, document};
    EditorControls& controls = document.controls;
    Findings told;

    EditorTest() {
        files.put(state.LanguagePath,
                  "[English]\r\n95=no train |1\r\n98=shown up to |1\r\n30=failed "
                  "|1\r\n31=no consist |1\r\n329=save |1?\r\n330=save new?\r\n"
                  "331=long |1\r\n332=|1 heavy |2\r\n394=R |1\r\n395=Brakes\r\n396=air\r\n402=piped air\r\n"
                  "400=Coupled\r\n401=|1 m\r\n404=auto\r\n405=bar\r\n406=chain\r\n407=hydro\r\n408=|1 t\r\n"
                  "428=misfit\r\n429=no name\r\n430=no full name\r\n431=|1 taken\r\n432=saved\r\n"
                  "433=+kept |2\r\n443=incomplete\r\n586=limit |2 in |1\r\n800=|1 MB of |2\r\n"
                  "802=unreadable\r\n803=unread |1: |3\r\n820=unwritable |1\r\n830=|1 unkept in |2\r\n");
        state.Language = "English";
        state.roots.RootMSTS = Simulator;
        state.roots.RootTStore = Store;
        settings("1", "0");
        files.put("C:\\MSTS\\train.exe", "");
        initialiseDocument(editor);
    }

    void settings(std::string_view bakFile, std::string_view newFile) {
        files.put(state.IniPath, "[General]\r\nBakFile=" + std::string(bakFile) +
                                     "\r\nNewFile=" + std::string(newFile) + "\r\n");
    }

    // The operations, with what they have to tell kept for shown().
    bool take(Outcome outcome) {
        addFindings(told, std::move(outcome.told));
        return outcome.done;
    }
    bool append(int index) { return take(appendStock(editor, index)); }
    bool drop(int index) { return take(dropStock(editor, index)); }
    bool save() { return take(SaveFileRame(editor)); }
    bool begin() { return take(newConsist(editor)); }
    std::optional<int> release(ReleaseZone zone) {
        Release released = releaseStrip(editor, zone);
        addFindings(told, std::move(released.told));
        return released.lookedUp;
    }

    // Style, blank and text of each question so far, then those of what was told.
    std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (const FakeDialogs::Shown& one : dialogs.shown)
            texts.push_back(std::to_string(one.style) + " " + one.text);
        for (const Finding& finding : told)
            texts.push_back(std::to_string(finding.style) + " " + wordFinding(frame, finding));
        return texts;
    }
    void quiet() {
        dialogs.shown.clear();
        told.clear();
    }
    // A catalogued stock file that also stands on the disk. Returns its index.
    int addStock(std::string_view fileName, std::string_view coupling = {},
                 std::string_view folder = "Folder1") {
        Materiel materiel;
        materiel.BasePath = trainsetPath(state.roots.RootPrimary());
        materiel.Folder = folder;
        materiel.FileName = fileName;
        materiel.EngineName = std::string(fileName.substr(0, fileName.size() - 4));
        materiel.Coupling = coupling;
        materiel.Type = "Freight";
        files.put(materiel.BasePath + materiel.Folder + "\\" + materiel.FileName, "stock");
        catalogue.here().Materiels.push_back(std::move(materiel));
        return static_cast<int>(catalogue.here().Materiels.size()) - 1;
    }
    // One new vehicle a letter at the end of the strip, which counts as saved afterwards.
    void compose(std::string_view letters) {
        for (char letter : letters)
            append(stockOf(letter));
        document.Modified = false;
        quiet();
    }
    int stockOf(char letter) {
        const std::string file = std::string(1, letter) + ".wag";
        for (std::size_t i = 0; i < catalogue.here().Materiels.size(); ++i)
            if (catalogue.here().Materiels[i].FileName == file)
                return static_cast<int>(i);
        return addStock(file);
    }
    std::string order() const {
        std::string names;
        for (const Vehicule& vehicule : document.Vehicules)
            names += vehicule.Name;
        return names;
    }
    std::vector<int> numbers() const {
        std::vector<int> all;
        for (const Vehicule& vehicule : document.Vehicules)
            all.push_back(vehicule.Number);
        return all;
    }
    // The middle of a position, or a place behind the last vehicle.
    int middleOf(int position) const { return position * PlainPictureWidth + 60; }

    static std::string consistPath(std::string_view file) {
        return consistsPath(Simulator) + std::string(file);
    }
    void putConsist(std::string_view file, std::string_view body) {
        files.put(consistPath(file),
                  "\xFF\xFE" + encodeUtf16(std::string(ConsistSignature) + "\r\n\r\n" + std::string(body)));
    }
    std::string savedText(std::string_view file) const {
        std::string text;
        decodeSimulatorText(files.get(consistPath(file)).value_or(""), text);
        return text;
    }
    bool savedHas(std::string_view file, std::string_view line) const {
        return savedText(file).find("\t" + std::string(line) + "\r\n") != std::string::npos;
    }
    void nameConsist(std::string_view name) {
        changeFullName(editor, name);
        changeShortName(editor, name);
    }
};

using Shown = std::vector<std::string>;

} // namespace zandor
