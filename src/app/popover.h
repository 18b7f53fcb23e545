#pragma once

namespace quelby::app {

// The dashboard at the status item, which goes away when a person clicks anywhere else.
class Popover {
public:
    virtual ~Popover() = default;

    [[nodiscard]] virtual bool isShown() const = 0;

    // At the status item, in front of everything else, and with the keyboard. Shows the cards where the
    // dashboard is made for it, and otherwise what it showed last.
    virtual void show() = 0;

    // Shows it the same way, with the settings in place of the cards.
    virtual void showSettings() = 0;

    virtual void close() = 0;
};

} // namespace quelby::app
