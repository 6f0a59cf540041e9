# Functions of all tools; to be sourced. Needs $tool, the prefix of printed lines.

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

# RunStep <description> <advice after a failure> <log file> <command...>: prints the end of the
# output and one line after a failure.
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

# StartsWithHelp "$@": whether the first argument asks for the usage.
StartsWithHelp()
{
    [[ ${1:-} == --help || ${1:-} == -h ]]
}

# PrintUsage <script>: prints the comment at the top of the script.
PrintUsage()
{
    awk 'NR > 1 && !/^#/ { exit } NR > 1 { sub(/^# ?/, ""); print }' "$1"
}

# PrivateApt <folder> <apt-get arguments...>: apt-get with source list, package lists and cache in this
# folder, so that those of the machine are not changed.
PrivateApt()
{
    local folder=$1
    shift
    (cd "$folder" && apt-get -o Dir::Etc::sourcelist="$folder/debian.sources" \
        -o Dir::Etc::sourceparts=- -o Dir::State::lists="$folder/lists" \
        -o Dir::Cache="$folder/cache" -o APT::Sandbox::User="$(id -un)" \
        -o APT::Update::Error-Mode=any "$@")
}

UnpackSource()
{
    (cd "$1" && dpkg-source --no-check -x ./*.dsc source)
}

# FetchSource <package> <folder> <log file>: unpacks a Debian source package to <folder>/source.
FetchSource()
{
    local package=$1 folder=$2 log=$3
    local advice="Check the network and the proxy settings of apt, then run $tool again"
    mkdir -p "$folder"/{lists/partial,cache/archives/partial}
    "$top/tools/source-list" >"$folder/debian.sources" || exit
    RunStep "reading Debian's list of source packages" "$advice" "$log" PrivateApt "$folder" update
    RunStep "downloading Debian's source package $package" "$advice" "$log" \
        PrivateApt "$folder" source --download-only "$package"
    RunStep "unpacking $package" "Delete $folder and run $tool again" "$log" UnpackSource "$folder"
}
