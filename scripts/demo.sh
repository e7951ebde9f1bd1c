# ./run demo: one scheduled backup on the real executable, on a screen with a notification area.
#
# Pictures and the time line go to out/demo/. See lab/demo/play.py for the story.
. scripts/setup.sh
. scripts/screen.sh
. scripts/stage.sh

setup build test bench screen
mkdir -p build/logs
trap stop_screen EXIT
screen=800x600
start_screen "$screen"
use_wine_prefix demo "$screen"

installation="$WINEPREFIX/drive_c/Sorvane"
rm -rf out/demo
mkdir -p out/demo
stage "$installation" --lab
configure_and_build windows-x64 lab_observer

say "the shell"
start_shell "$screen"
say "playing; seconds, icon, who, what"
PYTHONDONTWRITEBYTECODE=1 python3 lab/demo/play.py "$installation" \
  build/windows-x64/lab/lab_observer.exe out/demo ||
  fail "the demo" "look at the last picture in out/demo and at $installation/*/TrayTraceFile.txt"
say "pictures and timeline.md are in out/demo"
