# Starting the program. Sourced by ./dev, which defines root, say and fail.

# run [--demo [mac|linux]] [-- ARGS...]
run() {
  setup build
  build release tarnwick-cli
  build/release/src/cli/tarnwick-cli "${@:-scan}"
}
