#include "platform/linux/pkexec.h"

#include <fstream>
#include <iterator>

#include <unistd.h>

#include "platform/installer/root_program.h"
#include "platform/posix/child_process.h"

namespace quelby {

namespace {

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

std::vector<std::string> pkexecWords(const std::string& script, bool isRoot,
                                     const std::filesystem::path& root) {
    const std::filesystem::path action = "usr/share/polkit-1/actions/com.quelby.limiter.policy";
    const std::filesystem::path program = "usr/libexec/quelby/run_as_root";
    std::error_code ignored;
    if (isRoot) {
        return {"/bin/sh", "-c", script};
    }
    if (std::filesystem::exists(root / action, ignored) && runsScript(contentOf(root / program), script)) {
        return {"pkexec", root / program, script};
    }
    return {"pkexec", "/bin/sh", "-c", script};
}

bool runWithPkexec(const std::string& script) {
    return runToTheEnd(pkexecWords(script, ::geteuid() == 0)) == 0;
}

} // namespace quelby
