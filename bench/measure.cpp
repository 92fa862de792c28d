// zandor-measure RUNS COMMAND... [-- COMMAND...]: runs the commands in turn, RUNS times each, their output
// thrown away, and prints for each the shortest time and the highest peak of memory; with two commands also
// the ratio of the times.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Command {
    std::vector<char*> words; // ends in a null pointer
    double bestSeconds = 1e9;
    long peakKilobytes = 0;
};

std::vector<Command> splitCommands(char** begin, char** end) {
    std::vector<Command> commands(1);
    for (char** word = begin; word != end; ++word) {
        if (std::strcmp(*word, "--") == 0)
            commands.emplace_back();
        else
            commands.back().words.push_back(*word);
    }
    for (Command& command : commands)
        command.words.push_back(nullptr);
    return commands;
}

std::optional<pid_t> start(const Command& command) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int error =
        posix_spawnp(&child, command.words[0], &actions, nullptr, command.words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? std::optional(child) : std::nullopt;
}

// False: the command can't be run or failed.
bool measureOnce(Command& command) {
    const auto begin = std::chrono::steady_clock::now();
    const std::optional<pid_t> child = start(command);
    int status = 0;
    rusage usage{};
    if (!child || wait4(*child, &status, 0, &usage) != *child || !WIFEXITED(status) ||
        WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "zandor-measure: %s failed\n", command.words[0]);
        return false;
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    command.bestSeconds = std::min(command.bestSeconds, time.count());
    command.peakKilobytes = std::max(command.peakKilobytes, usage.ru_maxrss);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
    std::vector<Command> commands = splitCommands(argv + std::min(argc, 2), argv + argc);
    for (const Command& command : commands)
        if (runs < 1 || command.words.size() < 2) {
            std::fprintf(stderr, "usage: zandor-measure RUNS COMMAND... [-- COMMAND...]\n");
            return 2;
        }
    for (int i = 0; i < runs; ++i)
        for (Command& command : commands)
            if (!measureOnce(command))
                return 1;
    for (const Command& command : commands)
        std::printf("%10.1f ms %8.1f MB peak  %s\n", command.bestSeconds * 1e3,
                    static_cast<double>(command.peakKilobytes) / 1024, command.words[0]);
    if (commands.size() == 2)
        std::printf("%10.2f first to second\n", commands[0].bestSeconds / commands[1].bestSeconds);
    return 0;
}
