"""Random listings of processes: ordinary ones, and lines that only just are, or are not, what a lister prints."""

ODD_NUMBERS = ("0", "-0", "1e3", "1E-2", "+5", "-2", "-40", ".5", "5.", "5.e0", "007", "1e-9", "1e-400", "950.0",
               "0.1000000000000000055511151231257827", "12345678901234567890")
EXTREME_LOADS = ("1e308", "-1e5", "-1e200")
EXTREME_SHARES = ("1e200", "-1e200", "1e-310")
NO_NUMBERS = ("", ".", "-", "+", "e5", "1e", "1e+", "+-5", "--5", "0x10", "nan", "NaN", "inf", "-inf", "infinity",
              "1e999", "-1e999", "12,5", "1_0", "5%", "5.5.5", "1 2", "12.5\r", "\r", "abc", "3abc", "- 5", "\u0663",
              "\u00a05", "5\u00a0", "5\v", "5\x00", "\ufeff5", "5f")
NAMES = ("editor", "mailer", "Web Content Helper", "a  b   c", " leading", "   far leading", "\ttabbed", "tab\tinside",
         "x\r", "\r", "7", "12.5 6", "\u00fcn\u00ef\u00e7\u00f6d\u00e9 \u2603", "\U0001f50b battery", "e\u0301",
         "\ufeffmark", "quo\"te", "back\\slash", "esc\x1b[31mred", "bell\x07", "nul\x00byte", "del\x7f", "next\x85line",
         "line\u2028separator", "\u00a0hard\u00a0", "form\ffeed\v", "-", "(sd-pam)", "kworker/0:1-events", "</b>",
         "trailing \t ")
NO_PROCESSES = ("", " ", "\t", "12.5", "12.5 ", " editor", "12.5\teditor", "12.5\tweb content", "one two three")
BLANKS = ("", " ", "  ", "\t", " \t ")


def random_cpu_listing(rng, processors):
    def line():
        return rng.choice(BLANKS) + cpu_number(rng, processors) + rng.choice(BLANKS)

    return random_listing(rng, "%CPU", line, rng.choice((1, 3, 10, 40)))


def random_top_listing(rng):
    return random_listing(rng, "%CPU COMM", lambda: top_line(rng), 9)


def random_listing(rng, heading, line, most_lines):
    shape = rng.random()
    if shape < 0.10:
        return rng.choice((None, "", "\n", "\n\n", heading, heading + "\n", heading + "\r\n", " "))
    lines = [heading] + [line() for _ in range(rng.randint(1, most_lines))]
    if shape < 0.15:
        lines[0] = line()  # the first is the heading even where it looks like data
    return "\n".join(lines) + rng.choice(("\n", "\n", "\n", "", "\n\n", " \n"))


def cpu_number(rng, processors):
    kind = rng.random()
    if kind < 0.70:
        return ordinary_share(rng, 12.0 * processors)
    if kind < 0.84:
        return rng.choice(ODD_NUMBERS)
    return rng.choice(EXTREME_LOADS) if kind < 0.86 else rng.choice(NO_NUMBERS)


def top_line(rng):
    if rng.random() < 0.08:
        return rng.choice(NO_PROCESSES)
    return rng.choice(BLANKS) + top_share(rng) + rng.choice((" ", " ", " ", "  ", " \t")) + rng.choice(NAMES)


def top_share(rng):
    kind = rng.random()
    if kind < 0.65:
        return ordinary_share(rng, 110.0)
    if kind < 0.80:
        return rng.choice(ODD_NUMBERS)
    return rng.choice(EXTREME_SHARES) if kind < 0.84 else rng.choice(NO_NUMBERS)


def ordinary_share(rng, most):
    share = rng.uniform(0.0, most) * rng.choice((0.0, 0.02, 0.2, 1.0))
    return rng.choice(("{:.1f}", "{:.1f}", "{:.3f}", "{!r}")).format(share)
