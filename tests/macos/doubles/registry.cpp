#include "macos/doubles/registry.h"

#include <set>

#include <IOKit/IOKitLib.h>

#include "macos/doubles/core_foundation.h"

const mach_port_t kIOMainPortDefault = 0;

namespace quelby::fake {

namespace {

struct State {
    Registry registry;
    std::set<io_object_t> entries; // handed out and not released
    io_object_t lastEntry = 0x1000;
};

State& state() {
    static State state;
    return state;
}

Object* tableOf(const Properties& properties) {
    auto* const table = makeObject(Dictionary{});
    for (const auto& [key, value] : properties) {
        contentAs<Dictionary>(table).emplace_back(makeValue(key), makeValue(value));
    }
    return table;
}

} // namespace

Registry& registry() {
    return state().registry;
}

std::size_t unreleased() {
    return unreleasedObjects() + state().entries.size();
}

void forgetEverything() {
    state() = State();
    releaseEverything();
}

} // namespace quelby::fake

using namespace quelby::fake;

CFMutableDictionaryRef IOServiceMatching(const char* name) {
    registry().calls.emplace_back("IOServiceMatching");
    return registry().matchesCanBeMade
               ? asMutableDictionary(tableOf({{std::string("IOProviderClass"), std::string(name)}}))
               : nullptr;
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching) {
    registry().calls.emplace_back("IOServiceGetMatchingService");
    demand(mainPort == kIOMainPortDefault, "the look-up goes to another port");
    const auto& conditions = contentAs<Dictionary>(matching);
    demand(conditions.size() == 1, "the look-up has other conditions than a class");
    const bool isBattery = contentAs<std::string>(conditions.front().second) == "AppleSmartBattery";
    CFRelease(matching);
    return isBattery && registry().battery ? *state().entries.insert(++state().lastEntry).first
                                           : IO_OBJECT_NULL;
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options) {
    using Reading = Registry::Reading;
    registry().calls.emplace_back("IORegistryEntryCreateCFProperties");
    demand(state().entries.contains(entry), "no such entry");
    demand(allocator == kCFAllocatorDefault && options == kNilOptions, "an allocator or options of its own");
    switch (registry().reading) {
    case Reading::succeeds:
        *properties = asMutableDictionary(tableOf(*registry().battery));
        return KERN_SUCCESS;
    case Reading::failsWithATable:
        *properties = asMutableDictionary(tableOf(*registry().battery));
        return 5; // KERN_FAILURE
    case Reading::givesNothing:
        return KERN_SUCCESS;
    case Reading::givesData:
        *properties = asMutableDictionary(makeObject(Data{}));
        return KERN_SUCCESS;
    }
    return 5;
}

kern_return_t IOObjectRelease(io_object_t object) {
    registry().calls.emplace_back("IOObjectRelease");
    demand(state().entries.erase(object) == 1, "no such entry");
    return KERN_SUCCESS;
}
