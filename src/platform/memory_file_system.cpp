#include "platform/memory_file_system.h"

#include "platform/letter_case.h"
#include "platform/sim_path.h"

#include <algorithm>

namespace zandor {

namespace {

// The path as spelled but normalised: no separator at its end, so that the root is an empty text.
std::string normalised(std::string_view path) {
    SimPath parsed = parseSimPath(path);
    parsed.rooted = true;
    std::string text = folderKey(parsed, parsed.parts.size());
    text.pop_back();
    if (parsed.drive != 0)
        text[0] = path[0];
    return text;
}

std::string keyOf(std::string_view path) {
    return lowerCase(normalised(path));
}

std::string_view parentOf(std::string_view normal) {
    const std::size_t separator = normal.rfind('\\');
    return normal.substr(0, separator == std::string_view::npos ? 0 : separator);
}

std::string_view nameOf(std::string_view normal) {
    return normal.substr(normal.rfind('\\') + 1);
}

template <typename Nodes> auto* findNode(Nodes& nodes, std::string_view path) {
    const auto at = nodes.find(keyOf(path));
    return at == nodes.end() ? nullptr : &at->second;
}

template <typename Nodes> auto* findFile(Nodes& nodes, std::string_view path) {
    auto* node = findNode(nodes, path);
    return node && !node->isFolder ? node : nullptr;
}

template <typename Nodes> bool hasFolder(const Nodes& nodes, std::string_view path) {
    const auto* node = findNode(nodes, path);
    return keyOf(path).empty() || (node && node->isFolder);
}

// True when a new file may be made there, or the file that stands there may be changed.
template <typename Nodes> bool mayWrite(const Nodes& nodes, std::string_view path, ReadOnly readOnly) {
    const auto* node = findNode(nodes, path);
    if (node)
        return !node->isFolder && (!node->attributes.readOnly || readOnly == ReadOnly::Kept);
    return hasFolder(nodes, parentOf(normalised(path)));
}

// Calls `visit` with each node below the folder of this key.
template <typename Nodes, typename Visit>
void visitBelow(const Nodes& nodes, const std::string& key, Visit visit) {
    const std::string beginning = key.empty() ? key : key + '\\';
    for (auto at = nodes.lower_bound(beginning); at != nodes.end() && at->first.starts_with(beginning); ++at)
        visit(at->second);
}

} // namespace

void MemoryFileSystem::put(std::string_view path, std::string_view bytes) {
    const std::string normal = normalised(path);
    for (std::string_view folder = parentOf(normal); !folder.empty(); folder = parentOf(folder))
        nodes_.try_emplace(lowerCase(folder), Node{std::string(folder), {}, clock_, true, {}});
    Node& node = nodes_.try_emplace(lowerCase(normal), Node{normal, {}, 0, false, {}}).first->second;
    node.bytes = bytes;
    node.modified = clock_++;
}

std::optional<std::string> MemoryFileSystem::get(std::string_view path) const {
    const Node* node = findFile(nodes_, path);
    return node ? std::optional(node->bytes) : std::nullopt;
}

std::vector<std::string> MemoryFileSystem::allFiles() const {
    std::vector<std::string> files;
    for (const auto& [key, node] : nodes_)
        if (!node.isFolder)
            files.push_back(node.path);
    return files;
}

void MemoryFileSystem::giveAway(std::string_view path) {
    if (Node* node = findNode(nodes_, path))
        node->foreign = true;
}

FileAttributes MemoryFileSystem::attributes(std::string_view path) const {
    const Node* node = findNode(nodes_, path);
    return node ? node->attributes : FileAttributes{};
}

bool MemoryFileSystem::setAttributes(std::string_view path, FileAttributes attributes) {
    Node* node = findNode(nodes_, path);
    if (node)
        node->attributes = attributes;
    return node != nullptr;
}

void MemoryFileSystem::failAt(int call, bool andAllAfter) {
    calls_ = 0;
    failCall_ = call;
    failAllAfter_ = andAllAfter;
    failed_ = false;
}

bool MemoryFileSystem::fails(std::string_view verb, std::string_view path) {
    if (atEachCall)
        atEachCall();
    log.push_back(std::string(verb).append(" ").append(path));
    ++calls_;
    const bool now = failCall_ > 0 && (calls_ == failCall_ || (failAllAfter_ && calls_ > failCall_));
    failed_ = failed_ || now;
    return now;
}

ReadResult MemoryFileSystem::read(std::string_view path, std::string& bytes, std::uint64_t limit) {
    bytes.clear();
    if (fails("readFile", path))
        return ReadResult::Unreadable;
    const Node* node = findNode(nodes_, path);
    if (!node || node->isFolder)
        return node ? ReadResult::Unreadable : ReadResult::Missing;
    if (node->bytes.size() > limit)
        return ReadResult::TooLarge;
    bytes = node->bytes;
    return ReadResult::Done;
}

ReadResult MemoryFileSystem::readStart(std::string_view path, std::string& bytes, std::size_t count) {
    bytes.clear();
    if (fails("readStart", path))
        return ReadResult::Unreadable;
    const Node* node = findNode(nodes_, path);
    if (!node || node->isFolder)
        return node ? ReadResult::Unreadable : ReadResult::Missing;
    bytes = node->bytes.substr(0, count);
    return ReadResult::Done;
}

bool MemoryFileSystem::fileExists(std::string_view path) {
    return !fails("fileExists", path) && findFile(nodes_, path);
}

bool MemoryFileSystem::folderExists(std::string_view path) {
    return !fails("folderExists", path) && !path.empty() && hasFolder(nodes_, path);
}

bool MemoryFileSystem::isOwnFolder(std::string_view path) {
    const Node* node = fails("isOwnFolder", path) ? nullptr : findNode(nodes_, path);
    return node && node->isFolder && !node->foreign;
}

std::optional<FileStamp> MemoryFileSystem::stamp(std::string_view path) {
    const Node* node = fails("stamp", path) ? nullptr : findFile(nodes_, path);
    return node ? std::optional(FileStamp{node->modified, node->bytes.size()}) : std::nullopt;
}

std::vector<FolderEntry> MemoryFileSystem::listFolder(std::string_view path) {
    std::vector<FolderEntry> entries;
    if (fails("listFolder", path) || path.empty() || !hasFolder(nodes_, path))
        return entries;
    const std::string key = keyOf(path);
    visitBelow(nodes_, key, [&](const Node& node) {
        if (lowerCase(parentOf(node.path)) == key && !node.path.empty())
            entries.push_back({std::string(nameOf(node.path)), node.isFolder});
    });
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return lessIgnoringCase(a.name, b.name); });
    return entries;
}

