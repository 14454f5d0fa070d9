#!/bin/sh
# Lists and plays real music: the songs of a Debian package. If the package is not installed, it is
# downloaded once into the folder in the second argument. Exits with status 77, which means skipped,
# when it is not available.
set -eu

program=$1
kept=$2
package=hyperrogue-music
music=/usr/share/hyperrogue/music

if [ ! -d "$music" ]; then
  music=$kept/files/usr/share/hyperrogue/music
  if [ ! -d "$music" ]; then
    mkdir -p "$kept"
    cd "$kept"
    if ! timeout 120 apt-get download "$package" >download.log 2>&1; then
      echo "skipped: the package $package is not installed and cannot be fetched" >&2
      exit 77
    fi
    dpkg-deb -x "$package"_*.deb files
    rm -f "$package"_*.deb
  fi
fi
REAL_MUSIC=$music exec "$program"
