#include "cli/command_line.h"
#include "platform/system.h"

#include <csignal>
#include <iostream>

int main(int argc, char** argv) {
    zandor::tellSizeLimitsAsErrors();
    std::ios::sync_with_stdio(false);
    std::signal(SIGPIPE, SIG_IGN); // a reader that has gone makes the write fail, which is told
    return zandor::runCommandLine(std::vector<std::string>(argv + (argc > 0), argv + argc), std::cout,
                                  std::cerr);
}
