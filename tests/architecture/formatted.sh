#!/bin/sh
# formatted.sh CLANG_FORMAT STAMP: whether every source is formatted as .clang-format says. What was so when STAMP was last
# touched, and has not changed since, is not looked at again.
set -eu
clang_format=$1 stamp=$2

[ ! "$(find .clang-format "$clang_format" "$0" -newer "$stamp" 2>/dev/null)" ] || rm -f "$stamp"
newer=
[ ! -e "$stamp" ] || newer="-newer $stamp"
touch "$stamp.next"
# shellcheck disable=SC2086 # two words or none
find src limiter tests bench -type f \( -name '*.h' -o -name '*.cpp' -o -name '*.mm' \) $newer -print0 |
    xargs -0 --no-run-if-empty "$clang_format" --dry-run --Werror
mv "$stamp.next" "$stamp"
