#include "limiter/files/shared_config.h"

namespace quelby::limiter {

namespace {

constexpr int mostExchanges = 4;

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
    if (!config_ || config_->lastCalibrationTimestamp == lastCalibration || text_ == refused_) {
        return;
    }
    for (int count = 0; count < mostExchanges; ++count) {
        config_->lastCalibrationTimestamp = lastCalibration;
        const auto corrected = encode(*config_);
        const auto displaced = corrected ? folder.exchange(name, *corrected, everybodysFile)
                                         : std::optional<Folder::Displaced>();
        if (!displaced) {
            refused_ = text_;
            return;
        }
        const auto theirs = displaced->content.value_or("");
        const auto decoded = decodeDaemonConfig(theirs);
        if (theirs == text_ || !decoded) {
            text_ = *corrected;
            return;
        }
        config_ = decoded;
        text_ = theirs;
    }
    static_cast<void>(folder.replace(name, text_, everybodysFile, Durability::afterCrash));
}

} // namespace quelby::limiter
