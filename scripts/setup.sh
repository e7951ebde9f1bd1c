# ./run setup [GROUP...]: installs the Debian packages that are missing. Without a group: all groups.
# Works as root or through sudo, without a terminal.

declare -A packages=(
  [build]="g++ cmake ninja-build ccache g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix python3"
  [test]="libgtest-dev libgmock-dev googletest"
  [screen]="wine wine64 xvfb xdotool imagemagick x11-utils fonts-wine fonts-liberation fonts-open-sans"
  [bench]="libbenchmark-dev"
  [fuzz]="clang libclang-rt-14-dev"
  [lint]="clang-format clang-tidy"
)

missing_packages() {
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
      printf '%s\n' "$package"
  done
}

# as_root COMMAND...: through sudo when this is not root.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo -n "$@" || sudo "$@"
  else
    fail "installing packages needs root" "run './run setup' as root, or install sudo"
  fi
}

# logged COMMAND...: the package system is long-winded; its words are shown only when it fails.
logged() {
  mkdir -p build/logs
  "$@" >build/logs/packages.log 2>&1 </dev/null || {
    local code=$?
    tail -n 20 build/logs/packages.log >&2
    return "$code"
  }
}

install_packages() {
  step "reading the package lists" "check the network and /etc/apt/sources.list" \
    logged as_root apt-get update
  step "installing: $*" "check the network and the free space; all is in build/logs/packages.log" \
    logged as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

setup() {
  command -v dpkg-query >/dev/null ||
    fail "this is not a Debian system" "install the tools named in scripts/setup.sh by hand"
  local wanted=() missing
  local groups=("$@")
  [ $# -gt 0 ] || groups=("${!packages[@]}")
  local group
  for group in "${groups[@]}"; do
    [ -n "${packages[$group]:-}" ] || fail "there is no package group '$group'" "choose among: ${!packages[*]}"
    # shellcheck disable=SC2206  # a list of words
    wanted+=(${packages[$group]})
  done
  mapfile -t missing < <(missing_packages "${wanted[@]}")
  if [ ${#missing[@]} -eq 0 ]; then
    say "all packages are there (${groups[*]})"
    return
  fi
  install_packages "${missing[@]}"
}

[ "$command" != setup ] || setup "$@"
