#include "platform/linux/processes/process_table.h"

namespace quelby {

void ProcessTable::follow(std::span<const pid_t> pids) {
    next_.reserve(pids.size()); // all the memory that this takes, before anything is moved
    auto known = processes_.begin();
    for (const pid_t pid : pids) {
        while (known != processes_.end() && known->pid < pid) {
            ++known;
        }
        if (known != processes_.end() && known->pid == pid) {
            next_.push_back(std::move(*known));
        } else {
            next_.emplace_back().pid = pid;
        }
    }
    processes_.swap(next_);
    next_.clear();
}

} // namespace quelby
