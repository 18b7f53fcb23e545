#include "platform/linux/pkexec.h"

#include <unistd.h>

#include "platform/posix/child_process.h"

namespace quelby {

bool runWithPkexec(const std::string& script) {
    std::vector<std::string> words{"/bin/sh", "-c", script};
    if (::geteuid() != 0) {
        words.insert(words.begin(), "pkexec");
    }
    return runToTheEnd(words) == 0;
}

} // namespace quelby
