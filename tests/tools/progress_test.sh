#!/bin/sh
# progress_test.sh PROGRESS FOLDER: what a terminal is told of a build, and what is in its log.
set -eu

progress=$1
folder=$2
mkdir -p "$folder"
log=$folder/build.log

# shows TEXT LINE…: the last that is shown of a build with those lines, of 10 compilations in all.
shows() {
  text=$1
  shift
  printf '%s\n' "$@" | "$progress" "$log" 10 2>"$folder/shown"
  shown=$(tr '\r' '\n' <"$folder/shown" | sed "s/$(printf '\033')\\[K//; /^\$/d" | tail -n 1)
  if [ "$shown" != "$text" ]; then
    echo "'$shown' is shown, not '$text'" >&2
    exit 1
  fi
  [ "$(cat "$log")" = "$(printf '%s\n' "$@")" ] || {
    echo "the log differs from what the build printed" >&2
    exit 1
  }
}

shows '[3/12]' '[1/12 5.1] Building CXX object a.o' '[2/12 9.0] Building CXX object b.o' \
  '[3/12 9.9] Building C object c.o'
# Four of ten compilations took 240 s; whatever else is done counts for nothing.
shows '[6/14] about 6 minutes left' '[1/14 60.2] Building CXX object a.o' \
  '[2/14 120.3] Building CXX object b.o' '[3/14 180.9] Building CXX object c.o' \
  '[4/14 239.1] Building CXX object d.o' '[5/14 239.2] Copying x.png' '[6/14 240.8] Copying y.png'
# Where less is left than all there is to compile, no more is expected.
shows '[4/5] about a minute left' '[1/5 60.2] Building CXX object a.o' \
  '[2/5 120.3] Building CXX object b.o' 'warning: [not/a step]' \
  '[3/5 180.9] Building CXX object c.o' '[4/5 239.1] Building CXX object d.o'
shows '[5/5] less than a minute left' '[1/5 1.0] Building CXX object a.o' \
  '[2/5 2.0] Building CXX object b.o' '[3/5 3.0] Building CXX object c.o' \
  '[4/5 4.0] Building CXX object d.o' '[5/5 4.5] Linking CXX executable e'
