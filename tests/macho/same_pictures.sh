#!/bin/sh
# same_pictures.sh PLAY DESKTOP PHONE SCENARIO FOLDER [COMPARE…] plays a scenario with the launcher
# DESKTOP and with the launcher PHONE: both have to end well and to photograph the same, to the last
# pixel, or as the command COMPARE finds when it is given the two folders.
set -eu

play=$1
desktop=$2
phone=$3
scenario=$4
folder=$5
shift 5
[ $# -gt 0 ] || set -- diff -r

"$play" "$desktop" "$scenario" "$folder.desktop"
"$play" "$phone" "$scenario" "$folder"
"$@" "$folder.desktop/screenshots" "$folder/screenshots"
ls "$folder"/screenshots/*.png
