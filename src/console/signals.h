#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "platform/posix/file_descriptor.h"

namespace quelby {

// Signals as ordinary calls in the run loop. A signal has one listener at a time, and its default handling
// again when the listener is gone.
class SignalListener {
public:
    SignalListener(std::vector<int> signals, std::function<void(int signal)> listener);
    SignalListener(const SignalListener&) = delete;
    SignalListener& operator=(const SignalListener&) = delete;
    ~SignalListener();

private:
    void deliver();

    std::vector<int> signals_;
    std::function<void(int)> listener_;
    FileDescriptor reading_;
    FileDescriptor writing_;
    QObject notifierOwner_;
};

} // namespace quelby
