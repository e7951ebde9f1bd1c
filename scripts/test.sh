# ./run test: everything that can be tested, in one run of ctest.
#
# Natively with sanitizers; on Windows through Wine with a screen of its own. The 32-bit edition is
# compiled only. Both build folders are joined under build/test, so that there is one result.
. scripts/setup.sh
. scripts/screen.sh

setup build test screen
desktops=4 # as many as tests/windows/CMakeLists.txt uses
configure_and_build native-asan
configure_and_build windows-x64

mkdir -p build/test
printf 'subdirs("%s" "%s")\n' "$PWD/build/native-asan" "$PWD/build/windows-x64" \
  >build/test/CTestTestfile.cmake

trap stop_screen EXIT
screen=1024x768
start_screen "$screen"
use_wine_prefix test "$screen"
start_shell "$screen"

# The tests on desktops of their own mostly wait; the others, and the compiler, fill the processors
# meanwhile.
configure_and_build windows-x86 SorvaneETray &
compiler=$!
result=0
ctest --test-dir build/test --output-on-failure --no-tests=error -j "$(($(nproc) + desktops))" "$@" ||
  result=$?
wait "$compiler" || result=$?
exit "$result"
