#!/usr/bin/env bash
# installation.sh BUILD: installs as a person does, uses what was installed, installs again, removes it, and looks
# for what is left. Then the same as a packager does, with DESTDIR.
. "$(dirname "$0")/checks.sh"
build=$1
prefix="$work/home of somebody/.local"
recording="$prefix/share/quelby/recordings/laptop-on-battery.jsonl"
export HOME="$work/home of somebody" XDG_DATA_HOME="$work/data" XDG_CONFIG_HOME="$work/config"

install_it() { "$source_dir/install" --built "$build" --prefix "$prefix" "$@"; }
mode_of() { stat --format=%a "$1"; }
contents() { (cd "$1" && find . | LC_ALL=C sort); }

# A file that was there before, in a folder that is shared.
mkdir -p "$prefix/bin" "$prefix/share/icons/hicolor/48x48/apps"
touch "$prefix/bin/of-somebody-else" "$prefix/share/icons/hicolor/48x48/apps/other.png"
before=$(contents "$prefix")

expect "installs" install_it
version=$(sed -n 's/^set(QUELBY_VERSION \(.*\))/\1/p' "$source_dir/cmake/Version.cmake")
expect "quelby tells its version" test "$("$prefix/bin/quelby" --version)" = "quelby $version"
expect "quelbyctl tells its version" test "$("$prefix/bin/quelbyctl" --version)" = "quelbyctl $version"
expect "draws the dashboard with the library that was installed" \
    "$prefix/bin/quelby" --screenshot "$work/picture.png" --replay "$recording"
expect "the picture is one" test "$(head --bytes=4 "$work/picture.png" | tail --bytes=3)" = PNG
status=$("$prefix/bin/quelbyctl" status --json --replay "$recording") || fail "quelbyctl reads a recording"
expect "quelbyctl tells the figures of the recording that was installed" grep --quiet '"batteryPercent":70,' <<<"$status"
expect "the helper is where quelbyctl looks for it" "$prefix/libexec/quelby/pwr_limiter" --version
expect "programs can be run by everybody" test "$(mode_of "$prefix/bin/quelby")" = 755
for file in share/applications/com.quelby.Quelby.desktop share/dbus-1/services/com.quelby.Quelby.service \
    lib/systemd/user/quelby-recorder.service; do
    expect "$file names the installed program" grep --quiet --fixed-strings "\"$prefix/bin/quelby\"" "$prefix/$file"
done
for size in 16 22 24 32 48 64 128 256; do
    expect "there is an icon of $size pixels" test -s "$prefix/share/icons/hicolor/${size}x$size/apps/quelby.png"
done
expect "nothing for polkit outside /usr" test ! -e "$prefix/share/polkit-1"

# Each file, and each folder that was not there before, is in the record.
recorded=$( (echo "$before"; sed 's,/$,,; s,^,./,' "$prefix/share/quelby/installed-files") | LC_ALL=C sort --unique)
expect "the record names every file" test "$recorded" = "$(contents "$prefix")"

first=$(contents "$prefix")
echo share/quelby/of-an-earlier-version >>"$prefix/share/quelby/installed-files"
touch "$prefix/share/quelby/of-an-earlier-version"
expect "installs over an earlier version" install_it
expect "and leaves nothing of that" test "$first" = "$(contents "$prefix")"

expect "uninstalls" install_it --uninstall
expect "what was there before is there, and nothing else" test "$before" = "$(contents "$prefix")"
expect "installs below a folder that is not there" "$source_dir/install" --built "$build" --prefix "$work/new"
expect "twice" "$source_dir/install" --built "$build" --prefix "$work/new"
expect "uninstalls from there" "$source_dir/install" --uninstall --prefix "$work/new"
expect "and the folder is not there" test ! -e "$work/new"
expect_not "there is nothing to uninstall twice" install_it --uninstall
expect_not "refuses a prefix that is relative" "$source_dir/install" --prefix relative --built "$build"

expect "installs for a package" env DESTDIR="$work/root" cmake --install "$build" --prefix /usr
for file in bin/quelby bin/quelbyctl lib/quelby/quelby-desktop.so lib/quelby/quelby-dashboard.so libexec/quelby/pwr_limiter \
    libexec/quelby/run_as_root share/polkit-1/actions/com.quelby.limiter.policy; do
    expect "a package has $file" test -s "$work/root/usr/$file"
done
expect "the entry names the program as it will be installed" \
    grep --quiet '^Exec="/usr/bin/quelby"$' "$work/root/usr/share/applications/com.quelby.Quelby.desktop"
expect "nothing goes anywhere else" test "$(ls "$work/root")" = usr
verdict
