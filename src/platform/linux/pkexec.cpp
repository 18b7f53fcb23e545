#include "platform/linux/pkexec.h"

#include <unistd.h>

#include "platform/posix/child_process.h"

namespace quelby {

std::vector<std::string> pkexecWords(const std::string& script, bool isRoot,
                                     const std::filesystem::path& root) {
    const std::filesystem::path action = "usr/share/polkit-1/actions/com.quelby.limiter.policy";
    const std::filesystem::path program = "usr/libexec/quelby/run_as_root";
    std::error_code ignored;
    if (isRoot) {
        return {"/bin/sh", "-c", script};
    }
    if (std::filesystem::exists(root / action, ignored) && std::filesystem::exists(root / program, ignored)) {
        return {"pkexec", root / program, script};
    }
    return {"pkexec", "/bin/sh", "-c", script};
}

bool runWithPkexec(const std::string& script) {
    return runToTheEnd(pkexecWords(script, ::geteuid() == 0)) == 0;
}

} // namespace quelby
