#!/bin/sh
# install_phone.sh BUILD EXTENSION LIBRARY PHONE makes a copy of the built phone in which LIBRARY, in
# the phone's own file format, replaces the desktop's library. The test's EXTENSION loads it.
set -eu

build=$1
extension=$2
library=$3
phone=$4

[ -f "$library" ] || { echo "$library does not exist: tools/build simulator makes it" >&2; exit 1; }

rm -rf "$phone"
mkdir -p "$phone/bin"
# The launcher searches for everything in its own folder, so it must be a separate file and not a link.
cp -p "$build/bin/sonavue" "$phone/bin/sonavue"
for part in SpringBoard Music Preferences device; do
  ln -s "$build/bin/$part" "$phone/bin/$part"
done
ln -s "$build/applications" "$build/host-pictures" "$phone"
cp -a "$build/staging" "$phone/staging"

libraries=$phone/staging/Library/MobileSubstrate/DynamicLibraries
rm "$libraries/Sonavue2.so"
cp -p "$extension" "$libraries/Sonavue2.so"
cp -p "$library" "$libraries/Sonavue2.dylib"
