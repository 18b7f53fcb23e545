#include "history/energy/session_kind.h"

#include <array>

namespace quelby {

std::string_view rawValue(SessionKind kind) {
    switch (kind) {
    case SessionKind::discharge:
        return "discharge";
    case SessionKind::charge:
        return "charge";
    case SessionKind::calibration:
        return "calibration";
    }
    return {};
}

std::optional<SessionKind> sessionKind(std::string_view rawValue) {
    for (const auto kind : {SessionKind::discharge, SessionKind::charge, SessionKind::calibration}) {
        if (quelby::rawValue(kind) == rawValue) {
            return kind;
        }
    }
    return std::nullopt;
}

} // namespace quelby
