# The program's version, wherever it is told: --version, the settings, the bundle of macOS.
set(QUELBY_VERSION 1.0.0)
# The day of that version, for man pages and software centres.
set(QUELBY_VERSION_DATE 2026-11-22)
