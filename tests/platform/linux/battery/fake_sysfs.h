#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "support/temporary_folder.h"

namespace quelby::fake {

// Attribute names to what their files hold; nothing for an attribute that cannot be read.
using Attributes = std::map<std::string, std::optional<std::string>>;

// The ways in which an attribute cannot be read, as far as a plain file system has them.
enum class Unreadable { FailsToRead, IsFolder, IsMissing, IsEmpty };

enum class Layout {
    Folders,
    Links, // class/power_supply holds links into devices/, as in the kernel's own tree
};

// A sysfs root in a temporary folder.
class Sysfs {
public:
    explicit Sysfs(Unreadable unreadable = Unreadable::FailsToRead, Layout layout = Layout::Links);

    [[nodiscard]] const std::filesystem::path& root() const { return folder_.path(); }

    [[nodiscard]] std::filesystem::path classFolder() const { return root() / "class" / "power_supply"; }

    // Where the attributes of a supply are.
    [[nodiscard]] std::filesystem::path folderOf(const std::string& supply) const;

    // Adds a supply; each text gets a final newline.
    void plug(const std::string& supply, const Attributes& attributes) const;
    void unplug(const std::string& supply) const;

    // Puts exactly these bytes in place of an attribute.
    void write(const std::string& supply, const std::string& attribute, const std::string& bytes) const;
    void makeUnreadable(const std::string& supply, const std::string& attribute) const;

private:
    TemporaryFolder folder_;
    Unreadable unreadable_;
    Layout layout_;
};

} // namespace quelby::fake
