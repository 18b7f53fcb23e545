# The program's version, wherever it is told: --version, the settings, the bundle of macOS.
set(QUELBY_VERSION 1.0.0)
