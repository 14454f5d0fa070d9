#!/bin/sh
# sources_test.sh SOURCE: no include goes round the include roots, and no CMake file compiles what lies
# outside its folder or asks what exists.
set -eu

cd "$1"
homes="objc platform ui settings tweak host device tests bench fuzz"
failed=0

# shellcheck disable=SC2086
if grep -rn '#include *"\.\./' $homes; then
  echo "FAILED: these includes climb" >&2
  failed=1
fi
# shellcheck disable=SC2086
if grep -rnE '\.\./[^ )]*\.(cpp|c)\b|\((NOT )?(EXISTS|TARGET) ' --include=CMakeLists.txt $homes; then
  echo "FAILED: these targets depend on what lies elsewhere" >&2
  failed=1
fi
exit "$failed"
