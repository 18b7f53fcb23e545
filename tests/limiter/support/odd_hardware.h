// Machines of many makers, as far as their batteries can be limited, with what is odd about each.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

// A tree of attributes that answer as a test says.
class OddHardware final : public Attributes {
public:
    struct Attribute {
        std::string text;
        std::errc readFailure{};                                  // none unless set
        std::function<std::errc(const std::string& value)> take;  // keeps the value where there is none
        std::function<std::string(const std::string& text)> give; // likewise
    };

    [[nodiscard]] std::vector<std::string> names(const std::string& folder) const override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] tl::expected<std::string, std::error_code>
    read(const std::string& attribute) const override;
    [[nodiscard]] std::error_code write(const std::string& attribute, const std::string& value) override;

    Attribute& operator[](const std::string& path) { return attributes_[path]; }

    [[nodiscard]] std::string text(const std::string& path) const { return attributes_.at(path).text; }

    void remove(const std::string& folder);

    // "BAT0/charge_control_end_threshold=80", in the order of the writes; those that were refused end with
    // "!".
    std::vector<std::string> writes;
    int reads = 0;

private:
    std::map<std::string, Attribute> attributes_;
};

inline const std::string supplies = "class/power_supply/";

// A laptop with one battery that says nothing about limits, on external power.
void addLaptop(OddHardware& hardware, const std::string& battery = "BAT0");
void addBattery(OddHardware& hardware, const std::string& battery);

// The attributes of each maker's driver, with its ways. The battery is there already.
void addThinkPad(OddHardware& hardware, const std::string& battery = "BAT0");
void addIdeaPad(OddHardware& hardware);
void addNewIdeaPad(OddHardware& hardware);
void addAsus(OddHardware& hardware, bool readableAtFirst);
void addDell(OddHardware& hardware);
void addFramework(OddHardware& hardware);
void addFrameworkWithoutStart(OddHardware& hardware);
void addHuawei(OddHardware& hardware);
void addLg(OddHardware& hardware);
void addGalaxyBook(OddHardware& hardware);
void addOlderSamsung(OddHardware& hardware);
void addMsi(OddHardware& hardware);
void addToshiba(OddHardware& hardware);
void addFujitsu(OddHardware& hardware);
void addSystem76(OddHardware& hardware);
void addSony(OddHardware& hardware);
void addTuxedo(OddHardware& hardware);
void addWilco(OddHardware& hardware);
void addAppleMainline(OddHardware& hardware);
void addAppleAsahi(OddHardware& hardware);

// charge_behaviour, which lists its words with the active one in brackets.
void addBehaviour(OddHardware& hardware, const std::string& battery, std::vector<std::string> words);

} // namespace quelby::limiter
