#include "tree_maker.h"

#include "text/decode.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <vector>

namespace zandor::bench {

namespace {

constexpr int StockPerFolder = 10;
constexpr int NamedPerFolder = 2, TexturesPerShape = 10, WavesPerSet = 5;
constexpr int ServicesPerRoute = 100, ActivitiesPerRoute = 25;
constexpr int VehiclesStanding = 30, VehiclesPerTrain = 6; // in an activity
// In characters of the text; a file has two bytes a character.
constexpr std::size_t EngineLength = 12000;
constexpr std::size_t WagonLength = 1820;
constexpr std::size_t ShapeLength = 30000;

// The standard library's distributions differ between systems; this doesn't.
class Dice {
  public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}

    int roll(int sides) { return static_cast<int>(next() % static_cast<std::uint64_t>(sides)); }
    int between(int low, int high) { return low + roll(high - low + 1); }
    bool chance(int percent) { return roll(100) < percent; }
    std::string decimal(int low, int high, int divisor) {
        const int value = between(low, high);
        std::string digits = std::to_string(value % divisor);
        digits.insert(0, std::to_string(divisor).size() - 1 - digits.size(), '0');
        return std::to_string(value / divisor) + "." + digits;
    }
    template <std::size_t N> std::string_view pick(const std::string_view (&choices)[N]) {
        return choices[roll(static_cast<int>(N))];
    }

  private:
    std::uint64_t next() { // SplitMix64
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    std::uint64_t state_;
};

constexpr std::string_view FolderWords[] = {"Vallon",   "Boreal", "Cerise", "Omnibus",
                                            "Garrigue", "Quai",   "Sillon"};
constexpr std::string_view WagonWords[] = {"voit", "couv", "plat", "citerne", "tombereau", "fourgon"};
constexpr std::string_view EngineWords[] = {"loco", "auto", "manoeuvre", "ligne"};
constexpr std::string_view EngineTypes[] = {"Electric", "Diesel", "Steam"};
constexpr std::string_view WagonTypes[] = {"Carriage", "Freight", "Freight", "Tender"};
constexpr std::string_view Couplings[] = {"Chain", "Automatic", "Bar"};
constexpr std::string_view Brakes[] = {"Air_single_pipe", "Air_twin_pipe", "Vacuum_single_pipe", "EP"};
constexpr std::string_view Sentences[] = {
    "Built for the mountain lines, it has served on every branch of the network.",
    "The prototype ran in a livery of green and cream for its first ten years.",
    "Its brakes were replaced after long trials with loaded trains on the southern ramp.",
    "Only a few of the series are left; most of them haul gravel and engineering trains.",
    "Drivers liked the quiet cab and the good view over the short bonnet."};

struct StockName {
    std::string folder;
    std::string name; // without extension
    bool isEngine = false;
    std::string shape, sounds; // without extension
    bool hasCabView = true;
};

// Lines of a bracketed file at the depth in hand.
class Lines {
  public:
    std::string text;

    // The letter that tells the kind of file: D for consists and stock.
    explicit Lines(char kind = 'D')
        : text(std::string("SIMISA@@@@@@@@@@JINX0") + kind + "0t______\r\n\r\n") {}

    // The pieces, which are evaluated in their order, make one text.
    using Pieces = std::initializer_list<std::string_view>;

    void line(Pieces pieces) {
        text.append(depth_, '\t');
        append(pieces);
        text += "\r\n";
    }
    void key(std::string_view name, Pieces value) {
        text.append(depth_, '\t').append(name).append(" ( ");
        append(value);
        text += " )\r\n";
    }
    void key(std::string_view name, std::string_view value) { key(name, Pieces{value}); }
    void open(std::string_view name, std::string_view value = {}) {
        line({name, value.empty() ? " (" : " ( ", value});
        ++depth_;
    }
    void close() {
        --depth_;
        line({")"});
    }

  private:
    void append(Pieces pieces) {
        for (const std::string_view piece : pieces)
            text += piece;
    }

