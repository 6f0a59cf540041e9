# Functions of the tools that make a setup for Windows; to be sourced after tools/support.sh.

# FillPayload <build's program folder> <payload>: copies the programs with their libraries, at least
# 45 MB, and adds an empty file, an empty folder and names outside ASCII.
FillPayload()
{
    local bin=$1 payload=$2 size
    mkdir -p "$payload/resources" "$payload"/{empty/folder,данные/深い}
    (cd "$bin" && cp ./*.dll probe/corechecker.exe quill.exe VorlanLinkHelper.exe installergui.exe "$payload" &&
        cp -r platforms "$payload" && cp -r resources/locales "$payload/resources")
    cp "$top/frontend/resources/fonts.conf" "$payload"
    cp -r "$top/frontend/resources/icons" "$payload/resources"
    : >"$payload/empty/file.txt"
    echo "こんにちは" >"$payload/данные/深い/ファイル.txt"
    size=$(du --summarize --block-size=1 --apparent-size "$payload" | cut -f 1)
    ((size >= 45000000)) || Fail "the payload holds only $size bytes: 45 MB are needed"
}

# FillSetup <build's program folder> <setup>: copies the setup program with its run-time dependencies.
FillSetup()
{
    mkdir -p "$2"
    (cd "$1" && cp ./*.dll probe/corechecker.exe installergui.exe "$2" && cp -r platforms resources "$2")
}
