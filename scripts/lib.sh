# What every command uses: saying, failing, and running a step that explains its failure.

say() { printf '== %s\n' "$*"; }

# fail WHAT ADVICE: the one way to end with an error.
fail() {
  printf 'failed: %s\n' "$1" >&2
  printf 'what to do: %s\n' "$2" >&2
  exit 1
}

# step WHAT ADVICE COMMAND...: runs a command; on failure says what failed and what to do.
step() {
  local what="$1" advice="$2"
  shift 2
  say "$what"
  "$@" || fail "$what (exit code $?)" "$advice"
}

# configure_and_build PRESET [TARGET...]: a build of one preset, silent but for errors.
configure_and_build() {
  local preset="$1" log="build/logs/configure-$1.log"
  shift
  mkdir -p build/logs
  say "building $preset"
  cmake --preset "$preset" >"$log" 2>&1 || {
    tail -n 40 "$log" >&2
    fail "configuring $preset" "read $log; './run setup' installs what a build needs"
  }
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build "build/$preset" "${targets[@]}" -- --quiet ||
    fail "building $preset" "the first compiler error above tells the place"
}
