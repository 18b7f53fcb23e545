#!/usr/bin/env bash
# validators.sh BUILD: what an installation brings for others to read is as they want it.
. "$(dirname "$0")/checks.sh"
build=$1
prefix="$work/prefix"
expect "installs" cmake --install "$build" --prefix "$prefix"

expect "the desktop entry is valid" desktop-file-validate "$prefix/share/applications/com.quelby.Quelby.desktop"
# The validator wants the metadata under a free licence of their own. That is the owner's to choose, like any other.
appstreamcli validate --no-net --no-color "$prefix/share/metainfo/com.quelby.Quelby.metainfo.xml" >"$work/complaints" || true
expect "the metadata were looked at" grep --quiet 'metadata-license-invalid LicenseRef-proprietary' "$work/complaints"
expect_not "the metadata are valid but for that" grep '^[EWI]:' \
    <<<"$(grep -v metadata-license-invalid "$work/complaints")"
expect "the recorder's unit is valid" env XDG_RUNTIME_DIR="$work" systemd-analyze verify --user --man=no "$prefix/lib/systemd/user/quelby-recorder.service"
expect "the polkit action is well formed" xmllint --noout --nonet \
    "$source_dir/packaging/linux/polkit/com.quelby.limiter.policy"
for icon in "$prefix"/share/icons/hicolor/{scalable,symbolic}/apps/*.svg; do
    expect "$icon can be drawn" rsvg-convert --output "$work/icon.png" "$icon"
done
expect "the scripts are clean" shellcheck --external-sources --source-path=SCRIPTDIR \
    "$source_dir/install" "$tests"/*.sh
verdict
