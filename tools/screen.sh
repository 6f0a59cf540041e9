# Functions of the tools that capture windows; to be sourced after tools/support.sh. Needs $work, a folder
# for temporary files, and $folder, where the pictures are written.

limit=60 # seconds for a page to appear
shown=   # signature of the page that was captured last

# Starts a virtual screen of the window's size. At the end of the script it ends, and $program with it.
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

# WaitForPage <limit in seconds>: waits until the screen has changed and is the same in two captures.
WaitForPage()
{
    local end=$((SECONDS + $1)) look before=
    until look=$(Look) && [[ $look != "$shown" && $look == "$before" ]]; do
        ((SECONDS < end)) || Fail "the next page did not come within $1 s: see $work/now.png"
        before=$look
    done
    shown=$look
}

# Keep <name>: stores the last capture.
Keep()
{
    convert "$work/now.png" -strip "$folder/$1.png"
}
