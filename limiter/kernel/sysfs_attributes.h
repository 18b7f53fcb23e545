#pragma once

#include <filesystem>

#include "base/problem.h"
#include "limiter/kernel/attributes.h"
#include "platform/posix/file_descriptor.h"

namespace quelby::limiter {

// The kernel's own tree, or a folder that looks like it.
class SysfsAttributes final : public Attributes {
public:
    [[nodiscard]] static Result<std::unique_ptr<SysfsAttributes>> open(const std::filesystem::path& root);

    [[nodiscard]] std::vector<std::string> names(const std::string& folder) const override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] tl::expected<std::string, std::error_code>
    read(const std::string& attribute) const override;
    [[nodiscard]] std::error_code write(const std::string& attribute, const std::string& value) override;

private:
    explicit SysfsAttributes(FileDescriptor root) : root_(std::move(root)) {}

    FileDescriptor root_;
};

} // namespace quelby::limiter
