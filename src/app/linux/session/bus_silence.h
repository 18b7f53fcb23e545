// The bus's own library waits, some say for ever, for a bus that takes connections and then says nothing:
// one whose daemon was stopped, or is stuck. So it is asked for a word before the library is.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

#include <QByteArray>
#include <QString>

namespace quelby::app {

// Whether the first socket of this address that takes a connection answers nothing for so long. The address
// is one as the bus's specification has it, such as "unix:path=/run/user/1000/bus;unix:abstract=/tmp/x".
// False wherever the library will find out quickly by itself: nobody listens, or it is no socket of this
// computer.
[[nodiscard]] bool isSilent(std::string_view address, std::chrono::milliseconds patience);

// The same of the session's bus, after half a second at the most.
[[nodiscard]] bool sessionBusIsSilent();

// As long as this lives, neither this process nor those that it starts are told where the session's bus is: Qt
// itself asks for it when a window is first described to those who cannot see it, and would wait for ever.
class HiddenSessionBus {
public:
    HiddenSessionBus();
    HiddenSessionBus(const HiddenSessionBus&) = delete;
    HiddenSessionBus& operator=(const HiddenSessionBus&) = delete;
    ~HiddenSessionBus();

    // Of the session's bus as it is told at present.
    [[nodiscard]] static QString address();

private:
    std::optional<QByteArray> told_; // none: it was not, and lies where it usually does
};

} // namespace quelby::app
