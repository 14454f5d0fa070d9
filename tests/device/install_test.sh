#!/bin/bash
# Installs the phone's package with the real package manager into an empty root, puts it in once more
# and takes it away again: `install_test.sh SOURCE BUILD`. Whoever runs this need not be root.
set -eu

. "$(dirname "$0")/test_folder.sh"
"$source/device/package/make" "$(basename "$build")" "$work"
package=$(echo "$work"/*.deb)
name=org.plumvane.sonavue2

root=$work/root
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"

# Programs that would end something only leave a note here.
mkdir "$work/programs"
for program in killall pkill launchctl sbreload reboot; do
  printf '#!/bin/sh\necho "%s $*" >>"%s/ended"\n' "$program" "$work" >"$work/programs/$program"
  chmod +x "$work/programs/$program"
done

# manager WISHES ARGUMENT…: the package manager at work in the root, with the wishes' descriptor open.
manager() {
  CYDIA=$1 PATH=$work/programs:$PATH:/usr/sbin:/sbin dpkg --root="$root" --log=/dev/null \
    --force-not-root --force-bad-path --force-architecture --force-depends \
    --force-script-chrootless "${@:2}" 7>>"$work/wishes" >>"$work/said" 2>&1 ||
    fail "the package manager ends with $? after: ${*:2}: $(cat "$work/said")"
}

# wished COUNT: so many restarts were asked for since this was last looked at, and nothing else.
wished() {
  expected=$(for ((i = 0; i < $1; i++)); do echo finish:restart; done)
  [ "$(cat "$work/wishes")" = "$expected" ] || fail "wishes in line ${BASH_LINENO[0]}: $(cat "$work/wishes")"
  : >"$work/wishes"
}

files() {
  (cd "$root" && find . -path ./var/lib/dpkg -prune -o "$@" -print | sort)
}

# What others have put there, and what the user sets.
for other in MobileSubstrate/DynamicLibraries/Other.dylib PreferenceLoader/Preferences/Other.plist; do
  mkdir -p "$root/Library/$(dirname "$other")"
  echo other >"$root/Library/$other"
done
before=$(files)

manager "7 1" --install "$package"
wished 1
dpkg-deb --contents "$package" | sed -n 's/^-.* \(\.\/.*\)$/\1/p' | sort >"$work/packaged"
files -type f | grep -v /Other | cmp - "$work/packaged" || fail "other files than the package's"
[ -x "$root/Library/MobileSubstrate/DynamicLibraries/Sonavue2.dylib" ] || fail "no library"
status=$(sed -n '/^Status/p' "$root/var/lib/dpkg/status")
[ "$status" = "Status: install ok installed" ] || fail "$status"

preferences=var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist
mkdir -p "$root/$(dirname "$preferences")"
echo set >"$root/$preferences"

# The scripts of the one that goes and of the one that comes ask both; the manager restarts once.
manager "7 1" --install "$package"
wished 2
[ "$(cat "$root/$preferences")" = set ] || fail "the user's preferences are not as they were"

# A manager that opens no descriptor, or says something else, is asked for nothing.
for wishes in "" "x 1" "7x"; do
  manager "$wishes" --install "$package"
  wished 0
done

manager "7 1" --remove "$name"
wished 1
after=$(files ! -path './var*')
[ "$after" = "$(echo "$before" | grep -v '^\./var')" ] || fail "removed, it leaves: $after"
[ "$(files -path './var/*' -type f)" = "./$preferences" ] || fail "the preferences are gone"

manager "7 1" --purge "$name"
[ "$(files -path './var/*' -type f)" = "./$preferences" ] || fail "the preferences are purged"
grep -q "^Package: $name" "$root/var/lib/dpkg/status" && fail "the manager still knows it"

[ ! -e "$work/ended" ] || fail "processes were ended: $(cat "$work/ended")"

exit $failed
