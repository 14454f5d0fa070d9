#!/bin/bash
# Installs the phone's package with the real package manager into an empty root, installs it again
# and removes it: `install_test.sh SOURCE BUILD`. It does not need to run as root.
set -eu

. "$(dirname "$0")/test_folder.sh"
"$source/device/package/make" "$(basename "$build")" "$work"
package=$(echo "$work"/*.deb)
name=org.plumvane.sonavue2

root=$work/root
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"

# Replacements for programs that would end processes; they only record their calls.
mkdir "$work/programs"
for program in killall pkill launchctl sbreload reboot; do
  printf '#!/bin/sh\necho "%s $*" >>"%s/ended"\n' "$program" "$work" >"$work/programs/$program"
  chmod +x "$work/programs/$program"
done

# manager WISHES ARGUMENT… runs the package manager in the root, with the descriptor for requests open.
manager() {
  CYDIA=$1 PATH=$work/programs:$PATH:/usr/sbin:/sbin dpkg --root="$root" --log=/dev/null \
    --force-not-root --force-bad-path --force-architecture --force-depends \
    --force-script-chrootless "${@:2}" 7>>"$work/wishes" >>"$work/said" 2>&1 ||
    fail "the package manager ends with $? after: ${*:2}: $(cat "$work/said")"
}

# wished COUNT checks that exactly COUNT restarts were requested since the last call, and nothing else.
wished() {
  expected=$(for ((i = 0; i < $1; i++)); do echo finish:restart; done)
  [ "$(cat "$work/wishes")" = "$expected" ] || fail "requests in line ${BASH_LINENO[0]}: $(cat "$work/wishes")"
  : >"$work/wishes"
}

files() {
  (cd "$root" && find . -path ./var/lib/dpkg -prune -o "$@" -print | sort)
}

# Files of other packages.
for other in MobileSubstrate/DynamicLibraries/Other.dylib PreferenceLoader/Preferences/Other.plist; do
  mkdir -p "$root/Library/$(dirname "$other")"
  echo other >"$root/Library/$other"
done
before=$(files)

manager "7 1" --install "$package"
wished 1
dpkg-deb --contents "$package" | sed -n 's/^-.* \(\.\/.*\)$/\1/p' | sort >"$work/packaged"
files -type f | grep -v /Other | cmp - "$work/packaged" || fail "installed files differ from the package's"
[ -x "$root/Library/MobileSubstrate/DynamicLibraries/Sonavue2.dylib" ] || fail "no library"
status=$(sed -n '/^Status/p' "$root/var/lib/dpkg/status")
[ "$status" = "Status: install ok installed" ] || fail "$status"

preferences=var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist
mkdir -p "$root/$(dirname "$preferences")"
echo set >"$root/$preferences"

# The scripts of the old and the new package both request a restart; the manager restarts once.
manager "7 1" --install "$package"
wished 2
[ "$(cat "$root/$preferences")" = set ] || fail "the user's preferences have changed"

# Nothing is requested from a manager that opens no descriptor or passes something else.
for wishes in "" "x 1" "7x"; do
  manager "$wishes" --install "$package"
  wished 0
done

manager "7 1" --remove "$name"
wished 1
after=$(files ! -path './var*')
[ "$after" = "$(echo "$before" | grep -v '^\./var')" ] || fail "files left after removal: $after"
[ "$(files -path './var/*' -type f)" = "./$preferences" ] || fail "removal deletes the preferences"

manager "7 1" --purge "$name"
[ "$(files -path './var/*' -type f)" = "./$preferences" ] || fail "purging deletes the preferences"
grep -q "^Package: $name" "$root/var/lib/dpkg/status" && fail "the package manager still lists it"

[ ! -e "$work/ended" ] || fail "processes were ended: $(cat "$work/ended")"

exit $failed
