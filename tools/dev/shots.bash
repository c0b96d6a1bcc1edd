# Pictures of the interface, without a screen, over a demo home. Sourced by ./dev, which defines root, say and fail.

shot_metrics=(mac win)
shot_scales=(1 1.5 2)

# take_shots METRICS SCALE ARGS...: the gallery with these arguments. The desktop that this runs on has no say in it.
take_shots() {
  quietly env -u DBUS_SESSION_BUS_ADDRESS LC_ALL=C.UTF-8 TARNWICK_LANG=en FONTCONFIG_FILE="$root/tools/dev/fonts.conf" \
    TARNWICK_LOOK="$1" QT_SCALE_FACTOR="$2" build/dev/src/gallery/tarnwick-gallery "${@:3}"
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
      if ! take_shots "$metrics" "$scale" --write "$folder"; then say "$metrics metrics at scale $scale failed"; return 1; fi
    done
  done
  if ! take_shots mac 1 --write-views "$folder"; then say "the views failed"; return 1; fi
  say "the pictures lie in $folder"
}
