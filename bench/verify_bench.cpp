// zandor-verify-bench: a full pass of the verifier over 16,000 stock files with their shapes and sound sets,
// with one, two and
// the usual number of threads, beside a plain read of all files that it opens, by turns; the best of the
// turns count.
#include "bench_session.h"
#include "bench_trees.h"
#include "verify/verification.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace zandor::bench {

namespace {

constexpr int StockCount = 16000;

template <typename Work> double millisecondsOf(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

std::vector<std::string> openedBelow(const std::string& root) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
        if (entry.is_regular_file() && entry.file_size() > 0)
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

// False: what the tree holds isn't what was found.
bool passOver(Session& session, VerifiedKind kind, int threads, int& files) {
    const VerifOptions options{true, true, false, true, false, true};
    VerifSelection selection = listCandidates(session.frame, kind, {});
    for (int i = 0; i < selection.size(); ++i)
        selection.chosen.push_back(i);
    VerifResults results;
    RunVerification(session.frame, selection, options, results, {threads});
    files += results.counters.files;
    return results.InvalidFiles.empty() && results.MissingEntries.empty() && results.mandatory.empty();
}

bool passOverAll(const std::string& root, int threads) {
    Session session(root);
    int files = 0;
    const bool clean = passOver(session, VerifiedKind::Engines, threads, files) &&
                       passOver(session, VerifiedKind::Wagons, threads, files);
    return clean && files == StockCount;
}

int measure(const std::string& root, int turns) {
    if (!makeTree(root, {.stock = StockCount, .withNamedFiles = true})) {
        std::fprintf(stderr, "zandor-verify-bench: cannot write below %s\n", root.c_str());
        return 1;
    }
    const std::vector<std::string> opened = openedBelow(root);
    readPlainly(opened);
    constexpr int threads[] = {1, 2, 0}; // 0: as many as a pass usually has
    double plain = 1e9, passes[std::size(threads)] = {1e9, 1e9, 1e9};
    bool clean = true;
    for (int i = 0; i < turns; ++i) {
        plain = std::min(plain, millisecondsOf([&] { readPlainly(opened); }));
        for (std::size_t k = 0; k < std::size(threads); ++k)
            passes[k] =
                std::min(passes[k], millisecondsOf([&] { clean = passOverAll(root, threads[k]) && clean; }));
    }
    std::printf("%d stock files, %zu opened: plain read %.0f ms\n", StockCount, opened.size(), plain);
    for (std::size_t k = 0; k < std::size(threads); ++k)
        std::printf("full pass, threads %s: %.0f ms, ratio %.2f\n",
                    threads[k] == 0 ? "as usual" : std::to_string(threads[k]).c_str(), passes[k],
                    passes[k] / plain);
    if (!clean)
        std::fprintf(stderr, "zandor-verify-bench: the pass has found faults that aren't there\n");
    return clean ? 0 : 1;
}

} // namespace

} // namespace zandor::bench

// The number of turns may be given.
int main(int argc, char** argv) {
    std::string root = (std::filesystem::temp_directory_path() / "zandor-bench-XXXXXX").string();
    if (!mkdtemp(root.data()))
        return 1;
    const int result = zandor::bench::measure(root, argc > 1 ? std::atoi(argv[1]) : 7);
    std::filesystem::remove_all(root);
    return result;
}
