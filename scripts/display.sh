# Sourced. start_display starts a virtual display of its own and sets DISPLAY; end_display ends it, and is to be called
# however the script ends. Both keep what they need in the folder $temporary.
start_display() {
  : >"$temporary/display"  # a plain file for its number: a bare system may have no /dev/fd
  Xvfb -displayfd 6 -screen 0 1366x768x24 6>"$temporary/display" >"$temporary/server" 2>&1 &
  server=$!
  local number
  for _ in {1..150}; do
    if read -r number <"$temporary/display"; then
      export DISPLAY=:$number
      return
    fi
    sleep .1
  done
  cat "$temporary/server" >&2
  echo "The virtual display did not start within 15 seconds." >&2
  exit 1
}

end_display() {
  [ -z "${server:-}" ] || kill "$server" 2>/dev/null || true
}
