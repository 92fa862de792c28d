// A settings file of any bytes: a value that is written reads back, and every other value stays.
#include "frame/settings.h"
#include "surroundings.h"
#include "text/decode.h"
#include "text/lines.h"
#include "text/text.h"

#include <map>
#include <utility>

using namespace zandor;
using fuzz::require;

namespace {

constexpr const char* Path = "\\program\\Zandor.ini";
constexpr const char* Sections[] = {"General", "FormList", "new section", "Bézier"};
constexpr const char* Keys[] = {"InstallDir", "Color1", "ListTop", "Langage", "key"};
constexpr const char* Values[] = {"1",        "0",     "Français", "C:\\Train Simulator",
                                  "12582847", "a=b;c", "[x]",      "#"};

using ValueMap = std::map<std::pair<std::string, std::string>, std::string>;

// The value of every section and key that the file names, in lower case, as the reader gives it.
ValueMap readAll(fuzz::Surroundings& around) {
    std::string text, section;
    decodeSettingsText(around.files.get(Path).value_or(""), text);
    ValueMap values;
    forEachLine(text, [&](std::string_view raw) {
        const std::string_view line = trim(raw);
        const std::size_t equals = line.find('=');
        if (!line.empty() && line.front() == '[' && line.find(']') != std::string_view::npos)
            section = line.substr(1, line.find(']') - 1);
        else if (equals != std::string_view::npos && values.size() < 100) {
            const std::string key(trim(line.substr(0, equals)));
            values[{lowerCase(section), lowerCase(key)}] = around.profiles.ReadIniValue(section, key, Path);
        }
    });
    return values;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const std::string section = input.PickValueInArray(Sections);
    const std::string key = input.PickValueInArray(Keys);
    const std::string value = input.PickValueInArray(Values);
    fuzz::Surroundings around;
    around.files.put(Path, fuzz::fileOf(input));

    ValueMap before = readAll(around);
    require(around.profiles.WriteIniValue(section, key, value, Path),
            "a file that can be written is written");
    require(around.profiles.ReadIniValue(section, key, Path) == value, "a value that was written reads back");
    ValueMap after = readAll(around);
    before.erase({lowerCase(section), lowerCase(key)});
    after.erase({lowerCase(section), lowerCase(key)});
    require(before == after, "every other value stays");
    return 0;
}
