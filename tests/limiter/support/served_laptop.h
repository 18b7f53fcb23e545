// The helper at work on a laptop that takes any levels, in a time of the test's own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/program/service.h"
#include "limiter/support/makers.h"
#include "limiter/support/test_time.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {

class ServedLaptop : public testing::Test {
protected:
    ServedLaptop() {
        addLaptop(hardware);
        hardware[endThreshold].text = "100";
        hardware[startThreshold].text = "0";
    }

    void write(const DaemonConfig& config) const { folder.write("config.json", encode(config).value()); }

    [[nodiscard]] DaemonStatus status() const {
        const auto decoded = decodeDaemonStatus(folder.read("status.json"));
        EXPECT_TRUE(decoded.has_value());
        return decoded.value_or(DaemonStatus());
    }

    [[nodiscard]] DaemonConfig config() const {
        return decodeDaemonConfig(folder.read("config.json")).value_or(DaemonConfig());
    }

    [[nodiscard]] Result<void> run() { return service().run(); }

    Service& service() {
        limiter.emplace(Surroundings{.attributes = hardware,
                                     .pause = [](std::chrono::milliseconds) {},
                                     .rivals = [] { return "TLP"; },
                                     .save =
                                         [this](const LimiterState& state) {
                                             saved = state;
                                             return true;
                                         }},
                        saved);
        service_.emplace(*limiter, folder.path(), time, time);
        return *service_;
    }

    TemporaryFolder folder{inMemory()};
    OddHardware hardware;
    TestTime time;
    LimiterState saved;
    std::optional<Limiter> limiter;
    std::optional<Service> service_;
};

} // namespace quelby::limiter
