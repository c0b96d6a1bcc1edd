# Pictures of the interface, without a screen, over a demo home. Sourced by ./dev, which defines root, say and fail.

shot_metrics=(mac win)
shot_scales=(1 1.5 2)

# take_shots FOLDER METRICS SCALE: every sheet in both looks. The desktop that this runs on has no say in them.
take_shots() {
  quietly env -u DBUS_SESSION_BUS_ADDRESS LC_ALL=C.UTF-8 TARNWICK_LANG=en FONTCONFIG_FILE="$root/tools/dev/fonts.conf" \
    TARNWICK_LOOK="$2" QT_SCALE_FACTOR="$3" build/dev/src/gallery/tarnwick-gallery --write "$1"
}

# shots [DIR]: a relative DIR is seen from where ./dev was called.
shots() {
  local folder=${1:-$root/build/shots} metrics scale
  [[ $folder == /* ]] || folder=$OLDPWD/$folder
  setup build shots demo || return
  build dev tarnwick-gallery >&2 || return
  enter_demo linux || return
  for metrics in "${shot_metrics[@]}"; do
    for scale in "${shot_scales[@]}"; do
      if ! take_shots "$folder" "$metrics" "$scale"; then say "$metrics metrics at scale $scale failed"; return 1; fi
    done
  done
  say "the pictures lie in $folder"
}
