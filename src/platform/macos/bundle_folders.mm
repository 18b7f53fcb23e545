#include "platform/macos/bundle_folders.h"

#include <cstdlib>

#import <Foundation/Foundation.h>

#include "platform/helper_names.h"
#include "platform/macos/foundation_text.h"

namespace quelby {

namespace {

namespace fs = std::filesystem;

// Every user has these folders, whether they exist or not.
fs::path userFolder(NSSearchPathDirectory directory) {
    @autoreleasepool {
        NSArray<NSString*>* const folders =
            NSSearchPathForDirectoriesInDomains(directory, NSUserDomainMask, YES);
        const auto folder = standardText([folders firstObject]);
        if (!folder) {
            std::abort();
        }
        return *folder;
    }
}

// Nothing outside an application: the main bundle is then the folder that the executable lies in, together
// with whatever else lies there.
std::optional<fs::path> applicationBundle() {
    @autoreleasepool {
        const auto bundle = standardText([[NSBundle mainBundle] bundlePath]);
        return bundle && fs::path(*bundle).extension() == ".app" ? bundle : std::nullopt;
    }
}

std::optional<fs::path> pathOf(NSString* path) {
    const auto text = standardText(path);
    return text ? std::optional<fs::path>(*text) : std::nullopt;
}

} // namespace

fs::path BundleFolders::applicationSupport() {
    return userFolder(NSApplicationSupportDirectory);
}

fs::path BundleFolders::configuration() {
    return userFolder(NSLibraryDirectory) / "Preferences";
}

fs::path BundleFolders::helper() {
    return macos_helper::folder;
}

std::optional<fs::path> BundleFolders::resources() {
    @autoreleasepool {
        return applicationBundle() ? pathOf([[NSBundle mainBundle] resourcePath]) : std::nullopt;
    }
}

fs::path BundleFolders::program() {
    @autoreleasepool {
        const auto executable = pathOf([[NSBundle mainBundle] executablePath]);
        return applicationBundle().value_or(executable.value_or(fs::path()));
    }
}

} // namespace quelby
