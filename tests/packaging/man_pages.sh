#!/usr/bin/env bash
# man_pages.sh BUILD: the man pages are shown without a complaint, and tell of every option that the programs take.
. "$(dirname "$0")/checks.sh"
build=$1
pages=$build/packaging/describe/man

shown() { MANROFFSEQ='' MANWIDTH=100 man --no-hyphenation --local-file "$1" 2>/dev/null | col -b; }
long_options() { grep --only-matching --extended-regexp -- '--[a-z][a-z-]+' | LC_ALL=C sort --unique; }
told_of() { # HELP PAGE: the options of the help that the page does not name
    LC_ALL=C comm -23 <(long_options <<<"$1") <(shown "$2" | long_options)
}

for page in quelby.1 quelbyctl.1 pwr_limiter.8 quelby-recording.5; do
    LC_ALL=C.UTF-8 man --warnings --local-file --encoding=utf8 "$pages/$page" >/dev/null 2>"$work/warnings"
    expect_not "$page is shown without a warning" grep . "$work/warnings"
    expect_not "$page has everything filled in" grep '@[a-z]*@' "$pages/$page"
done

help=$("$build/bin/quelby" --help)
expect "quelby.1 tells of every option" test -z "$(told_of "$help" "$pages/quelby.1")"
help=$("$build/libexec/quelby/pwr_limiter" --help)
expect "pwr_limiter.8 tells of every option" test -z "$(told_of "$help" "$pages/pwr_limiter.8")"
commands=$("$build/bin/quelbyctl" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
expect "quelbyctl has commands" test -n "$commands"
shown "$pages/quelbyctl.1" >"$work/quelbyctl.txt"
for command in $commands; do
    expect "quelbyctl.1 has a section on $command" grep "^   $command" "$work/quelbyctl.txt"
    help=$("$build/bin/quelbyctl" "$command" --help)
    expect "quelbyctl.1 tells of every option of $command" test -z "$(told_of "$help" "$pages/quelbyctl.1")"
done
verdict
