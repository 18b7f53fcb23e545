// The status item as a picture, for hosts that show nothing else.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <QImage>
#include <QRectF>

#include "app/linux/tray/panel_ink.h"
#include "ui/symbols/symbol_picture.h"

namespace quelby::app {

// A square.
[[nodiscard]] QImage symbolIcon(std::string_view symbolName, const StatusInk& ink, int side);

// The symbol and the title beside it, as high as told and as wide as needed. The width does not change with
// the digits of a title of one length.
[[nodiscard]] QImage wideIcon(std::string_view symbolName, std::string_view title, const StatusInk& ink,
                              int height);

// A square: the symbol above, the title below, shortened where it would not be readable. Without a title it is
// the symbol's alone.
[[nodiscard]] QImage compactIcon(std::string_view symbolName, std::string_view title, const StatusInk& ink,
                                 int side);

// A symbol that has been read and measured, for those who draw it with one title after the other.
class MeasuredSymbol {
public:
    explicit MeasuredSymbol(std::string name);

    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] const SymbolPicture& picture() const { return picture_; }

    // The part of its square that it fills, from 0 to 1: a battery is as wide as it, but half as high.
    [[nodiscard]] const QRectF& filled() const { return filled_; }

private:
    std::string name_;
    SymbolPicture picture_;
    QRectF filled_;
};

// The same at each of the sides, for less than one after the other: the title is laid out once.
[[nodiscard]] std::vector<QImage> compactIcons(const MeasuredSymbol& symbol, std::string_view title,
                                               const StatusInk& ink, const std::vector<int>& sides);

// The name of the desktop's icon theme that means the same as the symbol, in tenths as the themes have them.
// The level is the battery's in percent, and counts where the symbol itself says nothing of it. Only a battery
// that is full looks full. Empty for a symbol that nobody knows.
[[nodiscard]] std::string themeIconName(std::string_view symbolName, std::int64_t level);

} // namespace quelby::app
