# An X server for the programs of a test, and a hand at their keys. Sourced, where the test keeps its files; needs fail().
# Debian packages: xvfb, xdotool.
started=()
trap 'kill "${started[@]}" 2>/dev/null || true; cleanup' EXIT  # cleanup() is the test's own

within_seconds() {  # within_seconds N COMMAND...
    local end=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do [ $SECONDS -lt $end ] || fail "waited in vain: $*"; sleep 0.05; done
}
start_screen() {
    # Without a break between one program and the next.
    Xvfb -noreset -displayfd 3 -screen 0 1280x1024x24 3>display 2>/dev/null &
    started+=($!)
    within_seconds 10 test -s display
    DISPLAY=:$(cat display)
    export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$PWD HOME=$PWD
}
find_window() { xdotool search --onlyvisible --name "$1"; }
no_window() { ! find_window "$1"; }
press() { xdotool windowfocus --sync "$(find_window "$1" | head -1)" key "${@:2}"; }
ended_with() { wait "$1" && status=0 || status=$?; [ $status = "$2" ] || fail "exit status $status, not $2"; }
