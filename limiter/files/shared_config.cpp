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
    std::vector<Folder::Displaced> laidAside;
    exchangeUntilTrue(folder, lastCalibration, laidAside);
    for (const auto& displaced : laidAside) {
        folder.discard(displaced);
    }
}

void SharedConfig::exchangeUntilTrue(const Folder& folder, double lastCalibration,
                                     std::vector<Folder::Displaced>& laidAside) {
    auto expected = text_;
    for (int count = 0; count < mostExchanges; ++count) {
        auto config = *config_;
        config.lastCalibrationTimestamp = lastCalibration;
        const auto corrected = encode(config, text_); // with what else stands there
        const auto displaced = corrected ? folder.exchange(name, *corrected, everybodysFile)
                                         : std::optional<Folder::Displaced>();
        if (!displaced) {
            callsToSkip_ = callsAfterFailure;
            return;
        }
        laidAside.push_back(*displaced);
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

void SharedConfig::recover(const Folder& folder, double lastCalibration) {
    const auto present = decodeDaemonConfig(folder.read(name).value_or(""));
    if (!present || present->lastCalibrationTimestamp != lastCalibration) {
        return;
    }
    for (const auto& text : folder.leftovers()) {
        const auto laidAside = decodeDaemonConfig(text);
        if (laidAside && laidAside->lastCalibrationTimestamp != lastCalibration) {
            static_cast<void>(folder.replace(name, text, everybodysFile, Durability::afterCrash));
            return;
        }
    }
}

} // namespace quelby::limiter
