#include "console/signals.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <QSocketNotifier>
#include <fcntl.h>
#include <unistd.h>

#include "platform/posix/pipe.h"

namespace quelby {

namespace {

constexpr int noPipe = -1;

// Where each signal goes. A signal handler is handed nothing but the signal, so this has to be here.
std::array<volatile std::sig_atomic_t, NSIG> pipes = [] {
    std::array<volatile std::sig_atomic_t, NSIG> none{};
    for (auto& pipe : none) {
        pipe = noPipe;
    }
    return none;
}();

extern "C" void wakeUp(int signal) {
    const int savedError = errno;
    const auto number = static_cast<unsigned char>(signal);
    static_cast<void>(::write(pipes[number], &number, 1) != 1); // a full pipe wakes up as well
    errno = savedError;
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};

    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

void neverWait(const FileDescriptor& end) {
    ::fcntl(end.number(), F_SETFL, O_NONBLOCK);
}

} // namespace

SignalListener::SignalListener(std::vector<int> signals, std::function<void(int)> listener)
    : signals_(std::move(signals)), listener_(std::move(listener)) {
    auto [reading, writing] = makePipe();
    if (!reading.isOpen()) {
        return; // the signals then do what they do by themselves
    }
    reading_ = std::move(reading);
    writing_ = std::move(writing);
    neverWait(reading_);
    neverWait(writing_);
    auto* const notifier = new QSocketNotifier(reading_.number(), QSocketNotifier::Read, &notifierOwner_);
    QObject::connect(notifier, &QSocketNotifier::activated, &notifierOwner_, [this] { deliver(); });
    for (const int signal : signals_) {
        pipes.at(static_cast<std::size_t>(signal)) = writing_.number();
        handle(signal, wakeUp);
    }
}

SignalListener::~SignalListener() {
    for (const int signal : signals_) {
        handle(signal, SIG_DFL);
        pipes.at(static_cast<std::size_t>(signal)) = noPipe;
    }
}

void SignalListener::deliver() {
    unsigned char signal = 0;
    while (::read(reading_.number(), &signal, 1) == 1) {
        listener_(signal);
    }
}

} // namespace quelby
