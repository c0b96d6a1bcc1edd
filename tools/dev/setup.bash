# Installs what tools/dev/packages names. Sourced by ./dev, which defines root and say.
#
# For tests: TARNWICK_OS_RELEASE names a file that is read instead of /etc/os-release.

# Systems whose package names are known, as ID:VERSION_ID of os-release.
known_systems=(debian:12 debian:13 ubuntu:24.04)

# system_name: ID:VERSION_ID of this system; ":" where it doesn't say.
system_name() (
  ID='' VERSION_ID=''
  # shellcheck source=/dev/null
  [[ ! -r ${TARNWICK_OS_RELEASE:-/etc/os-release} ]] || . "${TARNWICK_OS_RELEASE:-/etc/os-release}"
  echo "$ID:$VERSION_ID"
)

# is_known SYSTEM
is_known() { [[ " ${known_systems[*]} " == *" $1 "* ]]; }

# package_rows GROUP...: the lines "package probe" of these groups, each package once.
package_rows() {
  local group
  for group; do awk -v group="$group" '$1 == group { print $2, $3 }' "$root/tools/dev/packages"; done | sort -u
}

# is_installed NAME[|NAME...]: whether dpkg knows one of them as installed.
is_installed() {
  local name state
  for name in ${1//|/ }; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null) || continue
    [[ $state != installed ]] || return 0
  done
  return 1
}

# is_found PROBE: whether the command, or the CMake package, is there, however it came.
is_found() {
  case $1 in
    cmd:*) command -v "${1#cmd:}" >/dev/null ;;
    cmake:*) compgen -G "/usr/lib*/cmake/${1#cmake:}" >/dev/null || compgen -G "/usr/lib/*/cmake/${1#cmake:}" >/dev/null ||
      compgen -G "/usr/local/lib*/cmake/${1#cmake:}" >/dev/null || compgen -G "/opt/homebrew/lib/cmake/${1#cmake:}" >/dev/null ||
      { [[ -n ${CMAKE_PREFIX_PATH:-} ]] && compgen -G "${CMAKE_PREFIX_PATH%%:*}/lib*/cmake/${1#cmake:}" >/dev/null; } ;;
  esac
}

# missing_packages GROUP...: names (with their alternatives) of what isn't there.
missing_packages() {
  local package probe
  while read -r package probe; do
    if is_known "$(system_name)"; then is_installed "$package"; else is_installed "$package" || is_found "$probe"; fi || echo "$package"
  done < <(package_rows "$@")
}

# known_name NAME[|NAME...]: the first of them that apt can install; the first of all where it knows none.
known_name() {
  local name
  for name in ${1//|/ }; do
    [[ -z $(apt-cache show --no-all-versions "$name" 2>/dev/null) ]] || { echo "$name"; return; }
  done
  echo "${1%%|*}"
}

# as_root COMMAND...
as_root() {
  if [[ $(id -u) == 0 ]]; then "$@"; else sudo "$@"; fi
}

# quietly COMMAND...: without input, and with its output only if it fails.
quietly() {
  local output
  if output=$("$@" </dev/null 2>&1); then return; fi
  printf '%s\n' "$output" >&2
  return 1
}

# name_missing REASON LIST: says what is missing, and why it isn't installed here.
name_missing() {
  say "$1 Missing, by their Debian names:"
  printf '%s\n' "$2" | sed 's/^/  /; s/|/ or /g' >&2
}

# setup GROUP...: makes sure that the packages of these groups are installed. Quick and silent when they are.
setup() {
  local missing system group name names=()
  for group; do
    [[ -n $(package_rows "$group") ]] || { say "no group of packages is called $group"; return 2; }
  done
  missing=$(missing_packages "$@")
  [[ -n $missing ]] || return 0
  system=$(system_name)
  if ! is_known "$system"; then name_missing "This system ($system) is not one whose packages I know." "$missing"; return 1; fi
  if [[ $(id -u) != 0 ]] && ! command -v sudo >/dev/null; then
    name_missing "Neither root nor sudo here." "$missing"
    return 1
  fi
  say "missing: ${missing//$'\n'/ }; asking apt-get for its lists"
  quietly as_root apt-get update || { say "apt-get update failed"; return 1; }
  for name in $missing; do names+=("$(known_name "$name")"); done
  say "installing: ${names[*]}"
  quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${names[@]}" ||
    { say "apt-get install failed"; return 1; }
}
