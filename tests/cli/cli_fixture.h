// The commands run in this process on a small simulator tree in a temporary folder.
#pragma once

#include "cli/command_line.h"
#include "platform/real_file_system.h"
#include "simfiles/consist_file.h"
#include "support/fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <sstream>

namespace zandor {

struct Ran {
    int exitCode = -1;
    std::string out, err;

    nlohmann::json json() const { return nlohmann::json::parse(out); }
};

inline bool isOneLine(const std::string& text) {
    return text.size() > 1 && text.find('\n') == text.size() - 1;
}

class CliTest : public testing::Test {
  protected:
    using Args = std::vector<std::string>;

    CliTest() {
        std::string name = (std::filesystem::temp_directory_path() / "zandor-cli-XXXXXX").string();
        top = mkdtemp(name.data());
        std::filesystem::create_directories(top / "home");
        putTree();
    }
    ~CliTest() override { std::filesystem::remove_all(top); }

    Ran run(const Args& args) {
        std::ostringstream out, err;
        const ProgramFolders folders{(top / "home").string(), ZANDOR_SOURCE_DIR "/src/frame", "zandor-cli"};
        const int exitCode = runCommandLine(args, {*files, registry, processes, folders}, out, err);
        return {exitCode, out.str(), err.str()};
    }
    // With the tree's root behind the arguments.
    Ran runOnTree(Args args) {
        args.insert(args.end(), {"--root", root(), "--language", "English"});
        return run(args);
    }

    std::string root() const { return (top / "msts").string(); }
    std::string at(const std::string& name) const { return (top / name).string(); }
    std::string consistPath(const std::string& name) const { return at("msts/Trains/Consists/" + name); }
    std::string stockPath(const std::string& name) const { return at("msts/Trains/Trainset/" + name); }

    void putBytes(const std::string& path, const std::string& bytes) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    // UTF-16 with the signature of consists and stock.
    void putSim(const std::string& path, const std::string& body) {
        putBytes(path, encodeConsist(std::string(ConsistSignature) + "\r\n\r\n" + body));
    }
    static std::string bytesOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void putSettings(const std::string& lines) {
        putBytes(at("home/Zandor.ini"), "\xEF\xBB\xBF[General]\r\n" + lines);
    }

    static std::string wagonText(const std::string& name, const std::string& coupling = "Chain",
                                 const std::string& type = "Carriage") {
        return "Wagon ( " + name + "\r\n Type ( " + type +
               " )\r\n Size ( 3m 4m 20m )\r\n Mass ( 30t )\r\n Coupling (\r\n  Type ( " + coupling +
               " )\r\n )\r\n Name ( \"" + name + " shown\" )\r\n)\r\n";
    }
    static std::string engineText(const std::string& name) {
        return wagonText(name, "Chain", "Engine") + "Engine ( " + name + "\r\n Wagon ( " + name +
               " )\r\n Type ( Diesel )\r\n Name ( \"" + name + " shown\" )\r\n)\r\n";
    }
    static std::string consistText(const std::string& name, const std::string& vehicles) {
        return "Train (\r\n TrainCfg ( " + name + "\r\n  Name ( \"" + name + " in full\" )\r\n" + vehicles +
               " )\r\n)\r\n";
    }

    std::filesystem::path top;
    std::unique_ptr<FileSystem> files = makeRealFileSystem("");
    FakeRegistry registry;
    FakeProcesses processes;

  private:
    void putTree() {
        putSim(stockPath("Diesels/Loco.eng"), engineText("Loco"));
        putSim(stockPath("Old Coaches/First Class.wag"), wagonText("First"));
        putSim(stockPath("Old Coaches/Bar.wag"), wagonText("Bar", "Bar", "Freight"));
        putSim(consistPath("local.con"),
               consistText("local",
                           "Engine ( UiD ( 0 )\r\n EngineData ( Loco Diesels )\r\n )\r\n"
                           "Wagon (\r\n WagonData ( \"First Class\" \"Old Coaches\" )\r\n Flip ( )\r\n "
                           "UiD ( 7 )\r\n )\r\n"));
    }
};

} // namespace zandor
