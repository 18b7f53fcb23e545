// Machines of many makers, as far as their batteries can be limited, with what is odd about each.
#pragma once

#include <string>
#include <vector>

#include "limiter/support/odd_hardware.h"

namespace quelby::limiter {

inline const std::string supplies = "class/power_supply/";
inline const std::string bat0 = supplies + "BAT0/";
inline const std::string endThreshold = bat0 + "charge_control_end_threshold";
inline const std::string startThreshold = bat0 + "charge_control_start_threshold";
inline const std::string behaviour = bat0 + "charge_behaviour";

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

// An attribute that gives its words with the active one in brackets.
void addChoices(OddHardware& hardware, const std::string& path, const std::vector<std::string>& words,
                const std::string& active);

// charge_behaviour, one of these.
void addBehaviour(OddHardware& hardware, const std::string& battery, const std::vector<std::string>& words);

} // namespace quelby::limiter
