#include "platform/linux/battery/fake_sysfs.h"

namespace quelby::fake {

namespace fs = std::filesystem;

Sysfs::Sysfs(Unreadable unreadable, Layout layout) : unreadable_(unreadable), layout_(layout) {
    fs::create_directories(classFolder());
}

fs::path Sysfs::folderOf(const std::string& supply) const {
    return layout_ == Layout::Folders ? classFolder() / supply
                                      : root() / "devices" / "virtual" / "power_supply" / supply;
}

void Sysfs::plug(const std::string& supply, const Attributes& attributes) const {
    fs::create_directories(folderOf(supply));
    if (layout_ == Layout::Links) {
        fs::create_directory_symlink(fs::path("../../devices/virtual/power_supply") / supply,
                                     classFolder() / supply);
    }
    for (const auto& [attribute, text] : attributes) {
        if (text) {
            write(supply, attribute, *text + '\n');
        } else {
            makeUnreadable(supply, attribute);
        }
    }
}

void Sysfs::unplug(const std::string& supply) const {
    fs::remove_all(folderOf(supply));
    fs::remove(classFolder() / supply);
}

void Sysfs::write(const std::string& supply, const std::string& attribute, const std::string& bytes) const {
    const auto file = folderOf(supply) / attribute;
    fs::remove_all(file);
    folder_.write(file, bytes);
}

void Sysfs::makeUnreadable(const std::string& supply, const std::string& attribute) const {
    const auto file = folderOf(supply) / attribute;
    fs::remove_all(file);
    switch (unreadable_) {
    case Unreadable::FailsToRead:
        fs::create_symlink("/proc/self/mem", file); // address 0 is never mapped
        break;
    case Unreadable::IsFolder:
        fs::create_directory(file);
        break;
    case Unreadable::IsMissing:
        break;
    case Unreadable::IsEmpty:
        write(supply, attribute, "");
        break;
    }
}

} // namespace quelby::fake
