#include "limiter/support/ordinary_user.h"

#include <grp.h>
#include <unistd.h>

#include "support/program.h"
#include "support/started.h"

namespace quelby::limiter {

bool asOrdinaryUser(const std::function<bool()>& work) {
    constexpr uid_t nobody = 65534;
    const pid_t process = started(::fork());
    if (process == 0) {
        const bool isOrdinary = ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 &&
                                                     ::setuid(nobody) == 0);
        ::_exit(isOrdinary && work() ? 0 : 1);
    }
    return exitStatusOf(process) == 0;
}

} // namespace quelby::limiter
