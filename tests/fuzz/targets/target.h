// What reads bytes of somebody else's, each as a function that takes any bytes at all: the fuzzers feed them what they
// make up, and the tests what is kept in the corpus.
#pragma once

#include <span>
#include <string_view>

namespace quelby::fuzz {

// Ends the program with the sentence where it does not hold.
void require(bool holds, std::string_view sentence);

// The helper's files.
void takeConfig(std::string_view bytes);
void takeStatus(std::string_view bytes);
void takeLimiterState(std::string_view bytes);

// One line of a recording.
void takeRecordingLine(std::string_view bytes);

// Both listings of processes, and of the kernel's files what they are made from.
void takeListing(std::string_view bytes);
void takeStat(std::string_view bytes);
void takeUptime(std::string_view bytes);
void takeProcessName(std::string_view bytes);

// Lines "FOLDER/ATTRIBUTE=VALUE" of class/power_supply, for the application and for the helper.
void takeSysfs(std::string_view bytes);
void takeChoices(std::string_view bytes);

// Files of the user's own.
void takePreferences(std::string_view bytes);
void takeHistory(std::string_view bytes);

// A word on each line.
void takeCommandLine(std::string_view bytes);
void takeTemplate(std::string_view bytes);

// What other programs of the desktop say.
void takeBusCall(std::string_view bytes);
void takeXSettings(std::string_view bytes);

struct Target {
    const char* name; // of its folder in the corpus, too
    void (*take)(std::string_view bytes);
};

inline constexpr Target targets[] = {
    {"config", takeConfig},
    {"status", takeStatus},
    {"limiter_state", takeLimiterState},
    {"recording", takeRecordingLine},
    {"listing", takeListing},
    {"stat", takeStat},
    {"uptime", takeUptime},
    {"process_name", takeProcessName},
    {"sysfs", takeSysfs},
    {"choices", takeChoices},
    {"preferences", takePreferences},
    {"history", takeHistory},
    {"command_line", takeCommandLine},
    {"template", takeTemplate},
    {"bus_call", takeBusCall},
    {"x_settings", takeXSettings},
};

} // namespace quelby::fuzz
