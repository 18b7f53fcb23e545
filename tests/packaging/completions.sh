#!/usr/bin/env bash
# completions.sh BUILD: each shell loads its completions, and completes with them.
. "$(dirname "$0")/checks.sh"
completions=$1/packaging/describe
mkdir "$work/folder" && touch "$work/recording.jsonl" && cd "$work"

# Each prints what its shell offers at the end of the words, a line each.
bash_offers() {
    bash --norc --noprofile -c '
        . "$1/bash/$2"
        shift
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
        _$1
        printf "%s\n" "${COMPREPLY[@]}"' bash "$completions" "$@"
}
fish_offers() {
    local line=$1 word
    shift
    for word in "${@:1:$#-1}"; do line+=" '$word'"; done
    HOME=$work fish --no-config --command "source '$completions/fish/${line%% *}.fish'
        complete --do-complete \"$line ${*: -1}\"" | cut -f 1
}
zsh_offers() { python3 "$tests/zsh_offers.py" "$completions/zsh" "$@"; }

offers_all() { # SHELL WORDS... -- EXPECTED...
    local shell=$1 words=() offered
    shift
    while [ "$1" != -- ]; do words+=("$1") && shift; done
    shift
    offered=$("${shell}_offers" "${words[@]}")
    for wanted; do
        expect "$shell offers \"$wanted\" behind \"${words[*]}\", and not only: $offered" \
            grep --quiet --line-regexp --fixed-strings -e "$wanted" <<<"$offered"
    done
}
offers_no() { # SHELL WORDS... -- UNWANTED
    local shell=$1 words=() offered
    shift
    while [ "$1" != -- ]; do words+=("$1") && shift; done
    offered=$("${shell}_offers" "${words[@]}")
    expect_not "$shell does not offer \"$2\" behind \"${words[*]}\"" \
        grep --line-regexp --fixed-strings -e "$2" <<<"$offered"
}

expect "bash reads them" bash -n "$completions/bash/quelby" "$completions/bash/quelbyctl"
for program in quelby quelbyctl; do
    expect "zsh reads that of $program" zsh -n "$completions/zsh/_$program"
    expect "fish reads that of $program" fish --no-execute "$completions/fish/$program.fish"
done

for shell in bash zsh fish; do
    offers_all $shell quelbyctl '' -- status watch history metrics helper
    offers_all $shell quelbyctl hi -- history
    offers_no $shell quelbyctl hi -- watch
    offers_all $shell quelbyctl energy --range '' -- today 24h 7d 30d since-unplugged
    offers_all $shell quelbyctl energy --by '' -- app component hour day
    offers_all $shell quelbyctl history --range '' -- 30m 1h 24h 7d
    offers_all $shell quelbyctl --replay it title --format '' -- plain json waybar i3blocks polybar tmux
    offers_all $shell quelbyctl limit '' -- show on off
    offers_no $shell quelbyctl limit '' -- PERCENT
    offers_all $shell quelbyctl history - -- --range --json --csv
    offers_all $shell quelby --replay rec -- recording.jsonl
    offers_all $shell quelby --sc -- --screenshot --scale --scroll
done
# A directory, and no file, however the shell writes it.
for shell in bash zsh fish; do
    offers_no $shell quelbyctl --data-dir '' -- recording.jsonl
    expect "$shell offers folders" grep --quiet '^folder/\?$' <<<"$("${shell}_offers" quelbyctl --data-dir '')"
done
verdict
