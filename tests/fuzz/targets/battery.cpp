#include <algorithm>

#include "fuzz/targets/target.h"
#include "limiter/kernel/power_supplies.h"
#include "limiter/kernel/sysfs_attributes.h"
#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/probe.h"
#include "platform/linux/battery/sysfs_battery_source.h"
#include "support/temporary_folder.h"

namespace quelby::fuzz {

namespace {

bool isName(std::string_view text) {
    return !text.empty() && text.size() < 64 && std::all_of(text.begin(), text.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9') || letter == '_' || letter == '-';
    });
}

// What is no such line is passed over; of the others there are a few dozen at the most, as on real machines.
void fill(const TemporaryFolder& root, std::string_view bytes) {
    constexpr int most = 64;
    std::filesystem::create_directories(root.path() / "class/power_supply");
    for (int lines = 0; lines < most && !bytes.empty(); ++lines) {
        const auto line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        const auto slash = line.find('/');
        const auto equals = line.find('=');
        if (slash < equals && equals != std::string_view::npos && isName(line.substr(0, slash)) &&
            isName(line.substr(slash + 1, equals - slash - 1))) {
            root.write("class/power_supply/" + std::string(line.substr(0, equals)), line.substr(equals + 1));
        }
    }
}

void askTheHelper(const std::filesystem::path& root) {
    const auto attributes = limiter::SysfsAttributes::open(root);
    require(attributes.has_value(), "a tree can be opened");
    const auto supplies = limiter::readPowerSupplies(**attributes);
    require(supplies.percent() >= 0 && supplies.percent() <= 100, "a level is a percentage");
    for (const auto& battery : supplies.batteries) {
        if (const auto mechanism = limiter::probe(**attributes, supplies, battery, [](auto) {})) {
            static_cast<void>(mechanism->levelOf(mechanism->read(), 80));
            static_cast<void>(mechanism->write(mechanism->limitedTo(80, supplies.percent())));
            static_cast<void>(mechanism->write(mechanism->restored(mechanism->read())));
        }
    }
}

} // namespace

void takeSysfs(std::string_view bytes) {
    const TemporaryFolder root(inMemory());
    fill(root, bytes);
    SysfsBatterySource source(root.path());
    static_cast<void>(source.readBattery());
    static_cast<void>(source.readBattery()); // which remembers that it has answered
    askTheHelper(root.path());
}

void takeChoices(std::string_view bytes) {
    const auto choices = limiter::readChoices(bytes);
    require(!choices.active ||
                std::find(choices.words.begin(), choices.words.end(), *choices.active) != choices.words.end(),
            "what is active is one of the choices");
    static_cast<void>(limiter::asChoice(bytes));
}

} // namespace quelby::fuzz
