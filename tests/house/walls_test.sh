#!/bin/sh
# walls_test.sh SOURCE BUILD COMPILER: no two modules can include each other. Each is tested with the
# flags of its own sources, so the compiler itself rejects an include of a higher module.
set -eu

source=$1
build=$2
compiler=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

fail() {
  echo "FAILED: $*" >&2
  failed=1
}

cd "$source"
homes="objc platform ui settings tweak host"

# The modules are the folders with an include root, each represented by one of its headers, and the
# files that have a root without the rest of their folder.
# shellcheck disable=SC2086
find $homes -name CMakeLists.txt -exec sed -n 's/^sonavue_module(\(.*\))$/\1/p' {} + | sort >"$work/roots"
grep -v ' FILES ' "$work/roots" >"$work/modules"
while read -r module; do
  header=$(find "$module" -name '*.h' | sort | head -n 1)
  [ -z "$header" ] || echo "$module $header"
done <"$work/modules" >"$work/headers"
sed -n 's/ FILES / /p' "$work/roots" |
  awk '{ for (i = 2; i <= NF; ++i) print $1 "/" $i, $1 "/" $i }' >>"$work/headers"
sed -n 's/ FILES .*//p' "$work/roots" >"$work/shared"

# Every folder with sources belongs to one module, and no module is inside another. A folder whose
# files have a root by themselves belongs to none.
# shellcheck disable=SC2086
find $homes \( -name '*.h' -o -name '*.cpp' \) -exec dirname {} + | sort -u |
  grep -vxFf "$work/shared" >"$work/folders"
awk 'NR == FNR { modules[$1]; next }
     { found = 0
       for (module in modules) if (index($1 "/", module "/") == 1) ++found
       if (found != 1) print $1 " belongs to " found " modules" }' "$work/modules" "$work/folders" >"$work/strays"
[ ! -s "$work/strays" ] || fail "$(head -n 20 "$work/strays")"

# The sets of flags with which each module's sources are compiled: a number, the module, the flags.
awk -v root="$source/" '
  NR == FNR { modules[$1]; next }
  $1 == "\"command\":" {
    flags = ""
    for (i = 3; i <= NF; ++i) {
      if ($i == "-isystem") flags = flags " " $i " " $(i + 1)
      if ($i == "-o") made = $(i + 1)
      if ($i ~ /^(-I|-std=)/ || ($i ~ /^-D/ && $i !~ /["\\]/)) flags = flags " " $i
    }
  }
  $1 == "\"file\":" {
    split($2, quoted, "\"")
    file = substr(quoted[2], length(root) + 1)
    for (module in modules)
      if (index(file, module "/") == 1 && index(made, module "/") == 1 &&
          !((module, flags) in seen)) {
        seen[module, flags]
        print module flags
      }
  }' "$work/modules" "$build/compile_commands.json" | sort | awk '{ print NR, $0 }' >"$work/flags"

# The headers that each set can include: "3 host/uikit/view sees host/uikit/touch
# host/uikit/touch/event.h".
while read -r module header; do
  printf '#if __has_include("%s")\nsees %s %s\n#endif\n' "$header" "$module" "$header"
done <"$work/headers" >"$work/probe.cpp"
while read -r number module flags; do
  # shellcheck disable=SC2086
  "$compiler" $flags -E -P "$work/probe.cpp" | sed "s|^|$number $module |"
done <"$work/flags" >"$work/sights"

awk '{ sees[$2, $4] }
     $2 ~ /^host/ && $4 ~ /^(ui|settings|tweak)/ || $2 !~ /^host/ && $4 ~ /^host/ { print $2 " sees " $4 }
     END { for (pair in sees) { split(pair, two, SUBSEP)
             if (two[1] < two[2] && (two[2], two[1]) in sees)
               print two[1] " and " two[2] " see each other" } }' "$work/sights" | sort -u >"$work/climbs"
[ ! -s "$work/climbs" ] || fail "$(head -n 20 "$work/climbs")"

compiles() {
  echo "#include \"$2\"" >"$work/include.cpp"
  # shellcheck disable=SC2086
  "$compiler" $1 -E "$work/include.cpp" -o /dev/null 2>"$work/errors"
}

# Checks that the compiler agrees: for one pair of neighbours of each set, the downward include
# compiles and the upward one does not.
tried=0
while read -r number module flags; do
  neighbour=$(awk -v number="$number" '$1 == number && $4 != $2 && $4 ~ /^(host|tweak)/ { print $4, $5 }' \
                  "$work/sights" | sort -R --random-source="$work/headers" | head -n 1)
  [ -n "$neighbour" ] || continue
  below=${neighbour% *}
  header_below=${neighbour#* }
  compiles "$flags" "$header_below" || fail "$module cannot include $header_below: $(cat "$work/errors")"
  header=$(sed -n "s|^$module ||p" "$work/headers")
  flags_below=$(sed -n "s|^[0-9]* $below ||p" "$work/flags" | head -n 1)
  if [ -z "$header" ] || [ -z "$flags_below" ]; then continue; fi
  if compiles "$flags_below" "$header"; then
    fail "$below can include $header"
  elif ! grep -q 'No such file' "$work/errors"; then
    fail "$below cannot include $header for another reason: $(cat "$work/errors")"
  fi
  tried=$((tried + 1))
done <"$work/flags"
[ "$tried" -ge 20 ] || fail "only $tried pairs of neighbours were tried"

exit "$failed"
