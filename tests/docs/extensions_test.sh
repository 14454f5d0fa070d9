#!/bin/sh
# extensions_test.sh SOURCE SONAVUE DATA: docs/extensions.md shows the examples as they are, and its commands
# build and run them in a copy of the project without a build. DATA has the demo music.
set -eu

source=$1
sonavue=$2
page=$source/docs/extensions.md
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# Each file of an example is one of the page's blocks, to the letter. Scripts are only named.
for file in "$source"/docs/examples/*/*; do
  case $file in *.scn) continue ;; esac
  awk -v file="$file" '
    BEGIN { while ((getline line < file) > 0) text = text line "\n" }
    /^```/ { if (inside && block == text) found = 1; inside = !inside; block = ""; next }
    inside { block = block $0 "\n" }
    END { exit !found }' "$page" || fail "the page does not show ${file#"$source"/} as it is"
done

cd "$work"
for part in objc platform docs; do ln -s "$source/$part" "$part"; done
# Stands for `./run`, which would build the phone that is tested.
printf '#!/bin/sh\nexec "%s" --screenshots "%s" "$@"\n' "$sonavue" "$work" >run
chmod +x run
export XDG_DATA_HOME="$3" XDG_RUNTIME_DIR="$work"
awk '/^```sh$/ { inside = 1; next } /^```/ { inside = 0 } inside' "$page" >commands
for example in "$source"/docs/examples/*/*.cpp "$source"/docs/examples/*/*.m; do
  grep -q " ${example#"$source"/} " commands || fail "the page does not build ${example#"$source"/}"
done
[ "$(grep -c '^\./run .*--script' commands)" -eq "$(grep -c '^g[c+][c+] ' commands)" ] || fail "the page does not run what it builds"
sh -ex commands || fail "a command of the page"
