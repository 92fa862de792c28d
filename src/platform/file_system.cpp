#include "platform/file_system.h"

#include "platform/letter_case.h"

namespace zandor {

bool replaceFile(FileSystem& files, std::string_view path, std::string_view bytes, ReadOnly readOnly) {
    return !GetFileName(path).empty() && files.replaceFile(path, bytes, readOnly);
}

bool CopyFileOver(FileSystem& files, std::string_view source, std::string_view target) {
    std::string bytes;
    return files.readFile(source, bytes) && replaceFile(files, target, bytes);
}

std::vector<std::string> listFiles(FileSystem& files, std::string_view folder, std::string_view extension) {
    std::vector<std::string> names;
    for (FolderEntry& entry : files.listFolder(folder))
        if (!entry.isFolder && endsWithIgnoringCase(entry.name, extension))
            names.push_back(std::move(entry.name));
    return names;
}

std::string megabytesOf(FileSystem& files, std::string_view path) {
    const auto stamp = files.stamp(path);
    return megabytesOf(stamp ? stamp->size : 0);
}

std::string megabytesOf(std::uint64_t bytes) {
    constexpr std::uint64_t megabyte = 1 << 20;
    return std::to_string((bytes + megabyte - 1) / megabyte);
}

bool FileExists(FileSystem& files, std::string_view path) {
    if (path.ends_with('\\'))
        path.remove_suffix(1);
    return files.fileExists(path);
}

bool isThere(FileSystem& files, std::string_view path) {
    return FileExists(files, path) || files.stamp(path).has_value();
}

bool FolderExists(FileSystem& files, std::string_view path) {
    return !path.empty() && files.folderExists(AddBackslash(path));
}

std::string AddBackslash(std::string_view path) {
    const std::size_t begin = path.find_first_not_of(' ');
    if (begin == std::string_view::npos)
        return "\\";
    std::string ended(path.substr(begin, path.find_last_not_of(' ') + 1 - begin));
    if (!ended.ends_with('\\'))
        ended += '\\';
    return ended;
}

std::string GetFileName(std::string_view path) {
    const std::size_t separator = path.find_last_of("/\\");
    return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

} // namespace zandor
