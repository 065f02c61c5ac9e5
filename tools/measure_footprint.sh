#!/usr/bin/env bash
# Measures what the running application costs the machine it watches: CPU time as a share of one
# core, and resident memory, over a period in each of three states: popover closed, popover open
# (flow animation running), details window open. It runs the real program with the simulated
# notebook under a virtual X server with a tray, and prints one table; while the popover is open
# it also measures btop refreshing once a second, as a reference from the same run. Under each
# state it lists the wake-ups per second of every thread (voluntary context switches: each one is
# a sleep the thread was woken from). First it times five starts, from launch to the first figure
# in the tray.
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
trayer --edge top --align right --widthtype pixel --width 120 --height 26 --transparent true --alpha 0 >/dev/null 2>&1 &
tray=$!
sleep 1.5
# From launch to the moment the tray item shows its first figure, as the program logs it.
startup_ms() {
    local start line
    start=$(date +%s%N)
    exec {log}< <(QT_LOGGING_RULES="ferrow.startup.info=true" XDG_CONFIG_HOME=$(mktemp -d) exec "$app" 2>&1 >/dev/null)
    local child=$!
    while IFS= read -r -t 10 -u $log line; do
        case $line in *"first figure"*) break ;; esac
    done
    echo $((($(date +%s%N) - start) / 1000000))
    kill $child; wait $child 2>/dev/null || true
    exec {log}<&-
}
starts=$(for run in 1 2 3 4 5; do startup_ms; sleep 0.5; done | sort -n | tr "\n" " ")
echo "First figure in the tray after launch (ms, five starts, sorted): $starts"
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

# Nanoseconds on a CPU summed over the threads: finer than 10 ms ticks.
cpu_ns() { cat /proc/$1/task/*/schedstat 2>/dev/null | awk "{ sum += \$1 } END { printf \"%d\", sum }"; }
kib() { awk -v key="$2:" "\$1 == key { print \$2 }" /proc/$1/status; }
row() {
    printf "| %-32s | %7.2f %% | %7.1f MB | %7.1f MB |\n" "$1" \
        "$(echo "100 * $3 / ($period * 1000000000)" | bc -l)" "$(echo "$(kib $2 VmRSS) / 1024" | bc -l)" "$(echo "$(kib $2 VmHWM) / 1024" | bc -l)"
}
# One line per thread: "tid name switches", for the threads alive now.
thread_switches() {
    for task in /proc/$1/task/*; do
        printf "%s %s %s\n" "${task##*/}" "$(tr " " "_" < "$task/comm")" \
            "$(awk "/^voluntary_ctxt_switches/ { print \$2 }" "$task/status")"
    done 2>/dev/null
}
wakeups() {
    awk -v period="$period" -v label="$1" "
        NR == FNR { before[\$1] = \$3; next }
        { rate = (\$3 - before[\$1]) / period; total += rate
          line = line sprintf(\"%s %.1f, \", \$2, rate) }
        END { printf \"|   wake-ups a second (%s): %.1f in all: %s\\n\", label, total, substr(line, 1, length(line) - 2) }
    " "$2" "$3"
}
measure() {
    local start end reference_start reference_end before after
    before=$(mktemp); after=$(mktemp)
    thread_switches $pid > "$before"
    start=$(cpu_ns $pid); reference_start=$(cpu_ns $reference)
    sleep "$period"
    end=$(cpu_ns $pid); reference_end=$(cpu_ns $reference)
    thread_switches $pid > "$after"
    row "$1" $pid $((end - start))
    wakeups "$1" "$before" "$after"
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
xdotool mousemove $((X + 215)) $((Y + HEIGHT - 73)) click 1 # the "Open details" row, above the footer
sleep 2
xdotool search --onlyvisible --name "^Device details$" >/dev/null || { echo "the details window did not open" >&2; exit 1; }
measure "details window open"
'
