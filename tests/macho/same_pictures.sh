#!/bin/sh
# same_pictures.sh PLAY DESKTOP PHONE SCENARIO FOLDER plays a scenario with the launcher DESKTOP and with
# the launcher PHONE. Both must succeed and take identical pictures.
set -eu

play=$1
desktop=$2
phone=$3
scenario=$4
folder=$5

"$play" "$desktop" "$scenario" "$folder.desktop"
"$play" "$phone" "$scenario" "$folder"
diff -r "$folder.desktop/screenshots" "$folder/screenshots"
ls "$folder"/screenshots/*.png
