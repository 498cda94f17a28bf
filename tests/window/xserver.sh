# Starts an X server with a window manager, to be ended with the shell that reads this. Sets DISPLAY and
# XDG_RUNTIME_DIR, so that nothing of the user's own desktop is met.
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
display=$XDG_RUNTIME_DIR/display
server=
manager=
trap 'kill $manager $server 2>/dev/null; rm -rf "$XDG_RUNTIME_DIR"' EXIT
Xvfb -displayfd 3 -screen 0 1280x900x24 3>"$display" 2>/dev/null &
server=$!
for _ in 1 2 3 4 5 6 7 8 9 10; do
    [ -s "$display" ] && break
    sleep 1
done
DISPLAY=:$(cat "$display")
export DISPLAY
openbox 2>/dev/null &
manager=$!
sleep 1
