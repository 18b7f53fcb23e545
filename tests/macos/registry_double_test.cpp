// What the double of the registry is trusted with: that it notices mistakes.

#include <gtest/gtest.h>

#include <IOKit/IOKitLib.h>

#include "macos/doubles/core_foundation.h"
#include "macos/doubles/registry.h"

namespace quelby {
namespace {

class RegistryDouble : public testing::Test {
protected:
    RegistryDouble() {
        fake::forgetEverything();
        fake::registry().battery = {{std::string("Voltage"), std::int64_t{12000}}};
    }

    void TearDown() override { fake::forgetEverything(); }

    static io_service_t battery() {
        return IOServiceGetMatchingService(kIOMainPortDefault, IOServiceMatching("AppleSmartBattery"));
    }

    static CFMutableDictionaryRef properties(io_service_t service) {
        CFMutableDictionaryRef created = nullptr;
        EXPECT_EQ(IORegistryEntryCreateCFProperties(service, &created, kCFAllocatorDefault, kNilOptions),
                  KERN_SUCCESS);
        return created;
    }

    static CFTypeRef firstValue(CFDictionaryRef dictionary) {
        const void* key = nullptr;
        const void* value = nullptr;
        CFDictionaryGetKeysAndValues(dictionary, &key, &value);
        return value;
    }
};

TEST_F(RegistryDouble, CountsWhatNobodyReleases) {
    EXPECT_EQ(fake::unreleased(), 0U);
    const auto service = battery();
    EXPECT_EQ(fake::unreleased(), 1U);
    const auto table = properties(service);
    EXPECT_EQ(fake::unreleased(), 4U); // with the key and the value
    CFRelease(table);
    IOObjectRelease(service);
    EXPECT_EQ(fake::unreleased(), 0U);
}

TEST_F(RegistryDouble, KnowsOneClassOfServices) {
    EXPECT_EQ(IOServiceGetMatchingService(kIOMainPortDefault, IOServiceMatching("AppleSmartBatery")),
              IO_OBJECT_NULL);
}

TEST_F(RegistryDouble, EndsTheProgramThatReleasesTwice) {
    const auto service = battery();
    const auto table = properties(service);
    CFRelease(table);
    IOObjectRelease(service);
    EXPECT_DEATH(CFRelease(table), "gone");
    EXPECT_DEATH(IOObjectRelease(service), "no such entry");
}

TEST_F(RegistryDouble, EndsTheProgramThatReleasesWhatItDoesNotOwn) {
    const auto table = properties(battery());
    EXPECT_DEATH((CFRelease(firstValue(table)), CFRelease(table)), "gone");
}

TEST_F(RegistryDouble, EndsTheProgramThatReleasesTheConditionsOfALookUp) {
    const auto matching = IOServiceMatching("AppleSmartBattery");
    static_cast<void>(IOServiceGetMatchingService(kIOMainPortDefault, matching));
    EXPECT_DEATH(CFRelease(matching), "gone");
}

TEST_F(RegistryDouble, EndsTheProgramThatTakesAnObjectForAnotherType) {
    const auto table = properties(battery());
    EXPECT_DEATH(static_cast<void>(CFStringGetLength(static_cast<CFStringRef>(firstValue(table)))),
                 "another type");
}

TEST_F(RegistryDouble, EndsTheProgramThatGoesOnWithNothing) {
    CFTypeRef nothing = nullptr;
    EXPECT_DEATH(static_cast<void>(CFGetTypeID(nothing)), "no such object");
    EXPECT_DEATH(static_cast<void>(properties(IO_OBJECT_NULL)), "no such entry");
}

} // namespace
} // namespace quelby
