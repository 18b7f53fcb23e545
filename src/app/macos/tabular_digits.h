#pragma once

#include <QFont>

namespace quelby::app {

// The font with digits of one width, so that figures do not dance. As it is, where Qt cannot ask a font for
// that: before its release 6.7.
[[nodiscard]] QFont withTabularDigits(QFont font);

} // namespace quelby::app
