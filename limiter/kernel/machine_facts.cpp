#include "limiter/kernel/machine_facts.h"

#include <sys/utsname.h>

namespace quelby::limiter {

MachineFacts readMachineFacts(const Attributes& attributes) {
    utsname system{};
    const bool isNamed = ::uname(&system) == 0;
    const std::string firmware = "class/dmi/id/";
    return {.vendor = attributes.read(firmware + "sys_vendor").value_or(""),
            .product = attributes.read(firmware + "product_name").value_or(""),
            .kernel = isNamed ? system.release : ""};
}

} // namespace quelby::limiter
