#!/bin/sh
# Every option that `sonavue --help` lists is in the manual page and in both completions, and nothing
# else is: options_test.sh SONAVUE DESKTOP_FOLDER
set -eu

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
options() {
  grep -oE '(^|[^-A-Za-z0-9])--[a-z]+(-[a-z]+)*' | grep -oE -- '--[a-z-]+' | sort -u
}
"$1" --help | sed -n '/^Options:/,/^$/p' | sed -n 's/^  \(-[^ ]*\).*/ \1/p' | tr ',' ' ' | options >"$work/help"
[ "$(wc -l <"$work/help")" -gt 5 ] || { echo "The help lists no options." >&2; exit 1; }
sed 's/\\-/-/g' "$2/sonavue.1" | sed -n '/^\.SH OPTIONS/,/^\.SH EXIT/p' | grep -A1 '^\.TP' | options >"$work/manual"
options <"$2/completions/_sonavue" >"$work/zsh"
sed -n '/-\*)/,/;;/p' "$2/completions/sonavue.bash" | options >"$work/bash"
status=0
for text in manual zsh bash; do
  diff "$work/help" "$work/$text" || { echo "The options of --help and of $text differ." >&2; status=1; }
done
exit $status
