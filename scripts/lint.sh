# ./run lint: formatting of every source, then clang-tidy over what is compiled natively.
. scripts/setup.sh

setup build test bench lint
mapfile -t sources < <(find src lab tests bench fuzz -name '*.h' -o -name '*.cpp' | sort)
step "formatting of ${#sources[@]} files" "run: clang-format -i FILE" \
  clang-format --dry-run --Werror "${sources[@]}"
configure_and_build native
mapfile -t compiled < <(python3 -c '
import json, os
for entry in json.load(open("build/native/compile_commands.json")):
    path = os.path.relpath(entry["file"])
    if path.startswith(("src/", "lab/")):
        print(path)')
step "clang-tidy over ${#compiled[@]} files" "each complaint above names its check; see .clang-tidy" \
  xargs -P "$(nproc)" -n 4 clang-tidy -p build/native --quiet <<<"$(printf '%s\n' "${compiled[@]}")"
