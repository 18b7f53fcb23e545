#pragma once

namespace quelby {

// The random draw behind the estimated storage power, which makes that figure look alive.
class StorageDraw {
public:
    virtual ~StorageDraw() = default;

    // 0 or 1, each as likely as the other; drawn anew at each call.
    [[nodiscard]] virtual int draw() = 0;
};

} // namespace quelby
