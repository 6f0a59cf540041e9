# Shared by the tools: sourced, never run. Expects $tool, the name that stands before every line.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

Say()
{
    printf '%s: %s\n' "$tool" "$*"
}

Fail()
{
    printf '%s: %s\n' "$tool" "$*" >&2
    exit 1
}

# RunStep <what it does> <what to do when it fails> <log file> <command...>: a failure shows the
# end of the output and then one line.
RunStep()
{
    local what=$1 advice=$2 log=$3
    shift 3
    Say "$what"
    mkdir -p "$(dirname "$log")"
    "$@" </dev/null >"$log" 2>&1 && return
    tail -n 20 "$log" >&2
    Fail "failed: $what. $advice (full output: $log)"
}

# StartsWithHelp "$@": whether the caller only asks what the tool does.
StartsWithHelp()
{
    [[ ${1:-} == --help || ${1:-} == -h ]]
}

# PrintUsage <script>: the comment at the top of the script.
PrintUsage()
{
    awk 'NR > 1 && !/^#/ { exit } NR > 1 { sub(/^# ?/, ""); print }' "$1"
}
