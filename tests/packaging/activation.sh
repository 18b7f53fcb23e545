#!/usr/bin/env bash
# activation.sh BUILD: a bus that finds the installed service file starts the program when a desktop asks it to show itself, as
# launchers do for entries that are D-Bus activatable.
. "$(dirname "$0")/checks.sh"
build=$1
prefix="$work/a prefix"
started=()
# What has ended already need not be ended.
trap 'kill "${started[@]}" 2>/dev/null || true; wait; rm -rf "$work"' EXIT
expect "installs" cmake --install "$build" --prefix "$prefix"

said() { # FILE: what was written there, once it was
    for _ in $(seq 300); do
        [ ! -s "$1" ] || break
        sleep 0.1
    done
    cat "$1"
}

Xvfb -noreset -displayfd 3 -screen 0 800x900x24 3>"$work/display" 2>/dev/null &
started+=($!)
DISPLAY=:$(said "$work/display")
export DISPLAY HOME="$work/home" XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=xcb
export XDG_DATA_HOME="$work/home/data" XDG_CONFIG_HOME="$work/home/config"
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
mkdir "$HOME"

cat >"$work/bus.conf" <<CONFIG
<busconfig>
  <type>session</type>
  <listen>unix:path=$work/bus</listen>
  <auth>EXTERNAL</auth>
  <servicedir>$prefix/share/dbus-1/services</servicedir>
  <policy context="default">
    <allow send_destination="*"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
CONFIG
dbus-daemon --nofork --config-file="$work/bus.conf" --print-address=3 3>"$work/address" 2>"$work/errors" &
started+=($!)
address=$(said "$work/address")

call() { busctl --address="${address%%,*}" call "$@"; }
bus_says() { call org.freedesktop.DBus /org/freedesktop/DBus org.freedesktop.DBus "$@" s com.quelby.Quelby; }
process() { bus_says GetConnectionUnixProcessID | cut --delimiter=' ' --fields=2; }
activate() { call com.quelby.Quelby /com/quelby/Quelby org.freedesktop.Application Activate 'a{sv}' 0; }

expect "nobody has its name yet" test "$(bus_says NameHasOwner)" = "b false"
expect "is started by whoever asks it to show itself" activate
quelby=$(process)
started+=("$quelby")
expect "it is the installed program" test "$(readlink "/proc/$quelby/exe")" = "$prefix/bin/quelby"
expect "it does not take that for a person's start" test "$(tr '\0' ' ' <"/proc/$quelby/cmdline")" = "$prefix/bin/quelby --background "
expect "it shows itself" timeout 30 xdotool search --sync --onlyvisible --pid "$quelby"
expect "it is asked again" activate
expect "and is the same" test "$(process)" = "$quelby"
kill "$quelby"
unset "started[-1]"
for _ in $(seq 300); do
    [ "$(bus_says NameHasOwner)" != "b false" ] || break
    sleep 0.1
done
expect "it gives its name back when it ends" test "$(bus_says NameHasOwner)" = "b false"
expect_not "it complains of nothing" grep '^quelby:' "$work/errors"
verdict
