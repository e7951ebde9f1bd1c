# ./run bench: measures the agent; ends with one line for each measure and exits 0 whatever they say.
#
#   measure NAME VALUE BAR ok|missed
#
# The programs are those of bench/. The real agent runs through Wine on a screen of its own; what a
# process keeps for itself is read from the host's accounting of it.
. scripts/setup.sh
. scripts/screen.sh
. scripts/stage.sh

# measured WHAT COMMAND...: prints what a program tells, and keeps its measures for the end.
measured() {
  local what="$1"
  shift
  say "$what"
  "$@" </dev/null >out/bench/last.txt || fail "measuring: $what" "run it alone: $*"
  tr -d '\r' <out/bench/last.txt | tee -a out/bench/told.txt | grep -v '^measure ' || true
}

# measure_size FILE: in megabytes.
measure_size() {
  local bytes most=1500000 holds=missed
  bytes="$(stat -c %s "$1")"
  [ "$bytes" -gt "$most" ] || holds=ok
  awk -v bytes="$bytes" -v most="$most" -v holds="$holds" \
    'BEGIN { printf "measure executable_megabytes %.3f %.1f %s\n", bytes / 1e6, most / 1e6, holds }'
}

# put_bench_programs DIR: the programs that work as the agent of an installation lie in its folder.
put_bench_programs() {
  local program
  for program in bench_log_in bench_ticks bench_growth bench_walk bench_idler; do
    put_file "build/windows-x64/bench/$program.exe" "$1/$program.exe"
  done
}

setup build test bench screen
rm -rf out/bench
mkdir -p out/bench build/logs
configure_and_build native bench_schedule bench_memory_tick bench_idle_calls
measured "the schedule by its number of records" build/native/bench/bench_schedule
measured "the tick on the machine in memory" build/native/bench/bench_memory_tick
measured "the calls of the idle agent" build/native/bench/bench_idle_calls

trap stop_screen EXIT
screen=800x600
start_screen "$screen"
use_wine_prefix bench "$screen"
installation="$WINEPREFIX/drive_c/Sorvane"
stage "$installation" --lab
configure_and_build windows-x64 bench_log_in bench_ticks bench_growth bench_walk bench_idler bare_tray
put_bench_programs "$installation"
start_shell "$screen"
step "logging a user in" "run it alone: $installation/bench_log_in.exe" \
  wine "$installation/bench_log_in.exe"

measured "the ticks on Windows" wine "$installation/bench_ticks.exe"
measured "private memory, and what is kept after long use" \
  python3 bench/private_memory.py "$installation" build/windows-x64/bench/bare_tray.exe
measured "a walk over many processes" wine "$installation/bench_walk.exe"
measured "the size of the executable" measure_size "$installation/SorvaneETray.exe"

say "measures"
grep '^measure ' out/bench/told.txt
