"""The rules for single figures and texts, each from what it is told alone."""
import json
import re

NUMBER = re.compile(r"[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?")
LARGEST_DOUBLE = 1.7976931348623157e308


def daemon_status(text):
    """The helper's record, or None where the text is not wholly one."""
    if text is None:
        return None
    try:
        status = json.loads(text, object_pairs_hook=distinct_keys)
    except ValueError:
        return None
    kinds = {"daemonRunning": (bool,), "chargingInhibited": (bool,), "calibrationActive": (bool,),
             "batteryPercent": (int,), "lastUpdate": (int, float)}
    if not isinstance(status, dict) or any(type(status.get(key)) not in kind for key, kind in kinds.items()):
        return None
    return status if isinstance(status.get("calibrationPhase"), (str, type(None))) else None


def distinct_keys(pairs):
    if len({key for key, _ in pairs}) < len(pairs):
        raise ValueError("a key stands there twice")
    return dict(pairs)


def trimmed(piece):
    return piece.strip(" \t")


def finite_number(text):
    """The number that the whole text is, or None. Python alone would read "1_0", "nan" and digits of every script."""
    if not NUMBER.fullmatch(text):
        return None
    number = float(text)
    return number if abs(number) <= LARGEST_DOUBLE else None


def share_and_name(text):
    """Only the first blank separates: all later ones belong to the name."""
    share, blank, name = text.partition(" ")
    return (finite_number(share), name) if blank else (None, None)


def truncated_quotient(dividend, divisor):
    """Toward zero, where Python's // goes down. The divisor is above 0."""
    return dividend // divisor if dividend >= 0 else -(-dividend // divisor)


def percent_up_to_100(part, whole):
    return min(truncated_quotient(part * 100, whole), 100)


def time_text(minutes):
    if minutes is None or not 1 <= minutes <= 5999:
        return "--:--"
    return "%d:%02d" % divmod(minutes, 60)


def estimated_charge_watts(percent):
    if percent < 80:
        return float(truncated_quotient(80 - percent, 4) + 15)
    if percent < 95:
        return float(95 - percent + 3)
    return float(max(100 - percent, 0) + 1)


def efficiency(total_watts):
    return min(max(100 - int(total_watts * 2), 0), 100)


def system_prediction(time_remaining):
    return "collecting data..." if time_remaining == "--:--" else f"~{time_remaining} (system)"


def rate_text(change, percent_per_hour):
    if change == 0:
        return "0%/hr"
    return "%+.1f%%/hr" % percent_per_hour if change > 0 else "%.1f%%/hr" % percent_per_hour


def prediction(change, percent_per_hour, percent):
    if change == 0:
        return "stable"
    if change > 0:
        if percent >= 100:
            return "fully charged"
        minutes = (100 - percent) * 60.0 / percent_per_hour
        return hours_and_minutes(minutes) + " to full" if minutes > 0 else "charging..."
    minutes = percent * 60.0 / abs(percent_per_hour)
    return hours_and_minutes(minutes) + " remaining" if minutes > 0 else "very low"


def hours_and_minutes(minutes):
    return "~%dh %dm" % divmod(int(minutes), 60)
