#include "platform/linux/processes/process_listings.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <vector>

#include <fmt/compile.h>

namespace quelby {

namespace {

constexpr std::size_t usualLineLength = 24;

std::int64_t hundredths(const Process& process) {
    return std::llround(process.share.percent() * 100);
}

void appendShare(std::string& text, const Process& process) {
    const auto share = hundredths(process);
    fmt::format_to(std::back_inserter(text), FMT_COMPILE("{:2}.{:02}"), share / 100, share % 100);
}

void appendLine(std::string& text, const Process& process) {
    appendShare(text, process);
    text += ' ';
    text += process.name;
    text += '\n';
}

// Most processes sleep, and need no sorting.
std::vector<const Process*> busyOnesFirstToLast(std::span<const Process> processes) {
    std::vector<const Process*> busy;
    for (const auto& process : processes) {
        if (hundredths(process) > 0) {
            busy.push_back(&process);
        }
    }
    std::stable_sort(busy.begin(), busy.end(), [](const Process* one, const Process* other) {
        return hundredths(*one) > hundredths(*other);
    });
    return busy;
}

} // namespace

std::string cpuListingText(std::span<const Process> processes) {
    std::string text = "%CPU\n";
    text.reserve(usualLineLength * (processes.size() + 1));
    for (const auto& process : processes) {
        appendShare(text, process);
        text += '\n';
    }
    return text;
}

std::string topListingText(std::span<const Process> processes) {
    std::string text = " %CPU COMM\n";
    text.reserve(usualLineLength * (processes.size() + 1));
    for (const auto* const process : busyOnesFirstToLast(processes)) {
        appendLine(text, *process);
    }
    for (const auto& process : processes) {
        if (hundredths(process) == 0) {
            appendLine(text, process);
        }
    }
    return text;
}

} // namespace quelby
