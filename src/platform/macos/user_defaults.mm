#include "platform/macos/user_defaults.h"

#include <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>

#include "platform/macos/foundation_text.h"

namespace quelby {

namespace {

NSUserDefaults* defaults() {
    return [NSUserDefaults standardUserDefaults];
}

// The defaults' own accessors would turn texts into Booleans, and numbers into texts.
NSObject* stored(std::string_view key, Class type) {
    const auto name = foundationText(key);
    NSObject* const value = [defaults() objectForKey:name.get()];
    return [value isKindOfClass:type] != NO ? value : nil;
}

} // namespace

void UserDefaults::keep() const {
    if (kind_ == ProgramKind::tool) {
        static_cast<void>(CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication));
    }
}

std::optional<std::string> UserDefaults::text(std::string_view key) {
    @autoreleasepool {
        return standardText(static_cast<NSString*>(stored(key, [NSString class])));
    }
}

bool UserDefaults::flag(std::string_view key) {
    @autoreleasepool {
        return [static_cast<NSNumber*>(stored(key, [NSNumber class])) boolValue] != NO;
    }
}

void UserDefaults::setText(std::string_view key, std::string_view value) {
    @autoreleasepool {
        const auto name = foundationText(key);
        const auto text = foundationText(value);
        [defaults() setObject:text.get() forKey:name.get()];
        keep();
    }
}

void UserDefaults::setFlag(std::string_view key, bool value) {
    @autoreleasepool {
        const auto name = foundationText(key);
        [defaults() setBool:(value ? YES : NO) forKey:name.get()];
        keep();
    }
}

void UserDefaults::remove(std::string_view key) {
    @autoreleasepool {
        const auto name = foundationText(key);
        [defaults() removeObjectForKey:name.get()];
        keep();
    }
}

void UserDefaults::removeAll() {
    @autoreleasepool {
        if (NSString* const domain = [[NSBundle mainBundle] bundleIdentifier]) {
            [defaults() removePersistentDomainForName:domain];
            keep();
        }
    }
}

} // namespace quelby
