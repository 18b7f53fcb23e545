#pragma once

namespace quelby {

using Date = double; // seconds since 1970-01-01 00:00 UTC

} // namespace quelby
