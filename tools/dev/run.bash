# Starting the program. Sourced by ./dev, which defines root, say and fail.

# has_display: whether a window could be shown.
has_display() { [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} || $(uname) == Darwin ]]; }

# run [--demo [mac|linux]] [-- ARGS...]: what is printed is the program's alone, the build speaks on standard error.
run() {
  local demo='' host=''
  while [[ $# -gt 0 ]]; do
    case $1 in
      --demo)
        demo=yes
        if [[ ${2:-} == mac || ${2:-} == linux ]]; then host=$2; shift; fi
        ;;
      --) shift; break ;;
      *) say "run knows no $1; what is for tarnwick-cli comes after --"; return 2 ;;
    esac
    shift
  done
  setup build ${demo:+demo} || return
  local program=tarnwick-cli folder=cli
  if [[ $# -eq 0 ]] && has_display; then program=tarnwick folder=app; fi
  build release $program >&2 || return
  [[ -z $demo ]] || enter_demo "$host" || return
  if [[ $program == tarnwick-cli && $# -eq 0 ]]; then
    say "there is no display, so this is a scan of ${demo:+the demo }home folder $HOME by tarnwick-cli; it removes nothing"
    set -- scan
  fi
  "build/release/src/$folder/$program" "$@"
}

# enter_demo [HOST]: makes a demo home and puts this shell in its environment; it is removed when the script ends.
enter_demo() {
  local line
  demo_folder=$(mktemp -d /var/tmp/tarnwick-demo-XXXXXX) || return
  trap 'rm -rf "$demo_folder"' EXIT
  printf '%s\n' "making a demo home in $demo_folder" >&2
  while read -r line; do eval "export $line"; done < <("$root/tools/demo-home" "$demo_folder" ${1:+--host "$1"})
  [[ $HOME == "$demo_folder"/* ]] || fail "making the demo home failed"
}
