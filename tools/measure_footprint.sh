#!/usr/bin/env bash
# Measures what the running application costs the machine it watches: CPU time as a share of one
# core, and resident memory, over a period in each of three states: popover closed, popover open
# (flow animation running), details window open. It runs the real program with the simulated
# notebook under a virtual X server with a tray, and prints one table; while the popover is open
# it also measures btop refreshing once a second, as a reference from the same run.
#
# Usage: tools/measure_footprint.sh [seconds per state, default 60]
set -euo pipefail
cd "$(dirname "$0")/.."
period=${1:-60}
app=build/src/app/ferrow

if [ "$(uname -s)" != "Linux" ]; then
    echo "measure_footprint: needs Linux (/proc and Xvfb)" >&2
    exit 1
fi
missing=()
for tool in Xvfb:xvfb xdotool:xdotool trayer:trayer xvfb-run:xvfb btop:btop tmux:tmux; do
    command -v "${tool%%:*}" >/dev/null 2>&1 || missing+=("${tool##*:}")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""; [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
fi
[ -x "$app" ] || make build >/dev/null

export period app
xvfb-run -a -s "-screen 0 1280x800x24" bash -c '
set -euo pipefail
ticks=$(getconf CLK_TCK)
trayer --edge top --align right --widthtype pixel --width 120 --height 26 --transparent true --alpha 0 >/dev/null 2>&1 &
tray=$!
sleep 1.5
XDG_CONFIG_HOME=$(mktemp -d) "$app" >/dev/null 2>&1 &
pid=$!
# A reference beside it: a terminal system monitor refreshing once a second, in the same run.
btop_config=$(mktemp -d)
mkdir -p "$btop_config/btop"
echo "update_ms = 1000" > "$btop_config/btop/btop.conf"
tmux -L ferrow-footprint new-session -d -x 160 -y 48 "LANG=C.UTF-8 XDG_CONFIG_HOME=$btop_config btop --utf-force"
trap "kill $pid $tray 2>/dev/null; tmux -L ferrow-footprint kill-server 2>/dev/null" EXIT
sleep 4
reference=$(pgrep -n -x btop)

cpu_ticks() { awk "{ print \$14 + \$15 }" /proc/$1/stat; }
kib() { awk -v key="$2:" "\$1 == key { print \$2 }" /proc/$1/status; }
row() {
    printf "| %-32s | %7.2f %% | %7.1f MB | %7.1f MB |\n" "$1" \
        "$(echo "100 * $3 / ($period * $ticks)" | bc -l)" "$(echo "$(kib $2 VmRSS) / 1024" | bc -l)" "$(echo "$(kib $2 VmHWM) / 1024" | bc -l)"
}
measure() {
    local start end reference_start reference_end
    start=$(cpu_ticks $pid); reference_start=$(cpu_ticks $reference)
    sleep "$period"
    end=$(cpu_ticks $pid); reference_end=$(cpu_ticks $reference)
    row "$1" $pid $((end - start))
    [ -z "${2:-}" ] || row "$2" $reference $((reference_end - reference_start))
}

echo "| State ($period s each)                | CPU (one core) | Resident | Peak resident |"
echo "|----------------------------------|-----------|------------|------------|"
measure "popover closed"

# The tray icon sits at the right end of the tray; a click opens the popover under it.
xdotool mousemove 1268 13 click 1
sleep 1
measure "popover open (flow animating)" "btop at 1 s, same period"

popover=$(xdotool search --onlyvisible --name "^FERROW$" | head -n 1)
eval "$(xdotool getwindowgeometry --shell "$popover")"
xdotool mousemove $((X + 215)) $((Y + 492)) click 1 # the "Open details" row
sleep 2
xdotool search --onlyvisible --name "^Device details$" >/dev/null || { echo "the details window did not open" >&2; exit 1; }
measure "details window open"
'
