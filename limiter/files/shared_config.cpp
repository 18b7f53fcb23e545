#include "limiter/files/shared_config.h"

namespace quelby::limiter {

namespace {

constexpr int mostExchanges = 4;
constexpr int callsAfterFailure = 64;

} // namespace

void SharedConfig::read(const Folder& folder) {
    if (auto text = folder.read(name); text && *text != text_) {
        if (const auto config = decodeDaemonConfig(*text)) {
            config_ = config;
            text_ = std::move(*text);
        }
    }
}

void SharedConfig::correct(const Folder& folder, double lastCalibration) {
    if (!config_ || config_->lastCalibrationTimestamp == lastCalibration) {
        return;
    }
    if (callsToSkip_ > 0) {
        --callsToSkip_;
        return;
    }
    auto expected = text_;
    for (int count = 0; count < mostExchanges; ++count) {
        auto config = *config_;
        config.lastCalibrationTimestamp = lastCalibration;
        const auto corrected = encode(config);
        const auto displaced = corrected ? folder.exchange(name, *corrected, everybodysFile)
                                         : std::optional<Folder::Displaced>();
        if (!displaced) {
            callsToSkip_ = callsAfterFailure;
            return;
        }
        const auto theirs = displaced->content.value_or("");
        const auto decoded = decodeDaemonConfig(theirs);
        if (theirs == expected || !decoded) {
            config_ = config;
            text_ = *corrected;
            return;
        }
        config_ = decoded;
        text_ = theirs;
        expected = *corrected;
    }
    static_cast<void>(folder.replace(name, text_, everybodysFile, Durability::afterCrash));
}

} // namespace quelby::limiter
