# Sourced. The packages of the compiler that CXX names and of the one for Windows, and install_missing PACKAGE..., which
# installs what is not there yet, as root or with sudo.
case "${CXX:-}" in *clang*) compiler=clang ;; *) compiler=g++ ;; esac
windows_compiler=g++-mingw-w64-x86-64-posix

install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
