// The attributes of the kernel's devices: files that take and give one short value each.
//
// All that the helper does to a machine goes through here. What is odd about the hardware (values that are
// refused, rounded, forgotten or ignored) shows in what these calls give, so the odd machines of the tests
// stand in its place; a folder of plain files could not refuse a write.
#pragma once

#include <string>
#include <system_error>
#include <vector>

#include <tl/expected.hpp>

namespace quelby::limiter {

class Attributes {
public:
    Attributes() = default;
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    virtual ~Attributes() = default;

    // All paths are relative to the root of the tree.

    // What a folder holds, in the order of the alphabet; nothing where there is no such folder.
    [[nodiscard]] virtual std::vector<std::string> names(const std::string& folder) const = 0;

    // There is something of this name, whether or not it can be read.
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;

    // Without blanks and newlines at its ends, and asked of the device each time.
    [[nodiscard]] virtual tl::expected<std::string, std::error_code>
    read(const std::string& attribute) const = 0;

    // The device's own answer: an error also where it takes a part, or refuses only in the end.
    [[nodiscard]] virtual std::error_code write(const std::string& attribute, const std::string& value) = 0;
};

} // namespace quelby::limiter
