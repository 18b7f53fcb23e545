#include "limiter/program/options.h"

#include <array>
#include <optional>
#include <string_view>

namespace quelby::limiter {

namespace {

constexpr const char* help =
    "Usage: pwr_limiter [--folder DIR] [--state DIR] [--sysfs-root DIR] [--once | --restore | --release]\n"
    "\n"
    "Holds this computer's battery at the level that is wished for in config.json, and says in status.json\n"
    "what it does, until it gets SIGTERM. It has to be root, unless the folder or the state is a named one.\n"
    "\n"
    "  --folder DIR      instead of /var/lib/quelby, with config.json, status.json and details.json\n"
    "  --state DIR       instead of /var/lib/quelby-limiter, with what it must not forget\n"
    "  --sysfs-root DIR  instead of /sys\n"
    "  --once            carry the wish out, write both files, and end; the limit stays in force\n"
    "  --restore         put back the levels that were found at first, and end\n"
    "  --release         let a battery be charged that only a running helper may hold, and end\n"
    "  --help            show this\n"
    "  --version         show the version\n"
    "\n"
    "Exit status: 0 done, 1 it could not be done, 2 wrong usage.\n";

struct Task_ {
    std::string_view option;
    Task task;
};

constexpr std::array<Task_, 3> tasks{
    {{"--once", Task::once}, {"--restore", Task::restore}, {"--release", Task::release}}};

// The folder that an option names, in this word behind "=" or in the next one.
class FolderOption {
public:
    FolderOption(std::string_view name, std::filesystem::path& folder) : name_(name), folder_(folder) {}

    [[nodiscard]] bool isMeantBy(std::string_view word) const {
        return word == name_ || word.rfind(std::string(name_) + '=', 0) == 0;
    }

    [[nodiscard]] Result<void> take(const std::vector<std::string>& words, std::size_t& position) const {
        const auto& word = words[position];
        std::string value;
        if (word.size() > name_.size()) {
            value = word.substr(name_.size() + 1);
        } else if (++position < words.size()) {
            value = words[position];
        }
        if (value.empty()) {
            return problem(std::string(name_) + " needs a folder");
        }
        folder_ = std::filesystem::absolute(value);
        return {};
    }

private:
    std::string_view name_;
    std::filesystem::path& folder_;
};

} // namespace

Result<std::variant<Options, Information>> parseOptions(const std::vector<std::string>& words) {
    Options options;
    std::optional<std::string> task;
    const std::array<FolderOption, 3> folders{FolderOption("--folder", options.folder),
                                              FolderOption("--state", options.state),
                                              FolderOption("--sysfs-root", options.sysfsRoot)};
    for (std::size_t position = 0; position < words.size(); ++position) {
        const auto& word = words[position];
        if (word == "--help" || word == "-h") {
            return Information{help};
        }
        if (word == "--version") {
            return Information{"pwr_limiter " QUELBY_VERSION "\n"};
        }
        bool isKnown = false;
        for (const auto& folder : folders) {
            if (folder.isMeantBy(word)) {
                isKnown = true;
                if (auto taken = folder.take(words, position); !taken) {
                    return tl::make_unexpected(taken.error());
                }
            }
        }
        for (const auto& [option, meant] : tasks) {
            if (word == option) {
                isKnown = true;
                if (task && *task != word) {
                    return problem(*task + " and " + word + " exclude each other");
                }
                task = word;
                options.task = meant;
            }
        }
        if (!isKnown) {
            return problem("\"" + word + "\" is no option of it; --help lists them");
        }
    }
    const Options unasked;
    options.isElsewhere = options.folder != unasked.folder || options.state != unasked.state;
    return options;
}

} // namespace quelby::limiter
