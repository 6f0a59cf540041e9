#!/bin/sh
# Deletes what an uninstallation has moved out of the product's folder because it was in use, and then
# itself, and its own folder where that was made for one process and is empty.
# Arguments: the delay in seconds; the product's folder; whether it is the only entry of its parent
# (not used).
# VORLAN_REMOVAL is the identity of the uninstallation: <folder>.<identity> is deleted, which nothing
# else uses. The product's folder itself is never touched: the next version may be in it by now.
delay=$1
folder=${2%/}
identity=$VORLAN_REMOVAL
mostTries=3600

end()
{
    rm -f -- "$0"
    case ${0%/*} in
        *Setup-*) rmdir -- "${0%/*}" 2>/dev/null ;;
    esac
    exit "$1"
}

refuse()
{
    echo "not removed: \"$folder\" is $1" >&2
    end 1
}

case $2 in
    /*) ;;
    *) refuse "no absolute path" ;;
esac
[ -n "$folder" ] || refuse "a root"
aside=$folder.$identity
case $identity in
    "" | */*) refuse "not marked for removal" ;;
esac
[ -d "$aside" ] && [ ! -L "$aside" ] || refuse "not marked for removal"

sleep "$delay"
tries=0
until rm -rf -- "$aside"; do
    tries=$((tries + 1))
    [ "$tries" -lt "$mostTries" ] || refuse "in use"
    sleep 1
done
end 0
