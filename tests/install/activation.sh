#!/usr/bin/env bash
# Uses a service on a bus of its own before and after the bus has started one of its files, and prints what was read and
# what was started. Usage: activation.sh PREFIX CLIENT
set -euo pipefail

if [ -z "${UIUTILS_STARTED-}" ]; then
    # A tree that was installed elsewhere than it was configured for.
    export UIUTILS_STARTED="$1/started" XDG_DATA_HOME="$1/share" UIUTILS_ROOT="$1/state"
    for file in "$1"/share/dbus-1/services/org.uiutils.kiv.*.service; do
        sed -i "s|^Exec=.*/bin/kivd|Exec=/bin/sh -c 'basename \"\$0\" .service >>$UIUTILS_STARTED; exec $1/bin/kivd' $file|" "$file"
    done
    exec dbus-run-session -- "$0" "$@"
fi

ask_bus() {
    local method=$1
    shift
    dbus-send --session --print-reply=literal --dest=org.freedesktop.DBus / "org.freedesktop.DBus.$method" "$@"
}

"$2" :result:loopback_rtt:samples_x:doubleARRAY:
ask_bus StartServiceByName string:org.uiutils.kiv.basemgr uint32:0 >/dev/null
"$2" :result:basemgr:system:usbAttached:
services=$(ask_bus GetConnectionUnixProcessID string:org.uiutils.kiv.basemgr | sed 's/.* //')
kill "$services"
tail --pid="$services" -f /dev/null
cat "$UIUTILS_STARTED"
