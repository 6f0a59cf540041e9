#!/bin/sh
# Removes one folder with everything in it after a delay, and then itself.
# Arguments: the delay in seconds; the folder; whether it is the only entry of its parent (not used:
# nothing but the folder itself is removed).
# VORLAN_REMOVAL is the identity of this removal, and the name of a file in the mark of the folder.
# An installation deletes the file before it places anything, and then nothing is removed.
delay=$1
folder=$2
mark=uninst.unfinished
identity=$VORLAN_REMOVAL
mostTries=60

end()
{
    rm -f -- "$0"
    exit "$1"
}

refuse()
{
    echo "not removed: \"$folder\" is $1" >&2
    end 1
}

# Whether the folder is this one or contains it.
contains()
{
    inner=$(cd -- "$1" 2>/dev/null && pwd -P) || inner=$1
    case $inner/ in "$folder"/*) return 0 ;; esac
    return 1
}

case $folder in
    /*) ;;
    *) refuse "no absolute path" ;;
esac
[ -d "$folder" ] || refuse "no folder"
given=$folder
while :; do
    case $given in
        */.) given=${given%.} ;;
        */) given=${given%/} ;;
        *) break ;;
    esac
done
folder=$(cd -- "$folder" && pwd -P) || refuse "no folder"
[ "$folder" != / ] || refuse "a root"
[ "${given##*/}" = "${folder##*/}" ] && [ ! -L "$given" ] || refuse "a link"

case $folder/ in
    /bin/* | /boot/* | /dev/* | /etc/* | /lib/* | /lib32/* | /lib64/* | /proc/* | /run/* | /sbin/* | /sys/* | /usr/*)
        refuse "a folder of the system" ;;
esac
for place in /home /media /mnt /opt /srv /tmp /var/tmp "${TMPDIR:-/tmp}"; do
    ! contains "$place" || refuse "a folder of the system"
done
home=$(cd -- "${HOME:-/}" 2>/dev/null && pwd -P)
for place in . .config .local/share Desktop Documents Downloads Music Pictures Videos; do
    ! contains "$home/$place" || refuse "a home folder"
done
[ "${folder%/*}" != "${home%/*}" ] || refuse "a home folder"

[ -n "$identity" ] && [ -f "$folder/$mark/$identity" ] || refuse "not marked for this removal"
sleep "$delay"

# The claimed folder gets a name that nobody else uses. An installation takes the mark or waits for
# the end of the claim, and its new folder is another one than that which is deleted.
aside=$folder.$identity
claim=$mark/$identity.claimed
tries=0
until [ -f "$aside/$claim" ]; do
    [ -f "$folder/$claim" ] || mv -- "$folder/$mark/$identity" "$folder/$claim" 2>/dev/null
    [ -f "$folder/$claim" ] || refuse "not marked for this removal"
    [ -e "$aside" ] || mv -T -- "$folder" "$aside" 2>/dev/null
    if [ ! -f "$aside/$claim" ]; then
        mv -- "$folder/$claim" "$folder/$mark/$identity"
        tries=$((tries + 1))
        [ "$tries" -lt "$mostTries" ] || refuse "in use"
        echo "in use: \"$folder\"" >&2
        sleep 1
    fi
done

until rm -rf -- "$aside" || [ "$tries" -ge "$mostTries" ]; do
    tries=$((tries + 1))
    sleep 1
done
end 0
