#!/bin/sh
# Removes one folder with everything in it after a delay, and then itself.
# Arguments: the delay in seconds; the folder; whether it is the only entry of its parent (not used:
# nothing but the folder itself is removed).
delay=$1
folder=$2

refuse()
{
    echo "not removed: '$folder' $1" >&2
    rm -f -- "$0"
    exit 1
}

case $folder in
    "") refuse "is no folder" ;;
    /*) ;;
    *) refuse "is not an absolute path" ;;
esac
[ -d "$folder" ] || refuse "is no folder"
[ ! -L "${folder%/}" ] || refuse "is a link"

real=$(cd -- "$folder" && pwd -P) || refuse "cannot be entered"
home=$(cd -- "${HOME:-/}" 2>/dev/null && pwd -P)
case $real in
    / | /bin | /boot | /dev | /etc | /home | /lib | /lib64 | /media | /mnt | /opt | /proc | /root | /run | /sbin | /srv | /sys | /tmp | /usr | /usr/* | /var | /etc/* | /boot/* | /dev/* | /proc/* | /sys/*)
        refuse "belongs to the system" ;;
esac
[ "$real" != "$home" ] || refuse "is a home folder"
[ "$(dirname "$real")" != /home ] || refuse "is a home folder"

sleep "$delay"
rm -rf -- "$real"
rm -f -- "$0"
