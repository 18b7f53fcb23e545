#pragma once

#include <functional>
#include <memory>

#include "app/popover.h"

namespace quelby::app {

// Two popovers for one dashboard: the first one, and, each time that one does not show, the other.
class PopoverChoice final : public Popover {
public:
    using Maker = std::function<std::unique_ptr<Popover>()>;

    // There may be no first one. The other is made when it is first needed.
    PopoverChoice(std::unique_ptr<Popover> first, Maker makeOther);

    [[nodiscard]] bool isShown() const override;
    void show() override;
    void showSettings() override;
    void close() override;

private:
    void show(void (Popover::*how)());

    std::unique_ptr<Popover> first_;
    Maker makeOther_;
    std::unique_ptr<Popover> other_;
};

} // namespace quelby::app
