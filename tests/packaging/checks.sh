# shellcheck shell=bash
# Shared by the tests of this folder, which source it: a folder that goes when they end, and what they expect.
set -euo pipefail
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck disable=SC2034 # for those that source this
source_dir=$(cd "$tests/../.." && pwd)
work=$(mktemp --directory)
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "FAILED: $1" >&2
    failures=$((failures + 1))
}

# expect WHAT COMMAND... fails with WHAT where the command does.
expect() {
    local what=$1
    shift
    "$@" >"$work/output" 2>&1 || { fail "$what"; sed 's/^/    /' "$work/output" >&2; }
}

# expect_not WHAT COMMAND... fails with WHAT where the command succeeds.
expect_not() {
    local what=$1
    shift
    if "$@" >"$work/output" 2>&1; then
        fail "$what"
        sed 's/^/    /' "$work/output" >&2
    fi
}

# The last line of each test.
verdict() { [ "$failures" -eq 0 ]; }
