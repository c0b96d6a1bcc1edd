# Tests, lints, formatting. Sourced by ./dev, which defines root, jobs, say and fail.

# Another version formats and warns otherwise.
llvm_version=14

# What clang-tidy may take in the quick tier; --full takes as long as it needs.
quick_tidy_seconds=600

# sources: every C++ file that is ours.
sources() { find src tests bench fuzz -name '*.cpp' -o -name '*.h' -o -name '*.mm' | sort; }

# llvm_tool NAME: the version that the house goes by where it is installed, else any.
llvm_tool() {
  if command -v "$1-$llvm_version" >/dev/null; then echo "$1-$llvm_version"; else echo "$1"; fi
}

# is_advice TOOL: whether what it says doesn't count, as it is another version; says so.
is_advice() {
  [[ $("$1" --version) != *version\ $llvm_version.* ]] || return 1
  say "$1 is not version $llvm_version: what it says is advice"
}

# A row of checks goes on after a failure; the failed ones are told at its end.
failed_checks=()

# check NAME COMMAND...
check() {
  local name=$1 begun=$SECONDS
  shift
  say "== $name"
  if "$@"; then say "== $name passed ($((SECONDS - begun)) s)"; else
    say "== $name FAILED ($((SECONDS - begun)) s)"
    failed_checks+=("$name")
  fi
}

end_of_checks() {
  [[ ${#failed_checks[@]} -eq 0 ]] || { say "failed: $(printf '%s; ' "${failed_checks[@]}")"; return 1; }
}

# run_tests [--full] [CTEST ARGS...]
run_tests() {
  if [[ ${1:-} == --full ]]; then
    shift
    run_all_tests
    return
  fi
  setup build test || return
  build_strictly dev && ctest --test-dir build/dev --output-on-failure -j 2 -LE long "$@"
}

run_all_tests() {
  setup build test lint full || return
  check "tests, the long ones too" full_suite dev
  check "tests under address and undefined-behaviour sanitizers" full_suite asan
  check "engines under the thread sanitizer" engines_under_tsan
  check "headless half alone" build_strictly headless
  check "fuzzers" fuzz 60
  check "clang-tidy" tidy
  end_of_checks
}

full_suite() { build_strictly "$1" && ctest --test-dir "build/$1" --output-on-failure -j 2; }

# Addresses that are too random leave the thread sanitizer no room, so they are kept in order where that is allowed.
engines_under_tsan() {
  local in_order=env
  if setarch --addr-no-randomize true 2>/dev/null; then in_order="setarch --addr-no-randomize"; fi
  build_strictly tsan tests/engines/all &&
    TSAN_OPTIONS="suppressions=$root/cmake/tsan.supp halt_on_error=0 second_deadlock_stack=1" \
      $in_order ctest --test-dir build/tsan/tests/engines --output-on-failure -j 2
}

# fuzz SECONDS [NAME...]: each fuzzer, or those named, that long, from its corpus and the inputs that earlier runs found on.
fuzz() {
  local seconds=$1 program name inputs count=0 status=0
  shift
  setup build full || return
  build fuzz || return
  for program in build/fuzz/fuzz/tarnwick-fuzz-*; do
    [[ -x $program && -f $program ]] || continue
    name=${program##*/}
    [[ $# -eq 0 || " $* " == *" ${name#tarnwick-fuzz-} "* ]] || continue
    inputs=("build/fuzz/inputs/$name")
    mkdir -p "${inputs[0]}"
    if [[ -d fuzz/corpus/${name#tarnwick-fuzz-} ]]; then inputs+=("fuzz/corpus/${name#tarnwick-fuzz-}"); fi
    count=$((count + 1))
    say "$name for $seconds s"
    if ! "$program" -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="build/fuzz/$name-" \
      "${inputs[@]}" >"build/fuzz/$name.log" 2>&1; then
      tail -n 40 "build/fuzz/$name.log" >&2
      say "$name failed; its input lies in build/fuzz"
      status=1
    else
      say "$name: $(awk '/number_of_executed_units/ { print $2 }' "build/fuzz/$name.log") inputs"
    fi
  done
  [[ $count -gt 0 ]] || { say "no fuzzer is called so: $*"; return 1; }
  return $status
}

format() { setup lint && sources | xargs "$(llvm_tool clang-format)" -i; }

lint() {
  setup build lint || return
  check "formatting" formatting
  check "house rules" house_rules
  check "shell scripts" shell_scripts
  check "desktop entry" desktop_entry
  check "clang-tidy" tidy $quick_tidy_seconds
  end_of_checks
}

formatting() {
  local tool
  tool=$(llvm_tool clang-format)
  sources | xargs "$tool" --dry-run -Werror || is_advice "$tool"
}

house_rules() {
  local name status=0
  for name in catalogues colours layers removal shape systems untranslated; do
    python3 "tests/lint/$name.py" "$root" || status=1
  done
  tools/dev/translations --check || [[ $? == 77 ]] || status=1 # 77: without lupdate there is nothing to say
  return $status
}

shell_scripts() {
  if ! command -v shellcheck >/dev/null; then say "shellcheck isn't installed: skipped"; return; fi
  shellcheck --external-sources --check-sourced dev .ci/run
}

desktop_entry() {
  if ! command -v desktop-file-validate >/dev/null; then say "desktop-file-validate isn't installed: skipped"; return; fi
  desktop-file-validate resources/desktop/tarnwick.desktop
}

# tidy [SECONDS]: over src/, what changed since it last passed; needs what the build makes (generated files, dependencies).
tidy() {
  local tool
  tool=$(llvm_tool clang-tidy)
  build_strictly dev >/dev/null && { tools/dev/tidy "$tool" build/dev "$@" || is_advice "$tool"; }
}
