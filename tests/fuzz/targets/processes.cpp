#include <cmath>

#include "base/utf8.h"
#include "fuzz/targets/target.h"
#include "monitor/cpu_usage.h"
#include "monitor/top_processes.h"
#include "platform/linux/processes/short_name.h"
#include "platform/linux/processes/stat_text.h"
#include "platform/linux/processes/system_time.h"

namespace quelby::fuzz {

void takeListing(std::string_view bytes) {
    const auto usage = cpuUsage(bytes, 4);
    require(usage.has_value() == isUtf8(bytes), "only text is a listing");
    require(!usage || *usage <= 100, "a computer is loaded by 100 % at the most");
    const auto top = topProcesses(bytes, usage.value_or(0), 10);
    require(top.has_value() == isUtf8(bytes), "only text is a listing");
    require(!top || top->size() <= 5, "five processes are the top");
}

void takeStat(std::string_view bytes) {
    if (const auto fields = parseStat(bytes)) {
        require(fields->escapedComm.data() >= bytes.data() &&
                    fields->escapedComm.data() + fields->escapedComm.size() <= bytes.data() + bytes.size(),
                "the name is a part of the text");
        require(unescapedComm(fields->escapedComm).size() <= fields->escapedComm.size(),
                "no name becomes longer");
    }
}

void takeUptime(std::string_view bytes) {
    const auto seconds = parseUptime(bytes);
    require(!seconds || std::isfinite(*seconds), "a time is a number");
}

// The kernel's name of 15 bytes, and what its file or its command line say.
void takeProcessName(std::string_view bytes) {
    constexpr std::size_t longestComm = 15;
    const auto comm = bytes.substr(0, longestComm);
    const auto rest = bytes.substr(comm.size());
    for (const auto name : {nameFromExecutable(comm, rest), nameFromCommandLine(comm, rest)}) {
        require(name.empty() || name.starts_with(comm), "a longer name begins with the shorter one");
        require(name.find('/') == std::string_view::npos || comm.find('/') != std::string_view::npos,
                "no folder is a part of a name");
    }
    const auto listed = listedName(bytes);
    require(!listed.empty() && printable(listed) == listed, "a listed name is printable");
}

} // namespace quelby::fuzz
