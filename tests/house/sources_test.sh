#!/bin/sh
# sources_test.sh SOURCE: no include bypasses the include roots, and no CMake file compiles sources
# outside its folder or checks whether a file or target exists.
set -eu

cd "$1"
homes="objc platform ui settings tweak host device tests bench fuzz"
failed=0

# shellcheck disable=SC2086
if grep -rn '#include *"\.\./' $homes; then
  echo "FAILED: these includes use ../" >&2
  failed=1
fi
# shellcheck disable=SC2086
if grep -rnE '\.\./[^ )]*\.(cpp|c)\b|\((NOT )?(EXISTS|TARGET) ' --include=CMakeLists.txt $homes; then
  echo "FAILED: these targets depend on files or targets elsewhere" >&2
  failed=1
fi
exit "$failed"