bool MemoryFileSystem::replaceFile(std::string_view path, std::string_view bytes, ReadOnly readOnly) {
    if (fails("writeFile", path) || fails("renameFile", path) || !mayWrite(nodes_, path, readOnly))
        return false;
    put(path, bytes);
    return true;
}

bool MemoryFileSystem::deleteFile(std::string_view path) {
    const bool failing = fails("deleteFile", path);
    const Node* node = findFile(nodes_, path);
    return !failing && node && !node->attributes.readOnly && nodes_.erase(keyOf(path)) == 1;
}

bool MemoryFileSystem::createFolder(std::string_view path) {
    if (fails("createFolder", path) || path.empty())
        return false;
    const std::string normal = normalised(path);
    if (findNode(nodes_, path) || normal.empty())
        return hasFolder(nodes_, path);
    if (!hasFolder(nodes_, parentOf(normal)))
        return false;
    nodes_[lowerCase(normal)] = Node{normal, {}, clock_++, true, {}};
    return true;
}

bool MemoryFileSystem::deleteFolder(std::string_view path) {
    const bool failing = fails("deleteFolder", path);
    const std::string key = keyOf(path);
    const Node* node = findNode(nodes_, path);
    if (failing || !node || !node->isFolder)
        return false;
    bool empty = true;
    visitBelow(nodes_, key, [&empty](const Node&) { empty = false; });
    return empty && nodes_.erase(key) == 1;
}

std::string MemoryFileSystem::nativePath(std::string_view path) {
    return std::string(path);
}

} // namespace zandor
