# Building. To be sourced; needs $root (the checkout).

# build PRESET [TARGET...]: configures and builds quietly; on a failure shows what was said and ends the script.
build() {
  local preset=$1 log begin=$SECONDS
  shift
  mkdir -p "$root/build"
  log=$root/build/$preset.log
  echo "building $preset" >&2
  if ! { cmake -S "$root" --preset "$preset" && cmake --build "$root/build/$preset" ${*:+--target "$@"}; } >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "building $preset failed; all of it in $log" >&2
    exit 1
  fi
  echo "built $preset in $((SECONDS - begin)) s" >&2
}
