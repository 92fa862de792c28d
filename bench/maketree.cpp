// zandor-maketree: writes a simulator folder to measure on.
#include "tree_maker.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc < 4 || argc > 6) {
        std::fprintf(stderr, "usage: zandor-maketree DIR STOCK CONSISTS [ROUTES [SEED]]\n");
        return 2;
    }
    zandor::bench::TreeSize size{std::atoi(argv[2]), std::atoi(argv[3])};
    if (argc > 4)
        size.routes = std::atoi(argv[4]);
    if (argc > 5)
        size.seed = std::strtoull(argv[5], nullptr, 10);
    if (!zandor::bench::makeTree(argv[1], size)) {
        std::fprintf(stderr, "zandor-maketree: cannot write below %s\n", argv[1]);
        return 1;
    }
    return 0;
}
