// Stands in for the frameworks: the service manager, AppleScript, the workspace and the main bundle.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelby::fake {

struct Frameworks {
    bool registrationWorks = true;
    std::vector<std::string> registrations; // "register" and "unregister", as they were asked for

    bool scriptsCompile = true;
    bool scriptsSucceed = true;
    std::vector<std::string> scripts; // those that ran

    std::vector<std::string> openedUrls;

    int writtenDefaults = 0; // how often the program asked for it

    // The calendar's answers and the formatter's: seconds since 1970 to what is made of them.
    std::function<double(double)> startOfDay = [](double moment) { return moment; };
    std::function<std::string(double, double)> spokenDate = [](double, double) { return "3 days ago"; };
    std::vector<std::string> languages = {
        "en"};                  // that the user reads, the best one first; GNUstep knows no "en-US"
    std::string spokenLanguage; // of the formatter, when it was asked last

    // Of the main bundle.
    std::string bundlePath = "/Applications/Quelby.app";
    std::string executablePath = "/Applications/Quelby.app/Contents/MacOS/quelbyctl";
    std::optional<std::string> resourcePath = "/Applications/Quelby.app/Contents/Resources";
    std::optional<std::string> bundleIdentifier;
};

// The ones that answer, as a test has made them.
[[nodiscard]] Frameworks& frameworks();

// How many more objects there are after the action than before. It is done twice, because classes make
// objects for themselves when they are first used.
[[nodiscard]] long objectsLeftBy(const std::function<void()>& action);

// Puts a whole number into the user's defaults, which no program of ours does.
void setNumber(std::string_view key, long value);

// The domain that the user's defaults go to.
[[nodiscard]] std::string defaultsDomain();

} // namespace quelby::fake
