#include "platform/macos/iokit_battery_source.h"

#include <optional>
#include <utility>
#include <vector>

#include <IOKit/IOKitLib.h>

#include "platform/macos/core_foundation_owner.h"

namespace quelby {

namespace {

// The one owner of an entry of the registry.
class RegistryEntry {
public:
    explicit RegistryEntry(io_service_t handle) : handle_(handle) {}

    RegistryEntry(const RegistryEntry&) = delete;
    RegistryEntry& operator=(const RegistryEntry&) = delete;

    ~RegistryEntry() {
        if (exists()) {
            IOObjectRelease(handle_);
        }
    }

    [[nodiscard]] bool exists() const { return handle_ != IO_OBJECT_NULL; }

    [[nodiscard]] io_service_t handle() const { return handle_; }

private:
    io_service_t handle_;
};

using Properties = CoreFoundationOwner<CFMutableDictionaryRef>;

io_service_t findBatteryService() {
    const CFMutableDictionaryRef matching = IOServiceMatching("AppleSmartBattery");
    // The look-up releases what it is given.
    return matching == nullptr ? IO_OBJECT_NULL : IOServiceGetMatchingService(kIOMainPortDefault, matching);
}

Properties propertiesOf(const RegistryEntry& service) {
    CFMutableDictionaryRef created = nullptr;
    const kern_return_t outcome =
        IORegistryEntryCreateCFProperties(service.handle(), &created, kCFAllocatorDefault, kNilOptions);
    Properties properties(created);
    return outcome == KERN_SUCCESS ? std::move(properties) : nullptr;
}

std::optional<std::string> textOf(CFTypeRef object) {
    if (CFGetTypeID(object) != CFStringGetTypeID()) {
        return std::nullopt;
    }
    const auto string = static_cast<CFStringRef>(object);
    const CFIndex longest =
        CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8);
    std::vector<char> buffer(static_cast<std::size_t>(longest) + 1);
    const auto size = static_cast<CFIndex>(buffer.size());
    return CFStringGetCString(string, buffer.data(), size, kCFStringEncodingUTF8) != 0
               ? std::optional<std::string>(buffer.data())
               : std::nullopt;
}

std::optional<std::int64_t> integerOf(CFNumberRef number) {
    std::int64_t integer = 0;
    if (CFNumberIsFloatType(number) != 0 || CFNumberGetValue(number, kCFNumberSInt64Type, &integer) == 0) {
        return std::nullopt;
    }
    return integer;
}

std::optional<PropertyValue> valueOf(CFTypeRef object) {
    const CFTypeID type = CFGetTypeID(object);
    if (type == CFBooleanGetTypeID()) {
        return CFBooleanGetValue(static_cast<CFBooleanRef>(object)) != 0;
    }
    if (type == CFNumberGetTypeID()) {
        return integerOf(static_cast<CFNumberRef>(object));
    }
    return std::nullopt;
}

std::optional<PropertyTable> tableFrom(CFDictionaryRef properties) {
    const auto count = static_cast<std::size_t>(CFDictionaryGetCount(properties));
    std::vector<const void*> keys(count);
    std::vector<const void*> values(count);
    CFDictionaryGetKeysAndValues(properties, keys.data(), values.data());
    PropertyTable table;
    for (std::size_t index = 0; index < count; ++index) {
        const auto key = textOf(keys[index]);
        if (!key) {
            return std::nullopt;
        }
        if (const auto value = valueOf(values[index])) {
            table.emplace(*key, *value);
        }
    }
    return table;
}

bool isDictionary(CFTypeRef object) {
    return CFGetTypeID(object) == CFDictionaryGetTypeID();
}

} // namespace

BatteryReading IokitBatterySource::readBattery() {
    const RegistryEntry service(findBatteryService());
    if (!service.exists()) {
        return NoBattery{};
    }
    const auto properties = propertiesOf(service);
    if (!properties || !isDictionary(properties.get())) {
        return UnreadableBattery{};
    }
    auto table = tableFrom(properties.get());
    return table ? BatteryReading(std::move(*table)) : UnreadableBattery{};
}

} // namespace quelby
