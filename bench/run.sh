#!/usr/bin/env bash
# Partitude's speed and memory benchmark. Not part of CTest and not run by CI:
# run it by hand on a quiet machine.
#
#   bench/run.sh [BUILD_DIR]
#
# BUILD_DIR defaults to ./build-bench. A folder without a CMakeCache.txt is
# configured as a Release build first; either way the four targets it needs
# (partitude, bench/bare_window, bench/first_paint, bench/tour) are brought up
# to date.
#
# Needs: Xvfb (package xvfb), cmake and the project's build dependencies,
# libx11-dev for first_paint. CPU and memory figures come straight from
# /proc/PID/stat and /proc/PID/status, so /usr/bin/time is not needed.
#
# What it does. It starts its own Xvfb (first free display from :97 up,
# -nolisten tcp, black root), then runs the program and a bare 632x434 Qt
# window in turns, ROUNDS times each (program, bare, program, bare, ...), so
# that whatever else the machine is doing hits both alike. One unmeasured
# warm-up start of each comes first (disk and font caches). Each start:
#
#  (a) start-up: first_paint (bench/first_paint.cpp) notes the time, forks and
#      execs the program, and every 2 ms looks for a mapped top-level window
#      with the expected title, reading a few of its pixels back from the
#      screen. Qt leaves its windows without an X background, so until the
#      program has drawn its first frame a mapped window still shows the black
#      root there. The title frame counts as painted when the window's
#      background is the title blue RGB(48,133,214) and the middle of the
#      turning sphere is neither that blue nor black; the bare window's when
#      its corner has any colour but black. first_paint then stops polling
#      and only waits for the program to exit, so it costs nothing later on.
#  (b) CPU: after SETTLE seconds the program's utime+stime (all its threads)
#      is read from /proc/PID/stat, again WINDOW seconds later, and the
#      difference is given as a percentage of one core over the wall time
#      between the two readings. For the program that is the title animation;
#      for the bare window it is its idle cost, which should be about nil.
#  (c) peak memory: VmHWM from /proc/PID/status at the end, in MiB.
#
# Then the full tour (bench/tour.cpp), TOUR_ROUNDS times round every screen
# on the same Xvfb: each screen change and each answer timed from the click
# to the next screen drawn, each worksheet printed to PDF, and the peak
# memory after all of it. Its table follows the start-up table.
#
# Medians decide PASS/FAIL for start-up and CPU; for memory the largest of the
# runs does. Spread is min-max over the runs.
#
# Start-up takes a few tens of milliseconds and varies by several, so each
# round also has QUICK extra start-only runs of both (again in turns); (a) is
# over all ROUNDS x (1 + QUICK) starts of each.
#
# Environment: ROUNDS (default 5), QUICK (3), SETTLE (1 s), WINDOW (10 s),
# TOUR_ROUNDS (5).
#
# A later "still screen" figure for the program (a screen with nothing moving,
# which should cost no CPU) fits in as another phase of run_program below:
# bring the program to that screen (e.g. a click sent by a small X client),
# let it settle, then call cpu_percent on it as for the title.
set -euo pipefail
shopt -s inherit_errexit

ROUNDS=${ROUNDS:-5}
QUICK=${QUICK:-3}
SETTLE=${SETTLE:-1}
WINDOW=${WINDOW:-10}
TOUR_ROUNDS=${TOUR_ROUNDS:-5}
((ROUNDS >= 1)) || { echo "run.sh: ROUNDS must be at least 1" >&2; exit 1; }

# Targets.
START_RATIO_MAX=1.1 # program start-up at most this many times the bare window's
TITLE_CPU_MAX=3     # % of one core while the title animates
PEAK_MB_MAX=50      # VmHWM, MiB

# The title screen: window title, background and the middle of the sphere.
TITLE="Partitude"
TITLE_BACK=3085D6
SPHERE_MIDDLE="160,184"
BARE_TITLE="bare window"

script_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source_dir=$(dirname "$script_dir")
build_dir=${1:-$PWD/build-bench}

die() {
    echo "run.sh: $*" >&2
    # A program that loses its X server just ends; say so if that is what happened.
    if [[ -n ${xvfb_pid:-} ]] && ! kill -0 "$xvfb_pid" 2>/dev/null; then
        echo "run.sh: Xvfb on ${DISPLAY:-?} has gone (did something kill it?)" >&2
    fi
    exit 1
}

