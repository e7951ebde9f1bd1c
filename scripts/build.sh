# ./run build: the Windows program in both widths, and the native libraries that its logic is tested with.
. scripts/setup.sh

setup build test bench
configure_and_build windows-x64
configure_and_build windows-x86 SorvaneETray
configure_and_build native
say "the program is build/windows-x64/src/app/SorvaneETray.exe"
