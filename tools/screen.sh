# Shared by the tools that take pictures of windows: sourced, never run, after tools/support.sh.
# Expects $work, a folder for what they need, and $folder, where the pictures go.

limit=60 # seconds for anything to appear
shown=   # what the screen showed when it was looked at last

# A screen without a monitor, as large as the window, until the script ends. Ends $program as well.
StartScreen()
{
    mkfifo "$work/display"
    Xvfb -displayfd 7 -screen 0 670x600x24 -dpi 96 -nolisten tcp -noreset 7<>"$work/display" 2>"$work/Xvfb.log" &
    screen=$!
    trap 'kill "$screen" ${program:-} 2>/dev/null || true' EXIT
    local number
    read -r -t "$limit" number <>"$work/display" || Fail "the screen does not start: see $work/Xvfb.log"
    export DISPLAY=:$number
}

Look()
{
    import -window root "$work/now.png"
    identify -format '%#' "$work/now.png"
}

# WaitForPage <limit in seconds>: until the screen shows something new that stays for a moment.
WaitForPage()
{
    local end=$((SECONDS + $1)) look before=
    until look=$(Look) && [[ $look != "$shown" && $look == "$before" ]]; do
        ((SECONDS < end)) || Fail "the next page did not come within $1 s: see $work/now.png"
        before=$look
    done
    shown=$look
}

# Keep <name>: the page that is shown now.
Keep()
{
    convert "$work/now.png" -strip "$folder/$1.png"
}
