#include "platform/linux/processes/process_listings.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <fmt/compile.h>

namespace quelby {

namespace {

constexpr std::size_t usualLineLength = 24;

std::int64_t hundredths(const Process& process) {
    return std::llround(process.share.percent() * 100);
}

void appendShare(std::string& text, std::int64_t share) {
    fmt::format_to(std::back_inserter(text), FMT_COMPILE("{:2}.{:02}"), share / 100, share % 100);
}

void appendLine(std::string& text, std::int64_t share, std::string_view name) {
    appendShare(text, share);
    text += ' ';
    text += name;
    text += '\n';
}

void appendLine(std::string& text, const Process& process) {
    appendLine(text, hundredths(process), process.name);
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
        appendShare(text, hundredths(process));
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

std::string applicationListingText(std::span<const Process> processes) {
    using Total = std::pair<std::string_view, std::int64_t>;
    std::unordered_map<std::string_view, std::int64_t> shares;
    for (const auto& process : processes) {
        if (const auto share = hundredths(process); share > 0) {
            shares[process.application.empty() ? process.name : process.application] += share;
        }
    }
    std::vector<Total> totals(shares.begin(), shares.end());
    std::sort(totals.begin(), totals.end(), [](const Total& one, const Total& other) {
        return one.second != other.second ? one.second > other.second : one.first < other.first;
    });
    std::string text = " %CPU APPLICATION\n";
    text.reserve(usualLineLength * (totals.size() + 1));
    for (const auto& [name, share] : totals) {
        appendLine(text, share, name);
    }
    return text;
}

} // namespace quelby
