#!/bin/sh
# reference_test.sh SOURCE: the reference of the console's language has every command and every error.
set -eu

cd "$1"
document=docs/scenarios.md
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

grep -ohE '\{"[a-z-]+", &' host/console/*_commands.cpp | grep -oE '[a-z-]+' | sort -u >"$work/commands"
while read -r command; do
  grep -qE "^\| \`$command[ \`]" $document || echo "$document lacks the command $command"
done <"$work/commands" >"$work/missing"

# What makes a problem or a refusal. The fixed words of an error are those around its first value.
made='Problem( k[A-Za-z]+)?\{|problem\(|Kind::Error,|number\(|return|done_unless\([^"]{1,60},'
find host/console host/comparison host/home_screen host/applications/program \
  \( -path 'host/console/*.cpp' -o -name '*hands.cpp' -o -name console_phone.cpp -o -name own_phone.h \
  -o -name difference.cpp \) ! -name print.cpp ! -name description.cpp ! -name result.cpp -exec cat {} + |
  tr '\n' ' ' | grep -oE "[^\"a-z]($made) *(fmt::format\\( *)?\"[^\"]{12,}\"" |
  sed -E 's/^[^"]*"//; s/"$//; /^the end of the line$/d' | sort -u >"$work/errors"
while read -r error; do
  words=$(echo "$error" | sed -E 's/\{\{/{/g; s/\}\}/}/g; s/^\{\} *//; s/ *\{\}.*//')
  grep -qF -- "$words" $document || echo "$document lacks the error: $error"
done <"$work/errors" >>"$work/missing"

[ "$(wc -l <"$work/commands")" -gt 20 ] || echo "too few commands in the sources" >>"$work/missing"
[ "$(wc -l <"$work/errors")" -gt 50 ] || echo "too few errors in the sources" >>"$work/missing"
cat "$work/missing" >&2
[ ! -s "$work/missing" ]
