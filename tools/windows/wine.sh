# Functions of the tools that run Wine; to be sourced after tools/support.sh.

# Sets $wine and $server to Wine's two programs.
FindWine()
{
    wine=$(command -v wine64 || true)
    wine=${wine:-/usr/lib/wine/wine64}
    [[ -x $wine ]] || Fail "Wine is missing: run tools/setup --windows"
    server=$(command -v wineserver || true)
    server=${server:-$(dirname "$wine")/wineserver64}
}
