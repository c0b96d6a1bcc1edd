# Tests, lints, formatting. Sourced by ./dev, which defines root, jobs, say and fail.

# sources: every C++ file that is ours.
sources() { find src tests bench fuzz -name '*.cpp' -o -name '*.h' -o -name '*.mm' | sort; }

# llvm_tool NAME: the version that the house goes by where it is installed, else any.
llvm_tool() {
  if command -v "$1-14" >/dev/null; then echo "$1-14"; else echo "$1"; fi
}

format() {
  setup lint
  sources | xargs "$(llvm_tool clang-format)" -i
}

# run_tests [--full] [CTEST ARGS...]
run_tests() {
  setup build test
  configure dev -DTARNWICK_WERROR=ON
  cmake --build --preset dev -j "$jobs"
  ctest --test-dir build/dev --output-on-failure -j 2 "$@"
}