for tool in Xvfb cmake awk; do
    command -v "$tool" >/dev/null || die "$tool is not installed"
done

bench_started=$EPOCHREALTIME
load_started=$(cut -d' ' -f1-3 /proc/loadavg)

# --- Scratch folder and clean-up -------------------------------------------------
work=$(mktemp -d /tmp/partitude-bench.XXXXXX)
xvfb_pid=""
fp_pid=""
app_pid=""

cleanup() {
    if [[ -n $app_pid ]]; then kill -KILL "$app_pid" 2>/dev/null || true; fi
    if [[ -n $fp_pid ]]; then kill -KILL "$fp_pid" 2>/dev/null || true; fi
    if [[ -n $xvfb_pid ]]; then
        kill -TERM "$xvfb_pid" 2>/dev/null || true
        wait "$xvfb_pid" 2>/dev/null || true
    fi
    rm -rf "$work"
    return 0
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# --- Build -------------------------------------------------------------------
if [[ ! -f $build_dir/CMakeCache.txt ]]; then
    echo "Configuring a Release build in $build_dir"
    cmake -S "$source_dir" -B "$build_dir" -DCMAKE_BUILD_TYPE=Release >"$work/build.log" 2>&1 ||
        die "configuring failed: $(tail -n 20 "$work/build.log")"
fi
build_type=$(sed -n 's/^CMAKE_BUILD_TYPE:[A-Z]*=//p' "$build_dir/CMakeCache.txt")
[[ $build_type == Release ]] || echo "warning: $build_dir is a '${build_type:-default}' build, not Release" >&2
echo "Building partitude, bare_window, first_paint and tour in $build_dir"
cmake --build "$build_dir" --target partitude bare_window first_paint tour -j2 >>"$work/build.log" 2>&1 ||
    die "the build failed: $(tail -n 20 "$work/build.log")"
build_dir=$(cd "$build_dir" && pwd)
program=$build_dir/partitude
assets=$build_dir/assets
bare=$build_dir/bench/bare_window
first_paint=$build_dir/bench/first_paint
tour=$build_dir/bench/tour
for f in "$program" "$bare" "$first_paint" "$tour"; do
    [[ -x $f ]] || die "$f was not built"
done
[[ -d $assets ]] || die "no assets folder in $build_dir"

# --- Xvfb ---------------------------------------------------------------------

start_xvfb() {
    local display=97
    mkfifo "$work/xready"
    while ((display < 200)); do
        if [[ ! -e /tmp/.X$display-lock && ! -e /tmp/.X11-unix/X$display ]]; then
            # Xvfb writes the display number to fd 3 once it takes clients.
            Xvfb ":$display" -screen 0 1366x768x24 -nolisten tcp -br -noreset \
                -displayfd 3 3>"$work/xready" >"$work/xvfb.log" 2>&1 &
            xvfb_pid=$!
            local ready=""
            read -r -t 10 ready <"$work/xready" || true
            if [[ $ready == "$display" ]]; then
                export DISPLAY=":$display"
                return 0
            fi
            kill -KILL "$xvfb_pid" 2>/dev/null || true
            wait "$xvfb_pid" 2>/dev/null || true
            xvfb_pid=""
        fi
        display=$((display + 1))
    done
    die "could not start Xvfb (last log: $(cat "$work/xvfb.log" 2>/dev/null))"
}
start_xvfb
measure_started=$EPOCHREALTIME

unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
# first_paint reports through this FIFO. The script holds it open both ways,
# so neither side's open() can hang and a read can time out.
mkfifo "$work/report"
exec 4<>"$work/report"
clk_tck=$(getconf CLK_TCK)

# --- Measuring -----------------------------------------------------------------

# utime+stime of PID in clock ticks (all threads).
cpu_ticks() {
    local stat
    if ! { read -r stat <"/proc/$1/stat"; } 2>/dev/null; then
        die "process $1 ended during the measurement"
    fi
    local -a fields
    read -r -a fields <<<"${stat##*) }" # fields from the 3rd (state) on
    echo $((fields[11] + fields[12]))
}

# Percentages of one core that PID and the X server use over the next
# SECONDS, as "program server". The server's share (drawing what the program
# sends) is shown for information only; on a desktop a compositor pays it.
cpu_percent() {
    local pid=$1 seconds=$2
    local t0 c0 x0 t1 c1 x1
    c0=$(cpu_ticks "$pid")
    x0=$(cpu_ticks "$xvfb_pid")
    t0=$EPOCHREALTIME
    sleep "$seconds"
    c1=$(cpu_ticks "$pid")
    x1=$(cpu_ticks "$xvfb_pid")
    t1=$EPOCHREALTIME
    awk -v c="$((c1 - c0))" -v x="$((x1 - x0))" -v hz="$clk_tck" -v t0="$t0" -v t1="$t1" \
        'BEGIN { printf "%.2f %.2f", 100 * c / hz / (t1 - t0), 100 * x / hz / (t1 - t0) }'
}

peak_mib() {
    local status
    status=$(cat "/proc/$1/status" 2>/dev/null) || die "process $1 ended before its memory was read"
    awk '/^VmHWM:/ { printf "%.1f", $2 / 1024 }' <<<"$status"
}

# Starts a program under first_paint and waits for its first painted frame.
# Sets app_pid, fp_pid and start_ms. Arguments: label, title, first_paint
# --pixel options..., --, command.
launch() {
    local label=$1 title=$2
    shift 2
    "$first_paint" --title "$title" --report "$work/report" --timeout 30 "$@" \
        >>"$work/$label.log" 2>&1 4>&- &
    fp_pid=$!
    local line=""
    read -r -t 60 line <&4 || true
    [[ $line =~ ^pid=([0-9]+)\ ms=([0-9.]+) ]] ||
        die "$label did not paint its first frame (${line:-no report}); log: $(tail -n 5 "$work/$label.log")"
    app_pid=${BASH_REMATCH[1]}
    start_ms=${BASH_REMATCH[2]}
}

finish() {
    kill -TERM "$app_pid" 2>/dev/null || true
    wait "$fp_pid" 2>/dev/null || true
    app_pid=""
    fp_pid=""
}

fresh_settings() {
    local dir
    dir=$(mktemp -d "$work/settings.XXXXXX")
    # An edition and the sound already chosen, as on any run after the first.
    printf '0\r\n' >"$dir/primary.inf"
    printf '0\r\n' >"$dir/sound.inf"
    echo "$dir"
}

launch_program() {
    launch partitude "$TITLE" \
        --pixel "4,4,$TITLE_BACK" \
        --pixel "$SPHERE_MIDDLE,!$TITLE_BACK" --pixel "$SPHERE_MIDDLE,!000000" \
        -- "$program" --assets "$assets" --settings "$(fresh_settings)"
}

launch_bare() {
    launch bare "$BARE_TITLE" --pixel "4,4,!000000" -- "$bare"
}

declare -a p_start p_cpu p_xcpu p_mem b_start b_cpu b_xcpu b_mem

run_program() {
    launch_program
    p_start+=("$start_ms")
    sleep "$SETTLE"
    cpu=$(cpu_percent "$app_pid" "$WINDOW") # the title animation
    read -r cpu xcpu <<<"$cpu"
    p_cpu+=("$cpu") p_xcpu+=("$xcpu")
    # A still-screen phase goes here.
    p_mem+=("$(peak_mib "$app_pid")")
    finish
}

run_bare() {
    launch_bare
    b_start+=("$start_ms")
    sleep "$SETTLE"
    cpu=$(cpu_percent "$app_pid" "$WINDOW") # idle: nothing on it moves
    read -r cpu xcpu <<<"$cpu"
    b_cpu+=("$cpu") b_xcpu+=("$xcpu")
    b_mem+=("$(peak_mib "$app_pid")")
    finish
}

echo "Xvfb on $DISPLAY; one warm-up start each, then $ROUNDS rounds of program and bare" \
    "window (${SETTLE} s settle + ${WINDOW} s CPU window each) plus $QUICK quick starts of each"
launch_program
finish
launch_bare
finish
for ((round = 1; round <= ROUNDS; ++round)); do
    run_program
    run_bare
    printf '  round %d: partitude %s ms, %s%% CPU, %s MiB | bare %s ms, %s%% CPU, %s MiB' "$round" \
        "${p_start[-1]}" "${p_cpu[-1]}" "${p_mem[-1]}" "${b_start[-1]}" "${b_cpu[-1]}" "${b_mem[-1]}"
    quick_p=() quick_b=()
    for ((quick = 0; quick < QUICK; ++quick)); do
        launch_program
        p_start+=("$start_ms") quick_p+=("$start_ms")
        finish
        launch_bare
        b_start+=("$start_ms") quick_b+=("$start_ms")
        finish
    done
    ((QUICK == 0)) || printf '; quick starts %s | %s ms' "${quick_p[*]}" "${quick_b[*]}"
    echo
done

echo "The full tour, $TOUR_ROUNDS rounds"
tour_status=0
"$tour" --rounds "$TOUR_ROUNDS" --assets "$assets" >"$work/tour.txt" 2>"$work/tour.log" || tour_status=$?
# 1: a target missed (the table says which); anything else: the tour failed.
((tour_status <= 1)) && [[ -s $work/tour.txt ]] ||
    die "the tour failed (exit $tour_status): $(tail -n 5 "$work/tour.log")"

# --- Report --------------------------------------------------------------------

# "median min max" of the arguments.
stats() {
    printf '%s\n' "$@" | sort -g | awk '
        { v[NR] = $1 }
        END {
            m = (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2
            printf "%s %s %s", m, v[1], v[NR]
        }'
}

# "median (min-max)" with the given number of decimals.
cell() {
    local decimals=$1
    shift
    read -r med lo hi <<<"$(stats "$@")"
    printf "%.${decimals}f (%.${decimals}f-%.${decimals}f)" "$med" "$lo" "$hi"
}

verdict() { # "condition in awk" -> PASS/FAIL
    awk "BEGIN { exit !($1) }" && echo PASS || echo FAIL
}

read -r ps_med _ _ <<<"$(stats "${p_start[@]}")"
read -r bs_med _ _ <<<"$(stats "${b_start[@]}")"
read -r pc_med _ _ <<<"$(stats "${p_cpu[@]}")"
read -r _ _ pm_max <<<"$(stats "${p_mem[@]}")"
start_limit=$(awk -v b="$bs_med" -v r="$START_RATIO_MAX" 'BEGIN { printf "%.0f", b * r }')
start_ratio=$(awk -v p="$ps_med" -v b="$bs_med" 'BEGIN { printf "%.2f", p / b }')

echo
echo "Partitude benchmark under Xvfb, median (min-max) of ${#p_start[@]} starts and $ROUNDS runs of each; $(nproc) cores"
printf '%-32s %-22s %-22s %-30s %s\n' "" "partitude" "bare window" "target" ""
printf '%-32s %-22s %-22s %-30s %s\n' "(a) exec to first frame, ms" \
    "$(cell 0 "${p_start[@]}")" "$(cell 0 "${b_start[@]}")" \
    "<= ${START_RATIO_MAX}x bare = $start_limit (${start_ratio}x)" \
    "$(verdict "$ps_med <= $bs_med * $START_RATIO_MAX")"
printf '%-32s %-22s %-22s %-30s %s\n' "(b) CPU, title animation, %" \
    "$(cell 2 "${p_cpu[@]}")" "$(cell 2 "${b_cpu[@]}")" "< ${TITLE_CPU_MAX}% of one core" \
    "$(verdict "$pc_med < $TITLE_CPU_MAX")"
printf '%-32s %-22s %-22s %-30s %s\n' "(c) peak memory (VmHWM), MiB" \
    "$(cell 1 "${p_mem[@]}")" "$(cell 1 "${b_mem[@]}")" "< ${PEAK_MB_MAX} MiB (largest run)" \
    "$(verdict "$pm_max < $PEAK_MB_MAX")"
printf '%-32s %-22s %-22s %-30s %s\n' "(d) CPU, still screen, %" \
    "not measured yet" "$(cell 2 "${b_cpu[@]}")" "about 0" ""
printf '%-32s %-22s %-22s %-30s %s\n' "    Xvfb's CPU meanwhile, %" \
    "$(cell 2 "${p_xcpu[@]}")" "$(cell 2 "${b_xcpu[@]}")" "(for information)" ""
echo "(b) and (d) are over ${WINDOW} s, ${SETTLE} s after the first frame; the title screen always moves."
echo
cat "$work/tour.txt"
echo "Load average (1, 5, 15 min): $load_started at the start, $(cut -d' ' -f1-3 /proc/loadavg) at the end."
awk -v t0="$bench_started" -v t1="$EPOCHREALTIME" -v m="$measure_started" \
    'BEGIN { printf "Benchmark took %.0f s (building %.0f s, measuring %.0f s).\n", t1 - t0, m - t0, t1 - m }'
