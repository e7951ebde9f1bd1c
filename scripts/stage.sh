# ./run stage [--lab] DIR: a complete installation at DIR, ready to be started.
#
# --lab adds stand-ins for the other programs of the installation. They note their calls in
# LabCalls.txt; the engine plays what LabEngine.ini says (see lab/engine/engine_script.h).
. scripts/setup.sh

# Stand-in executable and the names that it takes in an installation.
lab_programs=(
  "lab_engine_client SorvaneEClsClient.exe"
  "lab_background SorvaneEBackground.exe"
  "lab_main_program SorvaneEClassic.exe"
  "lab_recorder SorvaneEBckupsetSize.exe SorvaneEContextMenu.exe SorvaneELaunchDrive.exe"
  "lab_recorder SorvaneEReg2ini.exe"
  "lab_web_plugin SorvanePlugin.exe"
  "lab_explorer LabExplorer.exe"
)
lab_libraries=(SorvaneERealTime ShellHlpr)
lab_service="SorvaneE Service.exe"
lab_service_verbs=(Install Start Stop)

# put_file FROM TO: replaces TO even while somebody runs it.
put_file() {
  rm -f "$2"
  cp "$1" "$2"
}

stage_product() {
  local dir="$1"
  mkdir -p "$dir/Images"
  put_file build/windows-x64/src/app/SorvaneETray.exe "$dir/SorvaneETray.exe"
  local icon
  for icon in resources/icons/*.ico; do
    put_file "$icon" "$dir/Images/$(basename "$icon")"
  done
  build/native/lab/lab_configuration >"$dir/Configuration.ini"
}

stage_lab() {
  local dir="$1" entry words name library verb
  for entry in "${lab_programs[@]}"; do
    read -ra words <<<"$entry"
    for name in "${words[@]:1}"; do
      put_file "build/windows-x64/lab/${words[0]}.exe" "$dir/$name"
    done
  done
  for library in "${lab_libraries[@]}"; do
    put_file "build/windows-x64/lab/$library.dll" "$dir/$library.dll"
  done
  put_file build/windows-x64/lab/lab_service.exe "$dir/$lab_service"
  for verb in "${lab_service_verbs[@]}"; do
    printf '@echo off\r\necho %%TIME%% %%~nx0 [%%*]>> "%%~dp0LabCalls.txt"\r\n"%%~dp0%s" %s\r\n' \
      "$lab_service" "${verb,,}" >"$dir/${verb}SorvaneEService.bat"
  done
}

# stage DIR [--lab]: builds what is needed and lays it out.
stage() {
  local dir="$1" with_lab="${2:-}"
  local targets=(SorvaneETray)
  [ -z "$with_lab" ] ||
    targets+=(lab_engine_client lab_background lab_main_program lab_recorder lab_web_plugin
      lab_explorer lab_service "${lab_libraries[@]}")
  setup build test bench
  configure_and_build windows-x64 "${targets[@]}"
  configure_and_build native lab_configuration
  mkdir -p "$dir" || fail "making the folder $dir" "choose a folder that you may write to"
  say "laying out the installation in $dir"
  stage_product "$dir"
  [ -z "$with_lab" ] || stage_lab "$dir"
}

if [ "$command" = stage ]; then
  with_lab=""
  if [ "${1:-}" = --lab ]; then
    with_lab=--lab
    shift
  fi
  [ $# -eq 1 ] || fail "stage needs one folder" "for instance: ./run stage --lab out/installation"
  stage "$1" "$with_lab"
fi
