# ./run fuzz SECONDS: runs every fuzz target on its corpus, the time shared evenly.
#
# A finding is left in out/fuzz/. The corpus below fuzz/corpus/ is read; what is new goes to out/.
. scripts/setup.sh

seconds="${1:-}"
[[ "$seconds" =~ ^[1-9][0-9]*$ ]] || fail "fuzz needs a number of seconds" "for instance: ./run fuzz 60"

setup build fuzz
configure_and_build fuzz
mapfile -t targets < <(find build/fuzz/fuzz -maxdepth 1 -type f -name 'fuzz_*' -perm -u+x | sort)
[ ${#targets[@]} -gt 0 ] || fail "no fuzz target was built" "look at fuzz/CMakeLists.txt"

each=$((seconds / ${#targets[@]}))
[ "$each" -gt 0 ] || each=1
for target in "${targets[@]}"; do
  name="$(basename "$target")"
  found="out/fuzz/$name"
  mkdir -p "$found/new"
  step "$name, $each seconds" "the input is in $found; run: $target FILE" \
    "$target" "$found/new" "fuzz/corpus/$name" -max_total_time="$each" -timeout=10 -rss_limit_mb=2048 \
    -max_len=65536 -print_final_stats=0 -verbosity=0 -artifact_prefix="$found/"
done
say "${#targets[@]} targets ran without a finding"
