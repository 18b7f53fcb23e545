#include "limiter/support/makers.h"

#include <algorithm>
#include <memory>
#include <set>

namespace quelby::limiter {

namespace {

constexpr std::errc fine{};
constexpr auto refused = std::errc::invalid_argument;

std::string endOf(const std::string& supply) {
    return supplies + supply + "/charge_control_end_threshold";
}

std::string startOf(const std::string& supply) {
    return supplies + supply + "/charge_control_start_threshold";
}

// A pair of levels that two attributes set.
struct Levels {
    int start = 0;
    int end = 100;
};

using Take = std::function<std::errc(Levels& levels, int value)>;

void addLevels(OddHardware& hardware, const std::string& supply, const std::shared_ptr<Levels>& levels,
               const Take& takeStart, const Take& takeEnd) {
    if (takeStart) {
        hardware[startOf(supply)].take = [=](const std::string& value) {
            return takeStart(*levels, std::stoi(value));
        };
        hardware[startOf(supply)].give = [=](const std::string&) { return std::to_string(levels->start); };
    }
    hardware[endOf(supply)].take = [=](const std::string& value) {
        return takeEnd(*levels, std::stoi(value));
    };
    hardware[endOf(supply)].give = [=](const std::string&) { return std::to_string(levels->end); };
}

Take anyEnd() {
    return [](Levels& levels, int value) {
        levels.end = value;
        return fine;
    };
}

Take endAmong(const std::set<int>& values) {
    return [values](Levels& levels, int value) {
        if (!values.contains(value)) {
            return refused;
        }
        levels.end = value;
        return fine;
    };
}

Take endWithin(int lowest, int highest) {
    return [=](Levels& levels, int value) {
        if (value < lowest || value > highest) {
            return refused;
        }
        levels.end = value;
        return fine;
    };
}

// Both are looked at in each write.
Take startBelowEnd() {
    return [](Levels& levels, int value) {
        if (value < 0 || value > 99 || value > levels.end) {
            return refused;
        }
        levels.start = value;
        return fine;
    };
}

Take endAboveStart() {
    return [](Levels& levels, int value) {
        if (value < 1 || value > 100 || value < levels.start) {
            return refused;
        }
        levels.end = value;
        return fine;
    };
}

} // namespace

void addBattery(OddHardware& hardware, const std::string& battery) {
    hardware[supplies + battery + "/type"].text = "Battery";
    hardware[supplies + battery + "/present"].text = "1";
    hardware[supplies + battery + "/status"].text = "Not charging";
    hardware[supplies + battery + "/capacity"].text = "80";
}

void addLaptop(OddHardware& hardware, const std::string& battery) {
    addBattery(hardware, battery);
    hardware[supplies + "AC/type"].text = "Mains";
    hardware[supplies + "AC/online"].text = "1";
}

void addThinkPad(OddHardware& hardware, const std::string& battery) {
    const auto levels = std::make_shared<Levels>();
    addLevels(hardware, battery, levels, startBelowEnd(), endAboveStart());
    addBehaviour(hardware, battery, {"auto", "inhibit-charge", "force-discharge"});
}

// The driver gives back what was last written; it cannot ask the hardware.
void addAsus(OddHardware& hardware, bool readableAtFirst) {
    const auto levels = std::make_shared<Levels>();
    const auto end = endOf("BAT0");
    addLevels(hardware, "BAT0", levels, nullptr, [&hardware, end](Levels& kept, int value) {
        kept.end = value;
        hardware[end].readFailure = fine;
        return fine;
    });
    if (!readableAtFirst) {
        hardware[end].readFailure = std::errc::no_message_available;
    }
}

// Clamps without a word, and keeps the two apart.
void addDell(OddHardware& hardware) {
    const auto levels = std::make_shared<Levels>(Levels{.start = 50, .end = 100});
    addLevels(
        hardware, "BAT0", levels,
        [](Levels& kept, int value) {
            kept.start = std::clamp(value, 50, 95);
            kept.end = std::max(kept.end, kept.start + 5);
            return fine;
        },
        [](Levels& kept, int value) {
            kept.end = std::clamp(value, 55, 100);
            kept.start = std::min(kept.start, kept.end - 5);
            return fine;
        });
    addChoices(hardware, supplies + "BAT0/charge_types",
               {"Trickle", "Fast", "Standard", "Adaptive", "Custom"}, "Adaptive");
}

void addFramework(OddHardware& hardware) {
    addLevels(hardware, "BAT1", std::make_shared<Levels>(), startBelowEnd(), endAboveStart());
    addBehaviour(hardware, "BAT1", {"auto", "inhibit-charge", "force-discharge"});
}

void addFrameworkWithoutStart(OddHardware& hardware) {
    const auto levels = std::make_shared<Levels>();
    addLevels(hardware, "BAT1", levels, nullptr, endWithin(0, 100));
    hardware[startOf("BAT1")].text = "100";
    hardware[startOf("BAT1")].take = [](const std::string&) { return refused; };
    hardware[startOf("BAT1")].give = [=](const std::string&) { return std::to_string(levels->end); };
}

void addLg(OddHardware& hardware) {
    addLevels(hardware, "CMB0", std::make_shared<Levels>(), nullptr, endAmong({80, 100}));
}

void addGalaxyBook(OddHardware& hardware) {
    addLevels(hardware, "BAT1", std::make_shared<Levels>(), nullptr, [](Levels& kept, int value) {
        kept.end = value < 30 ? 100 : value;
        return value < 1 || value > 100 ? refused : fine;
    });
}

// One register: the start is always ten below the end, and setting either sets both.
void addMsi(OddHardware& hardware) {
    const auto levels = std::make_shared<Levels>(Levels{.start = -10, .end = 0});
    const auto set = [](Levels& kept, int end) {
        if (end < 10 || end > 100) {
            return refused;
        }
        kept = {.start = end - 10, .end = end};
        return fine;
    };
    addLevels(
        hardware, "BAT1", levels, [=](Levels& kept, int value) { return set(kept, value + 10); }, set);
}

void addToshiba(OddHardware& hardware) {
    addLevels(hardware, "BAT1", std::make_shared<Levels>(), nullptr, [](Levels& kept, int value) {
        kept.end = value < 90 ? 80 : 100;
        return fine;
    });
}

void addFujitsu(OddHardware& hardware) {
    addLevels(hardware, "CMB1", std::make_shared<Levels>(), nullptr, endWithin(50, 100));
}

void addSystem76(OddHardware& hardware) {
    const auto anyStart = [](Levels& kept, int value) {
        kept.start = value;
        return fine;
    };
    addLevels(hardware, "BAT0", std::make_shared<Levels>(), anyStart, anyEnd());
}

void addTuxedo(OddHardware& hardware) {
    const std::set<int> starts{40, 50, 60, 70, 80, 95};
    addLevels(
        hardware, "BAT0", std::make_shared<Levels>(Levels{.start = 95, .end = 100}),
        [starts](Levels& kept, int value) {
            if (!starts.contains(value)) {
                return refused;
            }
            kept.start = value;
            return fine;
        },
        endAmong({60, 70, 80, 90, 100}));
    hardware[supplies + "BAT0/charge_control_end_available_thresholds"].text = "60 70 80 90 100";
    hardware[supplies + "BAT0/charge_control_start_available_thresholds"].text = "40 50 60 70 80 95";
    hardware[supplies + "BAT0/charge_type"].text = "Standard";
}

void addWilco(OddHardware& hardware) {
    hardware[supplies + "wilco-charger/type"].text = "Mains";
    hardware[supplies + "wilco-charger/online"].text = "1";
    hardware[supplies + "wilco-charger/charge_type"].text = "Standard";
    addLevels(
        hardware, "wilco-charger", std::make_shared<Levels>(Levels{.start = 50, .end = 55}),
        [](Levels& kept, int value) {
            if (value < 50 || value > 95) {
                return refused;
            }
            kept.start = value;
            return fine;
        },
        endWithin(55, 100));
}

void addAppleAsahi(OddHardware& hardware) {
    addLevels(
        hardware, "macsmc-battery", std::make_shared<Levels>(Levels{.start = 75, .end = 100}),
        [](Levels&, int value) { return value == 75 ? fine : refused; }, endAmong({80, 100}));
}

} // namespace quelby::limiter
