#include "platform/linux/battery/fake_sysfs.h"

#include <fstream>
#include <stdexcept>

#include <cstdlib>

namespace quelby::fake {

namespace {

namespace fs = std::filesystem;

fs::path temporaryFolder() {
    auto name = (fs::temp_directory_path() / "quelby-sysfs-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary folder " + name);
    }
    return name;
}

} // namespace

Sysfs::Sysfs(Unreadable unreadable, Layout layout)
    : root_(temporaryFolder()), unreadable_(unreadable), layout_(layout) {
    fs::create_directories(classFolder());
}

Sysfs::~Sysfs() {
    std::error_code error;
    fs::remove_all(root_, error);
}

fs::path Sysfs::folderOf(const std::string& supply) const {
    return layout_ == Layout::Folders ? classFolder() / supply
                                      : root_ / "devices" / "virtual" / "power_supply" / supply;
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
    std::ofstream(file, std::ios::binary) << bytes;
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
