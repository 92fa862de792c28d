#include "cli/command_line.h"

#include <iostream>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    return zandor::runCommandLine(std::vector<std::string>(argv + (argc > 0), argv + argc), std::cout,
                                  std::cerr);
}
