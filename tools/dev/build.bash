# Configuring and building. Sourced by ./dev, which defines root, jobs, say and fail.

# configure PRESET [CMAKE ARGS...]: quiet unless it fails.
configure() {
  local log
  log=$(mktemp)
  if ! cmake --preset "$@" >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    fail "configuring $1 failed"
  fi
  rm -f "$log"
}

# build PRESET [TARGET...]: all of it, or these targets.
build() {
  local preset=$1
  shift
  configure "$preset"
  cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"}
}

# has_target PRESET TARGET
has_target() { cmake --build --preset "$1" --target help | grep -q "^$2:"; }
