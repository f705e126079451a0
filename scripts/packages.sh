# Sourced, in the project's folder. The packages of the compiler that CXX names and of the one for Windows, and
#   install_missing PACKAGE...     says what it takes and installs what is not there yet, as root or with sudo
#   logged LOG WHAT COMMAND...     says what is done, and shows the command's output, which goes to build/LOG, when it fails
case "${CXX:-}" in *clang*) compiler=clang ;; *) compiler=g++ ;; esac
windows_compiler=g++-mingw-w64-x86-64-posix

logged() {
  local log=build/$1 what=$2 status=0
  shift 2
  mkdir -p build
  echo "$what ($log)"
  "$@" >"$log" 2>&1 || status=$?
  [ $status -eq 0 ] && return
  # Of a build all but the steps that went well.
  grep -vE '^\[ *[0-9]+(%|/[0-9]+)\]' "$log" >&2 || true
  echo "Failed, with status $status: $what. All of its output: $log" >&2
  exit $status
}

install_missing() {
  local missing=() package as_root=() apt=(env LC_ALL=C DEBIAN_FRONTEND=noninteractive timeout 3600 apt-get)
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Some packages are missing, and there is no sudo. As root, run" >&2
      echo "  apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  logged packages.log "Looking for packages" "${as_root[@]}" "${apt[@]}" update
  echo "To be installed, with what they need: ${missing[*]}"
  "${as_root[@]}" "${apt[@]}" install --assume-no --no-install-recommends "${missing[@]}" 2>/dev/null |
    grep -E '^(Need to get|After this operation)' || true
  logged packages.log "Installing" "${as_root[@]}" "${apt[@]}" install -y --no-install-recommends "${missing[@]}"
}
