#include "platform/linux/processes/process_table.h"

#include <new>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

auto isNamed(pid_t pid, const std::string& name) {
    return testing::AllOf(Field(&Process::pid, pid), Field(&Process::name, name));
}

ProcessTable tableOf(const std::vector<pid_t>& pids) {
    ProcessTable table;
    table.follow(pids);
    table.keepWhere([](Process& process) {
        process.name = std::to_string(process.pid);
        return true;
    });
    return table;
}

TEST(ProcessTable, KeepsWhatItKnowsOfTheLiving) {
    auto table = tableOf({1, 5, 9});
    table.follow(std::vector<pid_t>{1, 5, 9});
    EXPECT_THAT(table.processes(), ElementsAre(isNamed(1, "1"), isNamed(5, "5"), isNamed(9, "9")));
}

TEST(ProcessTable, AddsTheNewWithoutAnythingKnown) {
    auto table = tableOf({5});
    table.follow(std::vector<pid_t>{1, 5, 9});
    EXPECT_THAT(table.processes(), ElementsAre(isNamed(1, ""), isNamed(5, "5"), isNamed(9, "")));
}

TEST(ProcessTable, KeepsThoseThatCouldNotBeAsked) {
    auto table = tableOf({1, 5, 7, 9});
    const auto askUntilItFails = [&] {
        table.keepWhere([](const Process& process) {
            return process.pid == 7 ? throw std::bad_alloc() : process.pid != 1;
        });
    };
    EXPECT_THROW(askUntilItFails(), std::bad_alloc);
    EXPECT_THAT(table.processes(), ElementsAre(isNamed(5, "5"), isNamed(7, "7"), isNamed(9, "9")));
}

TEST(ProcessTable, ForgetsTheDead) {
    auto table = tableOf({1, 5, 7, 9});
    table.follow(std::vector<pid_t>{5});
    EXPECT_THAT(table.processes(), ElementsAre(isNamed(5, "5")));
    table.follow(std::vector<pid_t>{1, 5, 7, 9});
    EXPECT_THAT(table.processes(),
                ElementsAre(isNamed(1, ""), isNamed(5, "5"), isNamed(7, ""), isNamed(9, "")));
}

TEST(ProcessTable, ForgetsThoseThatAreNotKept) {
    auto table = tableOf({1, 5, 7, 9});
    table.keepWhere([](const Process& process) { return process.pid == 5 || process.pid == 9; });
    EXPECT_THAT(table.processes(), ElementsAre(isNamed(5, "5"), isNamed(9, "9")));
}

TEST(ProcessTable, IsEmptyWhereNobodyLives) {
    auto table = tableOf({1, 5});
    table.follow({});
    EXPECT_THAT(table.processes(), IsEmpty());
}

} // namespace
} // namespace quelby
