#!/bin/sh
# install_package.sh PACKAGE DESKTOP BUILD EXTENSION PHONE EMULATOR… makes a phone from the programs in
# BUILD, which are for another processor, and the contents of PACKAGE; EXTENSION loads the package's
# library. The device's files come from DESKTOP, the same phone for this machine's processor.
set -eu

package=$1
desktop=$2
build=$3
extension=$4
phone=$5
shift 5

emulator=$*
[ -f "$package" ] || { echo "there is no package $package: ./package makes it" >&2; exit 1; }

rm -rf "$phone"
mkdir -p "$phone/bin/device" "$phone/staging"
# The launcher searches for everything in its own folder, so it must be a separate file and not a link.
cp -p "$build/bin/sonavue" "$phone/bin/sonavue"

# start NAME PROGRAM makes a script NAME that runs the program with the emulator.
start() {
  printf '#!/bin/sh\nexec %s "%s" "$@"\n' "$emulator" "$2" >"$phone/$1"
  chmod +x "$phone/$1"
}
start sonavue "$phone/bin/sonavue"
for program in SpringBoard Music Preferences device/killall; do
  start "bin/$program" "$build/bin/$program"
done
ln -s "$desktop/applications" "$desktop/host-pictures" "$phone"
cp -a "$desktop/staging/System" "$phone/staging"

dpkg-deb --extract "$package" "$phone/staging"
cp -p "$extension" "$phone/staging/Library/MobileSubstrate/DynamicLibraries/Sonavue2.so"
