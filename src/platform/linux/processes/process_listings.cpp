#include "platform/linux/processes/process_listings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace quelby {

namespace {

constexpr std::size_t usualLineLength = 24;

std::int64_t hundredths(const Process& process) {
    return std::llround(process.share.percent() * 100);
}

// With two decimals, and a blank before a share below ten. In one piece, because there are many.
void appendShare(std::string& text, std::int64_t share) {
    constexpr std::size_t blankPointAndSign = 3;
    std::array<char, std::numeric_limits<std::int64_t>::digits10 + 1 + blankPointAndSign> written;
    char* end = written.data();
    if (share < 1000) {
        *end++ = ' ';
    }
    end = std::to_chars(end, written.data() + written.size(), share / 100).ptr;
    *end++ = '.';
    *end++ = static_cast<char>('0' + share / 10 % 10);
    *end++ = static_cast<char>('0' + share % 10);
    text.append(written.data(), static_cast<std::size_t>(end - written.data()));
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
    for (const auto& process : processes) {
        if (const auto share = hundredths(process); share > 0) {
            appendShare(text, share);
            text += '\n';
        }
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
    std::string text = " %CPU APPLICATION\n";
    for (const auto& process : processes) {
        if (const auto share = hundredths(process); share > 0) {
            appendLine(text, share, process.application.empty() ? process.name : process.application);
        }
    }
    return text;
}

} // namespace quelby
