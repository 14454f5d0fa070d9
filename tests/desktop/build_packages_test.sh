#!/bin/sh
# The package is built with what `./run` installs: build_packages_test.sh SOURCES
set -eu

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# A compiler cache is no part of a build, and the font is needed when the phone runs.
cat "$1/tools/packages/build.txt" "$1/tools/packages/run.txt" | sed 's/ *#.*//' |
  grep -vxE 'ccache|fonts-inter|' | sort -u >"$work/listed"
sed -n '/^Build-Depends:/,/^$/p' "$1/debian/control" | sed 's/^Build-Depends://; s/([^)]*)//; s/[, ]//g' |
  grep -vxE 'debhelper-compat|' | sort -u >"$work/named"
[ "$(wc -l <"$work/listed")" -gt 10 ] || { echo "The lists of packages are empty." >&2; exit 1; }
diff "$work/listed" "$work/named" || {
  echo "tools/packages and the Build-Depends of debian/control differ." >&2
  exit 1
}
