#!/usr/bin/env bash
# on_desktop.sh NAME PROGRAM [ARGUMENT...]: runs a Windows program on a desktop of its own, with a
# screen, a registry and a notification area that nobody else uses. All of it ends with the program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/lib.sh
. scripts/screen.sh

name="$1"
shift
screen=1024x768
trap stop_screen EXIT
start_screen "$screen" "$name"
use_wine_prefix "$name" "$screen"
start_shell "$screen"
wine "$@"
