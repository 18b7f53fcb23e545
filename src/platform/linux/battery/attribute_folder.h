// A folder of sysfs attributes: one small file for each value.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/posix/file_descriptor.h"

namespace quelby {

// Every attribute that is missing, cannot be read or is empty is nothing; why does not matter, since drivers
// answer ENODEV, ENODATA, EAGAIN or EIO for one and the same "not now". Never blocks on what is not a plain
// file.
class AttributeFolder {
public:
    explicit AttributeFolder(const std::filesystem::path& folder);

    // False for what is not a folder, or no longer there; then every attribute is nothing.
    [[nodiscard]] bool isOpen() const { return folder_.isOpen(); }

    // In small letters, without white space and NUL bytes at both ends.
    [[nodiscard]] std::optional<std::string> word(const char* name) const;

    // Nothing also where the word is not wholly a decimal integer of 64 bits.
    [[nodiscard]] std::optional<std::int64_t> number(const char* name) const;

private:
    FileDescriptor folder_;
};

} // namespace quelby
