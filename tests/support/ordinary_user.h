#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/started.h"

namespace quelby {

// What the action answers in another process, which has no rights of root even where the test has them.
template <typename Action>
[[nodiscard]] bool doneByAnOrdinaryUser(Action action) {
    constexpr unsigned nobody = 65534;
    const pid_t process = started(::fork());
    if (process == 0) {
        const bool ordinary = ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 &&
                                                   ::setuid(nobody) == 0);
        ::_exit(ordinary && action() ? 0 : 1);
    }
    int status = -1;
    return ::waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace quelby
