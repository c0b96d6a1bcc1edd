# Pictures of the interface, without a screen, over a demo home. Sourced by ./dev, which defines root, say and fail.

shot_metrics=(mac win)
shot_scales=(1 1.5 2)

# shot_languages: the codes of the languages that there is a catalogue for, one a line.
shot_languages() {
  local catalogue
  for catalogue in "$root"/resources/i18n/tarnwick_*.ts; do
    catalogue=${catalogue##*/tarnwick_}
    echo "${catalogue%.ts}"
  done
}

# take_shots METRICS SCALE ARGS...: the gallery with these arguments, in $language. The desktop that this runs on has no
# say in it.
take_shots() {
  quietly env -u DBUS_SESSION_BUS_ADDRESS LC_ALL=C.UTF-8 TARNWICK_LANG="$language" \
    FONTCONFIG_FILE="$root/tools/dev/fonts.conf" TARNWICK_LOOK="$1" QT_SCALE_FACTOR="$2" \
    build/dev/src/gallery/tarnwick-gallery "${@:3}"
}

# shots [DIR] [--lang CODE]: a relative DIR is seen from where ./dev was called.
shots() {
  local folder='' language=en metrics scale
  while [[ $# -gt 0 ]]; do
    case $1 in
      --lang)
        [[ $# -ge 2 ]] || { say "--lang needs the code of a language"; return 2; }
        language=$2
        shift
        ;;
      -*) say "shots knows no $1"; return 2 ;;
      *)
        [[ -z $folder ]] || { say "shots takes one folder"; return 2; }
        folder=$1
        ;;
    esac
    shift
  done
  if ! shot_languages | grep -qxF -- "$language"; then
    say "there is no language $language; there are: $(shot_languages | paste -sd ' ')"
    return 2
  fi
  folder=${folder:-$root/build/shots}
  [[ $folder == /* ]] || folder=$OLDPWD/$folder
  setup build shots demo || return
  build dev tarnwick-gallery >&2 || return
  enter_demo linux || return
  for metrics in "${shot_metrics[@]}"; do
    for scale in "${shot_scales[@]}"; do
      if ! take_shots "$metrics" "$scale" --write "$folder"; then say "$metrics metrics at scale $scale failed"; return 1; fi
    done
  done
  if ! take_shots mac 1 --write-views "$folder"; then say "the views failed"; return 1; fi
  say "the pictures lie in $folder"
}
