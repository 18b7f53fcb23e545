#!/usr/bin/env bash
# validators.sh BUILD: what an installation brings for others to read is as they want it.
. "$(dirname "$0")/checks.sh"
build=$1
prefix="$work/prefix"
expect "installs" cmake --install "$build" --prefix "$prefix"

expect "the desktop entry is valid" desktop-file-validate "$prefix/share/applications/com.quelby.Quelby.desktop"
# The validator refuses the metadata because it wants them under a free licence of their own. That is the owner's to choose,
# like any other; with a choice this fails, and the metadata are to be accepted then. Nothing else may be wrong.
metadata="$prefix/share/metainfo/com.quelby.Quelby.metainfo.xml"
expect_not "the metadata are refused for their licence" appstreamcli validate --no-net --no-color "$metadata"
cp "$work/output" "$work/complaints"
expect "it is for their licence" grep --quiet 'metadata-license-invalid LicenseRef-proprietary' "$work/complaints"
expect_not "and for nothing else" grep '^[EWI]:' <<<"$(grep -v metadata-license-invalid "$work/complaints")"
expect "the recorder's unit is valid" env XDG_RUNTIME_DIR="$work" systemd-analyze verify --user --man=no "$prefix/lib/systemd/user/quelby-recorder.service"
expect "the polkit action is well formed" xmllint --noout --nonet \
    "$source_dir/packaging/linux/polkit/com.quelby.limiter.policy"
for icon in "$prefix"/share/icons/hicolor/{scalable,symbolic}/apps/*.svg; do
    expect "$icon can be drawn" rsvg-convert --output "$work/icon.png" "$icon"
done
expect "the scripts are clean" shellcheck --external-sources --source-path=SCRIPTDIR \
    "$source_dir"/{install,package} "$tests"/*.sh "$source_dir"/packaging/{bars,monitoring,linux/debian}/try \
    "$source_dir/packaging/linux/debian/compare"
verdict
