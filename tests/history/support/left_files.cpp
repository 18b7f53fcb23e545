#include "history/support/left_files.h"

#include <algorithm>
#include <fstream>

namespace quelby {

namespace {

void apply(const DiskChange& change, std::string& content) {
    const auto place = static_cast<std::size_t>(change.place);
    if (change.kind == DiskChange::Kind::truncate) {
        content.resize(place);
    } else if (change.kind == DiskChange::Kind::write) {
        content.resize(std::max(content.size(), place + change.bytes.size()));
        content.replace(place, change.bytes.size(), change.bytes);
    }
}

} // namespace

void LeftFiles::take(const DiskChange& change) {
    auto& file = files_.at(change.file);
    file.pending.push_back(&change);
    if (change.kind == DiskChange::Kind::flush) {
        for (const auto* const one : file.pending) {
            apply(*one, file.flushed);
        }
        file.pending.clear();
    }
}

void LeftFiles::writeTo(const std::filesystem::path& folder, std::mt19937& chance) const {
    std::filesystem::create_directories(folder);
    for (const auto& [name, file] : files_) {
        auto content = file.flushed;
        const double kept = std::uniform_real_distribution(0.0, 1.0)(chance);
        for (const auto* const one : file.pending) {
            if (std::bernoulli_distribution(kept)(chance)) {
                apply(*one, content);
            }
        }
        std::ofstream(folder / name, std::ios::binary) << content;
    }
}

std::vector<std::size_t> powerLosses(std::size_t count, std::size_t changes, std::mt19937& chance) {
    std::vector<std::size_t> losses(count);
    std::generate(losses.begin(), losses.end(),
                  [&] { return std::uniform_int_distribution<std::size_t>(1, changes)(chance); });
    std::sort(losses.begin(), losses.end());
    return losses;
}

} // namespace quelby
