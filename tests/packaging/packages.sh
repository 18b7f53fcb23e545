#!/usr/bin/env bash
# packages.sh BUILD: the Debian packages hold what they should, and need what they should and no more. That they are
# always the same bytes is for `./check packages`, which builds twice.
. "$(dirname "$0")/checks.sh"
build=$1
packages=$work/packages
umask 077 # must not matter
expect "makes the packages" "$source_dir/package" --built "$build" --to "$packages"

architecture=$(dpkg --print-architecture)
package() { echo "$packages/$1_1.0.0-1_$architecture.deb"; }
field() { dpkg-deb --field "$(package "$1")" "$2"; }
files() { dpkg-deb --contents "$(package "$1")" | awk '{print $6}'; }
has() { files "$1" | grep --quiet --line-regexp --fixed-strings "./$2"; }

for name in quelby quelbyctl quelby-limiter; do
    expect "there is $name" test -f "$(package $name)"
    expect "$name has its copyright" has $name usr/share/doc/$name/copyright
    dpkg-deb --contents "$(package $name)" >"$work/contents"
    expect_not "everything in $name is root's" grep --invert-match ' root/root ' "$work/contents"
    expect_not "everybody may read all of $name" grep --invert-match --extended-regexp '^(-rw.r-.r-.|drwxr.xr.x|l)' "$work/contents"
done
for library in quelby-desktop.so quelby-dashboard.so; do
    expect "quelby brings $library" has quelby "usr/lib/quelby/$library"
done
expect "quelby brings its man page" has quelby usr/share/man/man1/quelby.1.gz
expect "quelbyctl brings the recordings" has quelbyctl usr/share/quelby/recordings/laptop-on-battery.jsonl
expect "the limiter brings its service" has quelby-limiter usr/lib/systemd/system/com.quelby.limiter.service
expect "the limiter brings its action" has quelby-limiter usr/share/polkit-1/actions/com.quelby.limiter.policy
twice=$( (files quelby; files quelbyctl; files quelby-limiter) | grep -v '/$' | sort | uniq --repeated)
expect "no file is in two packages, as are: $twice" test -z "$twice"

expect "quelby needs what its dashboard imports" grep --quiet qml6-module-qtquick-layouts <<<"$(field quelby Depends)"
expect "quelbyctl needs Qt's core" grep --quiet libqt6core6 <<<"$(field quelbyctl Depends)"
expect_not "quelbyctl needs nothing for displays" \
    grep --extended-regexp 'gui|xcb|x11|qml|quick' <<<"$(field quelbyctl Depends)"
expect "the limiter needs the C library and no other" test -z \
    "$(field quelby-limiter Depends | tr , '\n' | grep -vE '^ ?(libc6|init-system-helpers) ')"

dpkg-deb --fsys-tarfile "$(package quelby-limiter)" | tar --extract --directory="$work" ./usr/lib/systemd/system
expect "the service starts the packaged helper" \
    grep --quiet '^ExecStart=/usr/libexec/quelby/pwr_limiter$' "$work/usr/lib/systemd/system/com.quelby.limiter.service"
expect "the maintainer scripts are clean" shellcheck "$source_dir"/packaging/linux/debian/limiter/*
expect "lintian finds nothing" lintian --allow-root --fail-on error,warning "$packages"/*.deb
verdict
