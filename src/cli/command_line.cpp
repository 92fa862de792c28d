#include "cli/command_line.h"

#include "cli/session.h"
#include "frame/startup.h"
#include "platform/real_file_system.h"
#include "text/control_characters.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <new>
#include <sstream>

namespace zandor {

namespace {

constexpr const char* Description =
    "Reads and writes the consists and the stock of Microsoft Train Simulator from the command line.";
constexpr const char* ExitCodes = "Exit code: 0 done, 1 faults found, 2 could not run.";

std::vector<std::unique_ptr<Command>> makeCommands() {
    std::vector<std::unique_ptr<Command>> commands;
    for (auto make :
         {makeKeysCommand, makeStockCommand, makeConsistCommand, makeCatalogueCommand, makeComposeCommand,
          makeOpenCommand, makeVerifyCommand, makeRoutesCommand, makeServicesCommand, makeActivitiesCommand})
        commands.push_back(make());
    return commands;
}

void addCommonOptions(Arguments& line, const Command& command, CommonOptions& options) {
    if (command.usesRoots()) {
        line.text("--root", options.root, "DIR", "the simulator's folder; by default that of the settings");
        line.text("--tstore", options.tstore, "DIR", "the Train Store's folder");
        line.word("--primary", options.primary, {"msts", "tstore"}, "NAME",
                  "which of the two is in use: msts or tstore");
    }
    line.text("--settings", options.settings, "FILE", "the settings file to use");
    line.text("--language", options.language, "NAME", "the language of the messages");
}

// What the parser objects to, as one line.
std::string parseFault(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> rest = app.remaining();
    if (app.get_subcommands().empty())
        return rest.empty() ? "A command is needed" : "There is no command " + rest.front();
    return error.what();
}

class CommandLine {
  public:
    CommandLine() : app_(Description, "zandor-cli"), commands_(makeCommands()) {
        app_.require_subcommand(1);
        app_.allow_windows_style_options(false); // a path may begin with "/"
        app_.set_version_flag("--version", makeTitle());
        app_.footer(ExitCodes);
        for (const auto& command : commands_) {
            CLI::App* sub = app_.add_subcommand(command->name(), command->help());
            Arguments line(*sub);
            command->addArguments(line);
            addCommonOptions(line, *command, options_);
        }
    }

    // The command to run, or nothing and the exit code: help was printed or the arguments are wrong.
    Command* parse(std::vector<std::string> args, ResultText& result, std::ostream& err, int& exitCode) {
        std::reverse(args.begin(), args.end()); // the parser takes them from the back
        try {
            app_.parse(std::move(args));
        } catch (const CLI::Success& help) {
            std::ostringstream text;
            exitCode = app_.exit(help, text, err);
            result << text.view();
            return nullptr;
        } catch (const CLI::ParseError& error) {
            err << "zandor-cli: " << oneLine(parseFault(app_, error)) << " (see --help)\n";
            exitCode = exitcode::CannotRun;
            return nullptr;
        }
        return chosen();
    }

    const CommonOptions& options() const { return options_; }

  private:
    Command* chosen() const {
        const auto found = std::find_if(commands_.begin(), commands_.end(), [this](const auto& command) {
            return app_.got_subcommand(command->name());
        });
        return found == commands_.end() ? nullptr : found->get();
    }

    CLI::App app_;
    std::vector<std::unique_ptr<Command>> commands_;
    CommonOptions options_;
};

int runCommand(Command& command, Session& session) {
    try {
        const auto roots = command.needsRoots()  ? Session::Folders::Needed
                           : command.usesRoots() ? Session::Folders::IfKnown
                                                 : Session::Folders::None;
        if (!session.prepare(roots))
            return exitcode::CannotRun;
        return command.run(session);
    } catch (const std::bad_alloc&) {
        session.result.clear();
        return session.cannotRun("There is not enough memory for " + session.shown(session.atWork));
    }
}

int runParsed(const std::vector<std::string>& args, const Surroundings& surroundings, ResultText& result,
              std::ostream& err) {
    CommandLine line;
    int exitCode = exitcode::CannotRun;
    Command* command = line.parse(args, result, err, exitCode);
    if (!command)
        return exitCode;
    Session session(surroundings, line.options(), result, err);
    return runCommand(*command, session);
}

} // namespace

int runCommandLine(const std::vector<std::string>& args, const Surroundings& surroundings, std::ostream& out,
                   std::ostream& err) {
    ResultText result;
    int exitCode = exitcode::CannotRun;
    try {
        exitCode = runParsed(args, surroundings, result, err);
    } catch (const std::exception& error) {
        err << "zandor-cli: " << oneLine(error.what()) << '\n';
        return exitcode::CannotRun;
    }
    if (result.writeTo(out))
        return exitCode;
    err << "zandor-cli: The output could not be written\n";
    return exitcode::CannotRun;
}

int runCommandLine(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    const std::string winePrefix = winePrefixFolder();
    const std::unique_ptr<FileSystem> files = makeRealFileSystem(winePrefix);
    const std::unique_ptr<Registry> registry = makeSystemRegistry(winePrefix);
    const std::unique_ptr<Processes> processes = makeSystemProcesses();
    return runCommandLine(args, Surroundings{*files, *registry, *processes, findProgramFolders()}, out, err);
}

} // namespace zandor
