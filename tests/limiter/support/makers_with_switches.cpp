#include "limiter/support/makers.h"

#include <algorithm>
#include <set>

namespace quelby::limiter {

namespace {

constexpr std::errc fine{};
constexpr auto refused = std::errc::invalid_argument;

void addSwitch(OddHardware& hardware, const std::string& path) {
    hardware[path].text = "0";
    hardware[path].take = [&hardware, path](const std::string& value) {
        if (value != "0" && value != "1") {
            return refused;
        }
        hardware[path].text = value;
        return fine;
    };
}

} // namespace

void addChoices(OddHardware& hardware, const std::string& path, const std::vector<std::string>& words,
                const std::string& active) {
    hardware[path].text = active;
    hardware[path].take = [&hardware, path, words](const std::string& value) {
        auto word = value;
        std::replace(word.begin(), word.end(), ' ', '_');
        if (std::find(words.begin(), words.end(), word) == words.end()) {
            return refused;
        }
        hardware[path].text = word;
        return fine;
    };
    hardware[path].give = [words](const std::string& text) {
        std::string list;
        for (const auto& word : words) {
            list += (list.empty() ? "" : " ") + (word == text ? '[' + word + ']' : word);
        }
        return list;
    };
}

void addBehaviour(OddHardware& hardware, const std::string& battery, const std::vector<std::string>& words) {
    addChoices(hardware, supplies + battery + "/charge_behaviour", words, "auto");
}

void addIdeaPad(OddHardware& hardware) {
    addSwitch(hardware, "bus/platform/drivers/ideapad_acpi/VPC2004:00/conservation_mode");
}

void addNewIdeaPad(OddHardware& hardware) {
    addIdeaPad(hardware);
    addChoices(hardware, supplies + "BAT0/charge_types", {"Fast", "Standard", "Long_Life"}, "Standard");
}

// Goes on limiting to the former level unless that was forgotten first.
void addHuawei(OddHardware& hardware) {
    const std::string pair = "devices/platform/huawei-wmi/charge_control_thresholds";
    hardware[pair].text = "0 100";
    hardware[pair].take = [&hardware, pair](const std::string& value) {
        const bool isLimited = hardware[pair].text != "0 0" && hardware[pair].text != "0 100";
        if (value != "0 100" || !isLimited) {
            hardware[pair].text = value;
        }
        return fine;
    };
    // Those of other makers are there as well.
    hardware[supplies + "BAT0/charge_control_start_threshold"].text = "0";
    hardware[supplies + "BAT0/charge_control_end_threshold"].text = "100";
}

void addOlderSamsung(OddHardware& hardware) {
    addSwitch(hardware, "devices/platform/samsung/battery_life_extender");
}

void addSony(OddHardware& hardware) {
    const std::string limiter = "devices/platform/sony-laptop/battery_care_limiter";
    hardware[limiter].text = "0";
    hardware[limiter].take = [&hardware, limiter](const std::string& value) {
        if (!std::set<std::string>{"0", "50", "80", "100"}.contains(value)) {
            return refused;
        }
        hardware[limiter].text = value;
        return fine;
    };
}

void addAppleMainline(OddHardware& hardware) {
    addBehaviour(hardware, "macsmc-battery", {"auto", "inhibit-charge", "force-discharge"});
}

} // namespace quelby::limiter
