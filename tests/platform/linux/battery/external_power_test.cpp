#include "platform/linux/battery/external_power.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

using enum PackStatus;

constexpr Adapter mainsOn = {AdapterKind::Mains, true};
constexpr Adapter mainsOff = {AdapterKind::Mains, false};
constexpr Adapter portOn = {AdapterKind::Other, true};
constexpr Adapter portOff = {AdapterKind::Other, false};

TEST(ExternalPower, MainsOnlineIsEnough) {
    for (const auto status : {Unknown, Charging, Discharging, NotCharging, Full}) {
        EXPECT_TRUE(isExternalConnected({mainsOn}, {status}));
        EXPECT_TRUE(isExternalConnected({mainsOff, portOff, mainsOn}, {status}));
    }
}

TEST(ExternalPower, OneOfSeveralPortsIsEnough) {
    EXPECT_TRUE(isExternalConnected({portOff, portOn}, {Charging}));
    EXPECT_TRUE(isExternalConnected({portOff, portOn}, {Discharging})) << "the charger is too weak";
    EXPECT_TRUE(isExternalConnected({mainsOff, portOff, portOn}, {Charging}));
}

TEST(ExternalPower, APortBesideIdleMainsFeedsNothingWhileTheBatteryDischarges) {
    EXPECT_FALSE(isExternalConnected({mainsOff, portOn}, {Discharging}));
    EXPECT_FALSE(isExternalConnected({mainsOff, portOn}, {NotCharging, Discharging}));
}

TEST(ExternalPower, WithEverythingOfflineOnlyChargingShowsIt) {
    EXPECT_TRUE(isExternalConnected({mainsOff, portOff}, {Charging}));
    for (const auto status : {Unknown, Discharging, NotCharging, Full}) {
        EXPECT_FALSE(isExternalConnected({mainsOff}, {status}));
    }
}

TEST(ExternalPower, WithoutAdaptersTheBatteriesTell) {
    EXPECT_TRUE(isExternalConnected({}, {Charging}));
    EXPECT_TRUE(isExternalConnected({}, {NotCharging}));
    EXPECT_TRUE(isExternalConnected({}, {Unknown, Full}));
    EXPECT_FALSE(isExternalConnected({}, {Discharging}));
    EXPECT_FALSE(isExternalConnected({}, {Full, Discharging}));
    EXPECT_FALSE(isExternalConnected({}, {Unknown}));
    EXPECT_FALSE(isExternalConnected({}, {Unknown, Unknown}));
}

} // namespace
} // namespace quelby
