#include "platform/processes.h"

#include <spawn.h>

#include <sys/wait.h>
#include <unistd.h>

namespace zandor {

namespace {

class PosixProcess final : public Process {
  public:
    explicit PosixProcess(pid_t id) : id_(id) {}

    std::optional<int> exitCode() override {
        int status = 0;
        if (!code_ && waitpid(id_, &status, WNOHANG) != 0)
            code_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return code_;
    }

  private:
    pid_t id_;
    std::optional<int> code_;
};

// The programs let go of while they ran. They are asked after at the next start, so that none stays behind as
// a dead entry in the system's table.
class PosixProcesses final : public Processes {
  public:
    std::unique_ptr<Process> start(const std::string& program,
                                   const std::vector<std::string>& arguments) override {
        const std::optional<pid_t> id = spawn(program, arguments);
        return id ? std::make_unique<PosixProcess>(*id) : nullptr;
    }

    bool openFile(const std::string& path) override {
        std::erase_if(viewers_, [](const auto& viewer) { return viewer->exitCode().has_value(); });
        std::unique_ptr<Process> viewer = start("xdg-open", {path});
        if (!viewer)
            return false;
        viewers_.push_back(std::move(viewer));
        return true;
    }

  private:
    static std::optional<pid_t> spawn(const std::string& program, const std::vector<std::string>& arguments) {
        std::vector<std::string> words{program};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        pid_t id = 0;
        return posix_spawnp(&id, program.c_str(), nullptr, nullptr, pointers.data(), environ) == 0
                   ? std::optional(id)
                   : std::nullopt;
    }

    std::vector<std::unique_ptr<Process>> viewers_;
};

} // namespace

std::unique_ptr<Processes> makeSystemProcesses() {
    return std::make_unique<PosixProcesses>();
}

} // namespace zandor
