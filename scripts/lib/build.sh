# Building. To be sourced; needs $root (the checkout). Scripts that run at the same time wait here for each other.

# quietly PRESET COMMAND...: runs the command, alone in the preset's build; on a failure shows what was said and ends the
# script.
quietly() {
  local preset=$1 log=$root/build/$1.log
  shift
  mkdir -p "$root/build"
  if ! flock "$root/build/$preset.lock" "$@" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "building $preset failed; all of it in $log" >&2
    exit 1
  fi
}

configure() {
  quietly "$1" cmake -S "$root" --preset "$1"
}

# build PRESET [TARGET...]
build() {
  local preset=$1 begin=$SECONDS
  [ -z "${NV_NEXT:-}" ] || return 0 # there, what was built outside is played
  shift
  echo "building $preset" >&2
  configure "$preset"
  quietly "$preset" cmake --build "$root/build/$preset" ${*:+--target "$@"}
  echo "built $preset in $((SECONDS - begin)) s" >&2
}
