#!/bin/sh
# install_phone.sh BUILD EXTENSION LIBRARY PHONE makes a copy of the built phone in which a library of
# the phone's own file format stands in for the desktop's, with the test's EXTENSION to load it.
set -eu

build=$1
extension=$2
library=$3
phone=$4

[ -f "$library" ] || { echo "$library is not there: tools/build simulator makes it" >&2; exit 1; }

rm -rf "$phone"
mkdir -p "$phone/bin"
# The launcher looks for everything where it lies itself, so that it has to be a file of its own.
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
