# Configuring and building. Sourced by ./dev, which defines root, jobs, say and fail.
# What fails returns 1 rather than ending the script, so that a row of checks can go on after it.

# configure PRESET [CMAKE ARGS...]: quiet unless it fails.
configure() {
  local log
  if ! log=$(cmake --preset "$@" 2>&1); then
    printf '%s\n' "$log" >&2
    say "configuring $1 failed"
    return 1
  fi
}

# build PRESET [TARGET...]: all of it, or these targets.
build() {
  local preset=$1
  shift
  configure "$preset" && cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"}
}

# build_strictly PRESET [TARGET...]: the same with warnings as errors.
build_strictly() {
  local preset=$1
  shift
  configure "$preset" -DTARNWICK_WERROR=ON && cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"}
}
