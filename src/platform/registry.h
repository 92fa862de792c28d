// Read access to the simulator system's registry. On Linux these are the text files of the Wine prefix.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace zandor {

enum class RegistryHive { LocalMachine, CurrentUser, ClassesRoot };

class Registry {
  public:
    virtual ~Registry() = default;
    // The text of a value, or an empty text when there is none. Key and name ignore case; the 32-bit view of
    // "SOFTWARE" is looked at as the simulator, a 32-bit program, would. At most 1024 bytes of the value are
    // taken.
    virtual std::string readString(RegistryHive hive, std::string_view key, std::string_view name) = 0;
};

std::unique_ptr<Registry> makeSystemRegistry(const std::string& winePrefix);

// The same by the name that the operations use.
std::string ReadRegistryString(Registry& registry, RegistryHive hive, std::string_view key,
                               std::string_view name);

} // namespace zandor