    std::size_t depth_ = 0;
};

std::string vector3(Dice& dice) {
    std::string text = dice.decimal(0, 2000, 1000);
    text.append(1, ' ').append(dice.decimal(500, 3500, 1000));
    return text.append(1, ' ').append(dice.decimal(0, 12000, 1000));
}

void addCoupling(Lines& lines, Dice& dice, std::string_view type) {
    lines.open("Coupling");
    lines.key("Type", type);
    lines.open("Spring");
    lines.key("Stiffness", "1e6N/m 5e6N/m");
    lines.key("Damping", "1e6N/m/s 1e6N/m/s");
    lines.key("Break", {dice.decimal(30, 90, 10), "e6N 7.1e6N"});
    lines.key("r0", "20cm 30cm");
    lines.close();
    lines.key("Velocity", "0.1m/s");
    lines.close();
}

void addCouplings(Lines& lines, Dice& dice) {
    const std::string_view front = dice.pick(Couplings);
    addCoupling(lines, dice, front);
    if (dice.chance(30))
        addCoupling(lines, dice, dice.chance(70) ? front : dice.pick(Couplings));
}

void addLight(Lines& lines, Dice& dice, int states) {
    lines.open("Light");
    lines.line({"comment( lamp ", std::to_string(dice.between(1, 40)), " of the front )"});
    lines.key("Type", std::to_string(dice.roll(2)));
    lines.open("Conditions");
    lines.key("Headlight", std::to_string(dice.between(1, 3)));
    lines.key("Unit", "2");
    lines.close();
    lines.key("FadeIn", "0.5");
    lines.key("FadeOut", "0.5");
    lines.open("States", std::to_string(states));
    for (int i = 0; i < states; ++i) {
        lines.open("State");
        lines.key("Duration", "0.0");
        lines.key("LightColour", dice.chance(50) ? "80ffffc8" : "00ff1010");
        lines.key("Position", vector3(dice));
        lines.key("Azimuth", "0.0 0.0 0.0");
        lines.key("Transition", "0");
        lines.key("Radius", dice.decimal(20, 60, 100));
        lines.close();
    }
    lines.close();
    lines.close();
}

void addLights(Lines& lines, Dice& dice, int count) {
    lines.open("Lights", std::to_string(count));
    for (int i = 0; i < count; ++i)
        addLight(lines, dice, dice.between(1, 2));
    lines.close();
}

void addWagonHead(Lines& lines, Dice& dice, const StockName& stock) {
    lines.line({"comment( ", dice.pick(Sentences), " )"});
    lines.key("Type", stock.isEngine ? "Engine" : dice.pick(WagonTypes));
    lines.key("WagonShape", {stock.shape, ".s"});
    lines.key("Size", {dice.decimal(260, 310, 100), "m ", dice.decimal(340, 430, 100), "m ",
                       dice.decimal(900, 2650, 100), "m"});
    lines.key("Mass", {dice.decimal(120, 900, 10), "t", dice.chance(20) ? " #empty" : ""});
    lines.key("InertiaTensor", {"Box (", dice.decimal(260, 310, 100), "m 4m 18m)"});
}

void addWagonRunning(Lines& lines, Dice& dice) {
    lines.key("WheelRadius", {dice.decimal(40, 60, 100), "m"});
    lines.key("NumWheels", "4");
    addCouplings(lines, dice);
    lines.key("Buffers", "0.1m");
    lines.key("Adhesion", "0.2 0.4 2 0");
    lines.key("DerailRailHeight", "4cm");
    lines.key("DerailRailForce", {"2.5m/s^2*", dice.decimal(120, 900, 10), "t"});
    lines.key("BrakeEquipmentType", "\"Handbrake, Distributor, Auxilary_reservoir\"");
    lines.key("BrakeSystemType", {"\"", dice.pick(Brakes), "\""});
    lines.key("MaxBrakeForce", {std::to_string(dice.between(20, 90)), "kN"});
    lines.key("Friction", {std::to_string(dice.between(300, 900)), "N/m/s 1 -1mph 0 1"});
}

std::string wagonText(const StockName& stock, Dice& dice) {
    Lines lines;
    const std::size_t wanted = WagonLength + dice.roll(400) - 250;
    lines.open("Wagon", stock.name);
    addWagonHead(lines, dice, stock);
    addWagonRunning(lines, dice);
    lines.key("Sound", {"\"", stock.sounds, ".sms\""});
    lines.key("Name", {"\"", stock.name, " ", std::to_string(dice.between(100, 999)), "\""});
    while (lines.text.size() + 150 < wanted)
        lines.line({"comment( ", dice.pick(Sentences), " ", dice.pick(Sentences), " )"});
    lines.close();
    return std::move(lines.text);
}

void addControllers(Lines& lines, Dice& dice) {
    lines.open("EngineControllers");
    lines.key("Throttle", "0 1 0.125 0");
    lines.key("Combined_Control", "0 1 0.5 0.0 throttle dynamic");
    lines.open("Brake_Train", "0 1 0.1 0.3");
    const int notches = dice.between(4, 9);
    lines.open("NumNotches", std::to_string(notches));
    for (int i = 0; i < notches; ++i)
        lines.key("Notch",
                  {dice.decimal(0, 999, 1000), " 0 TrainBrakesControllerGraduatedSelfLapLimitedStart"});
    lines.close();
    lines.close();
    lines.key("Brake_Hand", "0 1 0.1 0");
    lines.key("DirControl", "-1 1 1 0");
    lines.key("EmergencyStopResetToggle", "0 1 0");
    lines.close();
}

void addCurve(Lines& lines, Dice& dice, std::string_view name, int points) {
    lines.open(name, std::to_string(points));
    for (int i = 0; i < points; ++i)
        lines.line({std::to_string(i * 4), " ", dice.decimal(1000, 90000, 10)});
    lines.close();
}

void addDescription(Lines& lines, Dice& dice) {
    const int sentences = dice.between(3, 7);
    for (int i = 0; i < sentences; ++i)
        lines.line({i == 0 ? "Description ( \"" : "\"", dice.pick(Sentences), "\\n\\n\"",
                    i + 1 < sentences ? "+" : " )"});
}

void addEngineHead(Lines& lines, Dice& dice, const StockName& stock) {
    lines.key("Wagon", stock.name);
    lines.key("Type", dice.pick(EngineTypes));
    lines.key("Name", {"\"", stock.name, " ", std::to_string(dice.between(100, 9999)), "\""});
    lines.key("MaxPower", {std::to_string(dice.between(400, 6400)), "kW"});
    lines.key("MaxForce", {std::to_string(dice.between(80, 420)), "kN"});
    lines.key("MaxContinuousForce", {std::to_string(dice.between(60, 300)), "kN"});
    lines.key("MaxVelocity", {std::to_string(dice.between(60, 220)), "km/h"});
    lines.key("MaxCurrent", {std::to_string(dice.between(400, 1800)), "A"});
    lines.key("WheelRadius", {dice.decimal(45, 65, 100), "m"});
    for (const std::string_view effect : {"ExhaustFX", "StackFX", "CylindersFX"})
        lines.key(effect, {vector3(dice), " 0 1 0 ", dice.decimal(5, 30, 100)});
    if (stock.hasCabView)
        lines.key("CabView", {stock.name, ".cvf"});
    lines.key("HeadOut", {"-1.4 3.1 ", dice.decimal(400, 1100, 100)});
    lines.key("Sound", {"\"", stock.sounds, stock.hasCabView ? "eng.sms\"" : ".sms\""});
}

void addEngineBlock(Lines& lines, Dice& dice, const StockName& stock, std::size_t wanted) {
    lines.open("Engine", stock.name);
    addEngineHead(lines, dice, stock);
    addControllers(lines, dice);
    for (const std::string_view curve :
         {"TractiveEffortCurve", "DynamicBrakeCurve", "ResistanceCurve", "FuelCurve"})
        addCurve(lines, dice, curve, dice.between(12, 24));
    for (const std::string_view variable : {"Doors", "Wipers", "Sander", "Bell", "Horn", "Pantograph"})
        lines.key(std::string(variable) + "Toggle", {"0 1 ", std::to_string(dice.roll(2))});
    lines.key("EngineVariables", {"0 0 0.2 0.45 1 0 0 1 ", dice.decimal(100, 999, 1000)});
    addDescription(lines, dice);
    for (int i = 1; lines.text.size() + 60 < wanted; ++i)
        lines.key("Gauge" + std::to_string(i),
                  {dice.decimal(0, 9000, 100), " ", dice.decimal(0, 9000, 100), " 0 1"});
    lines.close();
}

std::string engineText(const StockName& stock, Dice& dice) {
    Lines lines;
    const std::size_t wanted = EngineLength + dice.roll(3000) - 1500;
    lines.open("Wagon", stock.name);
    addWagonHead(lines, dice, stock);
    addWagonRunning(lines, dice);
    lines.open("Inside");
    lines.key("Sound", {stock.sounds, stock.hasCabView ? "cab.sms" : ".sms"});
    lines.close();
    addLights(lines, dice, dice.between(14, 18));
    lines.close();
    lines.line({""});
    addEngineBlock(lines, dice, stock, wanted);
    return std::move(lines.text);
}

void addVehicle(Lines& lines, Dice& dice, const std::vector<StockName>& stock, int number) {
    const StockName& vehicle = stock[dice.roll(static_cast<int>(stock.size()))];
    lines.open(vehicle.isEngine ? "Engine" : "Wagon");
    lines.key(vehicle.isEngine ? "EngineData" : "WagonData", {vehicle.name, " ", vehicle.folder});
    lines.key("UiD", std::to_string(number));
    lines.close();
}

std::string consistText(const std::string& name, const std::vector<StockName>& stock, Dice& dice) {
    Lines lines;
    const int vehicles = dice.between(6, 12);
    lines.open("Train");
    lines.open("TrainCfg", name);
    lines.key("Name", {"\"Train ", name, "\""});
    lines.key("Serial", "1");
    lines.key("MaxVelocity", "40.00000 1.00000");
    lines.key("NextWagonUID", std::to_string(vehicles));
    lines.key("Durability", "1.00000");
    for (int i = 0; i < vehicles && !stock.empty(); ++i)
        addVehicle(lines, dice, stock, i);
    lines.close();
    lines.close();
    return std::move(lines.text);
}

std::string serviceText(const std::string& name, int consists, Dice& dice) {
    Lines lines('v');
    lines.open("Service_Definition");
    lines.key("Serial", "1");
    lines.key("Name", {"\"Service ", name, "\""});
    lines.key("Train_Config", {"rame", std::to_string(dice.roll(consists))});
    lines.key("PathID", {"path", std::to_string(dice.roll(40))});
    lines.key("MaxWheelAcceleration", dice.decimal(200, 900, 1000));
    lines.key("Efficiency", dice.decimal(70, 99, 100));
    lines.key("TimeTable", "0");
    lines.close();
    return std::move(lines.text);
}

void addStandingTrain(Lines& lines, Dice& dice, const std::vector<StockName>& stock, int vehicles) {
    lines.open("ActivityObject");
    lines.key("ObjectType", "WagonsList");
    lines.open("Train_Config");
    lines.open("TrainCfg", "\"\"");
    lines.key("MaxVelocity", "0 0.001");
    lines.key("Durability", "1");
    for (int i = 0; i < vehicles; ++i)
        addVehicle(lines, dice, stock, i);
    lines.close();
    lines.close();
    lines.key("Direction", std::to_string(dice.roll(2)));
    lines.key("ID", std::to_string(dice.between(32768, 65000)));
    lines.key("Tile", {"-6079 14925 ", dice.decimal(0, 99999, 100), " ", dice.decimal(0, 99999, 100)});
    lines.close();
}

void addTraffic(Lines& lines, Dice& dice, int services) {
    lines.open("Traffic_Definition", "traffic");
    for (int i = 0; i < services; ++i) {
        lines.open("Service_Definition", {"service"});
        lines.key("Time", std::to_string(dice.between(0, 86000)));
        lines.key("UiD", std::to_string(i + 1));
        lines.close();
    }
    lines.close();
}

void addEvents(Lines& lines, Dice& dice, int events) {
    lines.open("Events");
    for (int i = 0; i < events; ++i) {
        lines.open("EventCategoryLocation");
        lines.key("EventTypeLocation", "");
        lines.key("ID", std::to_string(i));
        lines.key("Activation_Level", "1");
        lines.key("Outcomes", {"DisplayMessage ( \"", dice.pick(Sentences), "\" )"});
        lines.key("Location", {"-6079 14925 ", dice.decimal(0, 99999, 100), " 10"});
        lines.close();
    }
    lines.close();
}

std::string activityText(const std::string& name, const std::vector<StockName>& stock, Dice& dice) {
    Lines lines('a');
    lines.open("Tr_Activity");
    lines.key("Serial", "1");
    lines.open("Tr_Activity_Header");
    lines.key("RouteID", "route");
    lines.key("Name", {"\"Activity ", name, "\""});
    addDescription(lines, dice);
    lines.key("StartTime", "8 30 0");
    lines.close();
    lines.open("Tr_Activity_File");
    addTraffic(lines, dice, dice.between(8, 16));
    addEvents(lines, dice, dice.between(6, 12));
    lines.open("ActivityObjects");
    for (int train = 0; train < VehiclesStanding / VehiclesPerTrain; ++train)
        addStandingTrain(lines, dice, stock, VehiclesPerTrain);
    lines.close();
    lines.close();
    lines.close();
    return std::move(lines.text);
}

std::vector<StockName> nameStock(int count, Dice& dice, bool withNamedFiles) {
    std::vector<StockName> stock;
    std::string folder;
    for (int i = 0; i < count; ++i) {
        if (i % StockPerFolder == 0)
            folder = std::string(dice.pick(FolderWords)) + std::to_string(i / StockPerFolder);
        const bool isEngine = i % 2 == 0;
        const std::string_view word = isEngine ? dice.pick(EngineWords) : dice.pick(WagonWords);
        const std::string name = std::string(word) + std::to_string(i),
                          number = std::to_string(i % NamedPerFolder);
        if (withNamedFiles)
            stock.push_back({folder, name, isEngine, "forme" + number, "sons" + number, false});
        else
            stock.push_back({folder, name, isEngine, name, name});
    }
    return stock;
}

bool writeUtf16(const std::filesystem::path& path, const std::string& text) {
    const std::string bytes = "\xFF\xFE" + encodeUtf16(text);
    std::ofstream file(path, std::ios::binary);
    return static_cast<bool>(file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush());
}

bool writeStock(const std::filesystem::path& trainset, const std::vector<StockName>& stock, Dice& dice) {
    for (const StockName& one : stock) {
        std::filesystem::create_directory(trainset / one.folder);
        const std::string text = one.isEngine ? engineText(one, dice) : wagonText(one, dice);
        if (!writeUtf16(trainset / one.folder / (one.name + (one.isEngine ? ".eng" : ".wag")), text))
            return false;
    }
    return true;
}

std::string shapeText(const std::string& name, Dice& dice) {
    Lines lines;
    lines.text = "SIMISA@@@@@@@@@@JINX0s1t______\r\n\r\n";
    lines.open("shape");
    lines.open("images", std::to_string(TexturesPerShape));
    for (int i = 0; i < TexturesPerShape; ++i)
        lines.key("image", {name, "_", std::to_string(i), ".ace"});
    lines.close();
    lines.open("points");
    while (lines.text.size() < ShapeLength)
        lines.key("point", vector3(dice));
    lines.close();
    lines.close();
    return std::move(lines.text);
}

std::string soundSetText(const std::string& name) {
    Lines lines;
    lines.text = "SIMISA@@@@@@@@@@JINX0x1t______\r\n\r\n";
    lines.open("Tr_SMS");
    for (int i = 0; i < WavesPerSet; ++i) {
        lines.open("Stream");
        lines.key("Priority", "4");
        lines.open("Triggers", "1");
        lines.key("File", {"\"", name, "_", std::to_string(i), ".wav\" -1"});
        lines.close();
        lines.key("Volume", "0.8");
        lines.close();
    }
    lines.close();
    return std::move(lines.text);
}

// What only has to be there is empty.
bool writeNamedFiles(const std::filesystem::path& folder, Dice& dice) {
    std::error_code error;
    std::filesystem::create_directory(folder / "Sound", error);
    bool written = !error;
    for (int i = 0; i < NamedPerFolder; ++i) {
        const std::string shape = "forme" + std::to_string(i), sounds = "sons" + std::to_string(i);
        written = written && writeUtf16(folder / (shape + ".s"), shapeText(shape, dice)) &&
                  writeUtf16(folder / "Sound" / (sounds + ".sms"), soundSetText(sounds));
        for (int j = 0; j < TexturesPerShape; ++j)
            written = written && std::ofstream(folder / (shape + "_" + std::to_string(j) + ".ace"));
        for (int j = 0; j < WavesPerSet; ++j)
            written =
                written && std::ofstream(folder / "Sound" / (sounds + "_" + std::to_string(j) + ".wav"));
    }
    return written;
}

std::string numbered(std::string_view word, int number, std::string_view extension) {
    return std::string(word).append(std::to_string(number)).append(extension);
}

bool writeRoute(const std::filesystem::path& folder, const std::string& name, const TreeSize& size,
                const std::vector<StockName>& stock, Dice& dice) {
    std::filesystem::create_directories(folder / "SERVICES");
    std::filesystem::create_directories(folder / "ACTIVITIES");
    Lines track('r');
    track.open("Tr_RouteFile");
    track.key("RouteID", name);
    track.key("Name", {"\"The line of ", name, "\""});
    track.close();
    bool written = writeUtf16(folder / (name + ".trk"), track.text);
    for (int i = 0; i < ServicesPerRoute; ++i)
        written = written && writeUtf16(folder / "SERVICES" / numbered("s", i, ".srv"),
                                        serviceText(std::to_string(i), std::max(size.consists, 1), dice));
    for (int i = 0; i < ActivitiesPerRoute && !stock.empty(); ++i)
        written = written && writeUtf16(folder / "ACTIVITIES" / numbered("a", i, ".act"),
                                        activityText(std::to_string(i), stock, dice));
    return written;
}

} // namespace

bool makeTree(const std::string& root, const TreeSize& size) {
    const std::filesystem::path trains = std::filesystem::path(root) / "TRAINS";
    std::error_code error;
    std::filesystem::create_directories(trains / "TRAINSET", error);
    std::filesystem::create_directories(trains / "CONSISTS", error);
    std::filesystem::create_directories(std::filesystem::path(root) / "ROUTES", error);
    Dice dice(size.seed);
    const std::vector<StockName> stock = nameStock(size.stock, dice, size.withNamedFiles);
    if (error || !writeStock(trains / "TRAINSET", stock, dice))
        return false;
    for (std::size_t i = 0; size.withNamedFiles && i < stock.size(); i += StockPerFolder)
        if (!writeNamedFiles(trains / "TRAINSET" / stock[i].folder, dice))
            return false;
    for (int i = 0; i < size.consists; ++i) {
        const std::string name = "rame" + std::to_string(i);
        if (!writeUtf16(trains / "CONSISTS" / (name + ".con"), consistText(name, stock, dice)))
            return false;
    }
    for (int i = 0; i < size.routes; ++i) {
        const std::string name = numbered("route", i, "");
        if (!writeRoute(std::filesystem::path(root) / "ROUTES" / name, name, size, stock, dice))
            return false;
    }
    return true;
}

} // namespace zandor::bench
