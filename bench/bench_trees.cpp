#include "bench_trees.h"

#include "bench_sizes.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zandor::bench {

namespace {

std::string makeTemporaryFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "zandor-bench-XXXXXX").string();
    if (!mkdtemp(path.data())) {
        std::perror("zandor-bench: temporary folder");
        std::exit(1);
    }
    return path;
}

std::vector<std::string> filesBelow(const std::filesystem::path& folder) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

Tree makeMeasuredTree(const std::string& root, int stock, int consists) {
    std::fprintf(stderr, "making a tree of %d stock files and %d consists\n", stock, consists);
    if (!makeTree(root, {stock, consists, consists > 0 ? RouteCount : 0})) {
        std::fprintf(stderr, "zandor-bench: cannot write below %s\n", root.c_str());
        std::exit(1);
    }
    const std::filesystem::path trains = std::filesystem::path(root) / "TRAINS";
    Tree tree{root, filesBelow(trains / "TRAINSET"), filesBelow(trains / "CONSISTS"),
              filesBelow(std::filesystem::path(root) / "ROUTES")};
    sync(); // the writing of the new files would disturb what is measured next
    readPlainly(tree.stockFiles);
    readPlainly(tree.consistFiles);
    readPlainly(tree.routeFiles);
    return tree;
}

std::size_t readOne(const std::string& path, std::string& bytes) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return 0;
    struct stat status {};
    fstat(file, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (bytes.size() < size)
        bytes.resize(size);
    const ssize_t got = read(file, bytes.data(), size);
    close(file);
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

} // namespace

Trees::~Trees() {
    std::error_code ignored;
    if (!folder_.empty())
        std::filesystem::remove_all(folder_, ignored);
}

const Tree& Trees::get(int stock, int consists) {
    if (folder_.empty())
        folder_ = makeTemporaryFolder();
    const auto [place, isNew] = made_.try_emplace({stock, consists});
    if (isNew)
        place->second = makeMeasuredTree(
            folder_ + "/" + std::to_string(stock) + "-" + std::to_string(consists), stock, consists);
    return place->second;
}

std::size_t readPlainly(const std::vector<std::string>& paths) {
    std::string bytes;
    std::size_t total = 0;
    for (const std::string& path : paths)
        total += readOne(path, bytes);
    return total;
}

std::size_t readPlainly(const std::vector<std::string>& paths, int threads) {
    std::atomic<std::size_t> next = 0, total = 0;
    std::vector<std::thread> readers;
    for (int i = 0; i < threads; ++i)
        readers.emplace_back([&] {
            std::string bytes;
            for (std::size_t at = next++; at < paths.size(); at = next++)
                total += readOne(paths[at], bytes);
        });
    for (std::thread& reader : readers)
        reader.join();
    return total;
}

bool emptyCache(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        close(file);
    }
    const int all = open("/proc/sys/vm/drop_caches", O_WRONLY | O_CLOEXEC);
    const bool emptied = write(all, "3", 1) == 1;
    close(all);
    return emptied;
}

} // namespace zandor::bench
