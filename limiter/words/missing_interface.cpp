#include "limiter/words/missing_interface.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <utility>

namespace quelby::limiter {

namespace {

struct KernelVersion {
    int major = 0; // 0: not known
    int minor = 0;
};

struct Driver {
    std::string_view vendor;  // how the firmware's name of it begins
    std::string_view product; // a part of the product's name; empty: all
    std::string_view name;
    KernelVersion since;
    std::string_view condition = {}; // a further one, as the end of a sentence
};

// The first that fits counts.
constexpr std::array<Driver, 18> drivers{{
    {"Dell", "", "dell_laptop", {6, 12}},
    {"Framework", "", "cros_charge-control", {6, 13}, ", with its option probe_with_fwk_charge_control=1"},
    {"Google", "", "cros_charge-control", {6, 13}},
    {"Micro-Star", "", "msi-ec", {6, 4}},
    {"MSI", "", "msi-ec", {6, 4}},
    {"Samsung", "", "samsung-galaxybook", {6, 15}},
    {"Lenovo", "ThinkPad", "thinkpad_acpi", {}},
    {"Lenovo", "", "ideapad_laptop", {4, 14}},
    {"ASUS", "", "asus-wmi", {}},
    {"Huawei", "", "huawei-wmi", {5, 4}},
    {"Toshiba", "", "toshiba_acpi", {6, 0}},
    {"Dynabook", "", "toshiba_acpi", {6, 0}},
    {"LG Electronics", "", "lg-laptop", {}},
    {"Fujitsu", "", "fujitsu-laptop", {}},
    {"System76", "", "system76_acpi", {}},
    {"Sony", "", "sony-laptop", {}},
    {"Apple", "", "macsmc-power", {}},
    {"TUXEDO", "", "tuxedo-drivers", {}, ", which does not come with the kernel"},
}};

char lower(char character) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

bool fits(const Driver& driver, const MachineFacts& machine) {
    return lowered(machine.vendor).rfind(lowered(driver.vendor), 0) == 0 &&
           lowered(machine.product).find(lowered(driver.product)) != std::string::npos;
}

int numberAt(std::string_view text, std::size_t& position) {
    int number = 0;
    while (position < text.size() && std::isdigit(static_cast<unsigned char>(text[position])) != 0 &&
           number < 100'000) {
        number = number * 10 + (text[position++] - '0');
    }
    return number;
}

KernelVersion versionOf(std::string_view release) {
    std::size_t position = 0;
    KernelVersion version{.major = numberAt(release, position)};
    ++position; // the full stop
    version.minor = numberAt(release, position);
    return version;
}

std::string text(KernelVersion version) {
    return std::to_string(version.major) + '.' + std::to_string(version.minor);
}

} // namespace

std::string missingInterface(const MachineFacts& machine) {
    if (lowered(machine.product).find("surface") != std::string::npos) {
        return "The firmware of this machine lets no operating system limit the charge; its own setup may "
               "have "
               "a switch for it.";
    }
    const auto* const driver =
        std::find_if(drivers.begin(), drivers.end(), [&](const Driver& one) { return fits(one, machine); });
    if (driver == drivers.end()) {
        return "Neither the firmware of this machine nor a driver of this kernel offers a charge level that "
               "could be set.";
    }
    const auto kernel = versionOf(machine.kernel);
    const bool isTooOld =
        std::pair(kernel.major, kernel.minor) < std::pair(driver->since.major, driver->since.minor);
    if (isTooOld) {
        return "Charge levels of this machine need Linux " + text(driver->since) + " or newer (its driver " +
               std::string(driver->name) + std::string(driver->condition) + "); this is Linux " +
               text(kernel) + '.';
    }
    const auto since =
        driver->since.major > 0 ? ", which Linux has since " + text(driver->since) : std::string();
    return "This machine's driver, " + std::string(driver->name) + since + std::string(driver->condition) +
           ", would offer a charge level, but this kernel or firmware has none.";
}

} // namespace quelby::limiter
