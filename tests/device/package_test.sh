#!/bin/sh
# Makes the phone's package twice, compares both, and checks them. Then breaks the package in every
# way that a rule forbids and expects the checker to report it: `package_test.sh SOURCE BUILD`.
set -eu

. "$(dirname "$0")/test_folder.sh"
preset=$(basename "$build")
"$source/device/package/make" "$preset" "$work/first"
"$source/device/package/make" "$preset" "$work/second"
package=$(echo "$work"/first/*.deb)
cmp "$package" "$work/second/$(basename "$package")" || fail "two builds of the package differ"
"$build/bin/sonavue_check" "$source" "$package" || fail "the checker rejects the package"

mkdir "$work/whole"
dpkg-deb --raw-extract "$package" "$work/whole"

# Compute the page hashes again, with programs that are independent of this project.
library=Library/MobileSubstrate/DynamicLibraries/Sonavue2.dylib
dd if="$work/whole/$library" of="$work/page" bs=4096 skip=3 count=1 2>/dev/null
for program in sha1sum sha256sum; do
  hash=$("$program" "$work/page" | cut -d' ' -f1)
  od -An -v -tx1 "$work/whole/$library" | tr -d ' \n' | grep -q "$hash" ||
    fail "$program of a page is not in the signature"
  echo "$hash" >"$work/$program"
done

# broken EXPECTED COMMAND… runs the command in a copy of the package's tree. The checker must then end
# with status 1 and print EXPECTED.
broken() {
  expected=$1
  shift
  rm -rf "$work/tree" "$work/broken.deb"
  cp -a "$work/whole" "$work/tree"
  (cd "$work/tree" && "$@")
  # shellcheck disable=SC2086
  dpkg-deb ${packing:--Zgzip} -z1 ${owners---root-owner-group} --nocheck --build "$work/tree" \
    "$work/broken.deb" >/dev/null 2>&1 || fail "cannot build a package after: $*"
  result=0
  "$build/bin/sonavue_check" "${against:-$source}" "$work/broken.deb" >"$work/said" 2>&1 || result=$?
  [ "$result" -eq 1 ] || fail "the checker ends with $result after: $*"
  grep -qF -- "$expected" "$work/said" || fail "the checker does not print '$expected' after: $*"
}

# patch FILE OLD NEW replaces bytes with the same number of others.
patch() {
  LC_ALL=C sed -i "s|$2|$3|g" "$1"
}

bundle=Library/PreferenceBundles/SonavueSettings.bundle
filter=Library/MobileSubstrate/DynamicLibraries/Sonavue2.plist
broken "Play@2x.png: is missing" rm "Library/Application Support/Sonavue/Play@2x.png"
broken "en.plist: is missing" rm "Library/Application Support/Sonavue/Languages/en.plist"
broken "Info.plist: is missing" rm "$bundle/Info.plist"
broken "stray: does not belong" sh -c 'echo stray >Library/stray'
broken "Info.plist: mode 600" chmod 600 "$bundle/Info.plist"
broken "Info.plist: is empty" truncate -s 0 "$bundle/Info.plist"
broken "is neither a file nor a folder" ln -sf en.plist "$bundle/Info.plist"
for needed in mobilesubstrate preferenceloader libactivator; do
  broken "control: lacks \`Depends" sed -i "/^Depends/s/$needed/other/" DEBIAN/control
done
broken "control: lacks \`arm64" sed -i 's/arm64/every/' DEBIAN/control
for end in '>= 8.0' '<< 9.0'; do
  broken "promises no range of systems" sed -i "s/firmware ($end)/other/" DEBIAN/control
done
broken "promises the systems from 7.0" sed -i 's/firmware (>= 8.0)/firmware (>= 7.0)/' DEBIAN/control
broken "up to and without 8.4, the facts prove" sed -i 's/(<< 9.0)/(<< 8.4)/' DEBIAN/control
broken "up to and without 10.0, the facts prove" sed -i 's/(<< 9.0)/(<< 10.0)/' DEBIAN/control
broken "-[SBReachabilityManager _keepAliveTimerFired:] is missing" \
  sed -i 's/(<< 9.0)/(<< 10.0)/' DEBIAN/control
broken "docs/phone.md: its table has no row" sed -i 's/(<< 9.0)/(<< 8.4)/' DEBIAN/control
for field in Package Name Architecture; do
  broken "control: lacks \`$field: " sed -i "s/^$field: .*/$field: org.example.other/" DEBIAN/control
done
for field in Version Maintainer Section Description Installed-Size; do
  broken "lacks the field $field" perl -0777 -pi -e "s/^$field:.*\\n( .*\\n)*//m" DEBIAN/control
done
broken "only some of Depiction, Homepage and Icon" \
  sed -i '$a Homepage: https://plumvane.example.org/' DEBIAN/control
broken "Icon is not a valid address" sed -i '$a Icon: file:///Library/Icon.png' DEBIAN/control
broken "unexpected field \`Conflicts\`" sed -i '$a Conflicts: others' DEBIAN/control
broken "does not name com.apple.springboard" patch "$filter" com.apple.springboard com.apple.springgoard
broken "does not name com.apple.Preferences" patch "$filter" com.apple.Preferences com.apple.preferences
broken "mode 600 instead of 755" chmod 600 "$library"
broken "Library: mode 700 instead of 755" chmod 700 Library
broken "postinst: does not request a restart" sed -i /finish/d DEBIAN/postinst
broken "postrm: does not request a restart" sed -i /finish/d DEBIAN/postrm
broken "postinst: does not request a restart" rm DEBIAN/postinst
for script in postinst postrm; do
  broken "$script: ends processes" sed -i 's/^exit/killall SpringBoard; exit/' DEBIAN/$script
done
broken "prerm: does not belong" cp DEBIAN/postrm DEBIAN/prerm
packing=-Zxz broken "compressed with gzip" true
# A user other than root owns the files anyway.
owned_by_others() { [ "$(id -u)" -ne 0 ] || chown -R 1:1 Library; }
owners='' broken "root:root" owned_by_others

broken "has the install name" patch "$library" DynamicLibraries/Sonavue2 DynamicLibraries/Sonavue3
broken "hashes do not match" patch "$library" playNextSong playLastSong
broken "the facts have no selector presentBanned:" patch "$library" presentBanner: presentBanned:
broken "has no signature" cp "$source/build/device/Sonavue2.dylib" "$library"
broken "a different identifier" "$build/bin/sonavue_sign" org.example.other \
  "$source/build/device/Sonavue2.dylib" "$library"
broken "does not load the library" patch "$bundle/SonavueSettings" Sonavue2.dylib Sonavue9.dylib
broken "library: is not a dynamic library" cp "$bundle/SonavueSettings" "$library"
broken "settings bundle: is not a bundle" cp "$library" "$bundle/SonavueSettings"
for cache in 4objc15cached_selector 4objc14cached_message 4objc12cached_class 4objc9own_class \
  4objc13asked_message 4objc16replaced_message; do
  broken "has no symbol __ZN$cache" patch "$library" $cache "${cache%?}X"
done
broken "library: sends no messages" patch "$library" _objc_msgSend _objc_msgSenD
broken "library: has no code" patch "$library" __text __texT
broken "no exception can pass through the code" patch "$library" __unwind_info __unwind_infO
broken "not a 64-bit library" cp "$bundle/Info.plist" "$library"

# as_numbers FILE OLD NEW replaces a sequence of 32-bit numbers.
as_numbers() {
  perl -0777 -pi -e "BEGIN { (\$old, \$new) = (pack(q(V*), $2), pack(q(V*), $3)) }
    s/\Q\$old\E/\$new/g" "$1"
}

# turned HASH reverses the bytes of a page's hash in the signature.
turned() {
  perl -0777 -pi -e "BEGIN { \$hash = pack(q(H*), q($(cat "$1"))) } s/\Q\$hash\E/reverse \$hash/e" \
    "$library"
}
broken "signature's SHA-1 hashes do not match" turned "$work/sha1sum"
broken "signature's SHA-256 hashes do not match" turned "$work/sha256sum"
broken "does not have 8.0 as its minimum" as_numbers "$library" "0x25, 16, 0x80000" "0x25, 16, 0x90000"
broken "a build version instead" as_numbers "$library" "0x25, 16, 0x80000" "0x32, 16, 0x80000"
broken "has chained fixups" as_numbers "$library" "0x80000022, 48" "0x80000034, 48"
broken "no classic dyld" as_numbers "$bundle/SonavueSettings" "0x80000022, 48" "0x80000021, 48"
broken "an exports table" as_numbers "$library" "0x26, 16" "0x80000033, 16"
broken "no identifier of its build" as_numbers "$library" "0x1b, 24" "0x2c, 24"
broken "library: does not list its functions" as_numbers "$library" "0x26, 16" "0x29, 16"
broken "a load command for encryption" as_numbers "$library" "0x1b, 24" "0x2c, 24"
# Clear the unwind encoding of one kind of frame, so that its callers cannot be found.
broken "library: no exception can pass through the code" as_numbers "$library" 0x0400001f 0
broken "library: its unwind tables are damaged" as_numbers "$library" "1, 28" "2, 28"
# Turn every no-op into a store to the stack slot for arguments beyond the registers.
broken "sends a message with stack arguments" as_numbers "$library" 0xd503201f 0xf90003ff
initialisers=$(llvm-objdump-16 --macho --section=__DATA,__mod_init_func "$work/whole/$library" |
  sed -n 's/^0x[0-9a-f]* \(0x[0-9a-f]*\).*/\1/p')
first=$(echo "$initialisers" | head -n 1)
second=$(echo "$initialisers" | tail -n 1)
broken "out of order" as_numbers "$library" "$first, 0, $second, 0" "$second, 0, $first, 0"
broken "an initialiser is not ours" as_numbers "$library" "$first, 0, $second, 0" \
  "$first + 4, 0, $second, 0"
broken "initialisers other than" patch "$library" __mod_init_func __mod_term_func

# Rules that compare with the source are broken in a copy of the files that they read.
mkdir -p "$work/source/device/check" "$work/source/docs"
cp -a "$source/resources" "$work/source"
cp "$source/docs/phone.md" "$work/source/docs"
cp -a "$source/device/stubs" "$source/device/facts" "$work/source/device"
cp "$source/device/check/own_names.txt" "$work/source/device/check"
against=$work/source
sed -i /_uname$/d "$against/device/stubs/libSystem.tbd"
broken "needs _uname, which is in no stub" true
sed -i 's/_system$/_uname\n      - _system\n      - _nobody_needs_this/' \
  "$against/device/stubs/libSystem.tbd"
broken "_nobody_needs_this is not used" true
sed -i /^Linker$/d "$against/device/check/own_names.txt"
broken "have no class Linker" true
sed -i /^tweet$/d "$against/device/check/own_names.txt"
broken "have no selector tweet" true
sed -i 's/^| phones | arm64/| phones | every/' "$against/docs/phone.md"
broken "docs/phone.md: its table has no row \`| phones | arm64" true

# contradicted EXPECTED FILE CHANGE changes the facts for one run of the checker.
contradicted() {
  cp "$against/device/facts/$2" "$work/facts"
  sed -i "$3" "$against/device/facts/$2"
  cmp -s "$against/device/facts/$2" "$work/facts" && fail "nothing changed by $3"
  broken "$1" true
  cp "$work/facts" "$against/device/facts/$2"
}
contradicted "UILabel is in /elsewhere, which is neither linked nor loaded" UIKit.facts \
  's|^image .*|image /elsewhere|'
contradicted "-[SBIcon application] is missing on a system, and not listed as guarded" \
  SpringBoard.facts 's/-application @@: .*/-application @@: ?yny?/'
contradicted "-[UILabel setText:] is bound as v@:@ but defined as v@:q" UIKit.facts \
  '/^class UILabel /,/^class/s/-setText: v@:@/-setText: v@:q/'
contradicted "_handleDisplayTurnedOff] is bound as v@: but defined as v@:I" SpringBoard.facts \
  's/-_handleDisplayTurnedOff v@:/-_handleDisplayTurnedOff v@:I/'
contradicted "-[SBUIController clickedMenuButton] is a message that no system has" \
  SpringBoard.facts 's/-clickedMenuButton /-clickedMenuButtons /'
contradicted "have no class UILabel" UIKit.facts 's/^class UILabel /class UIOther /'
contradicted "-[NSArray count] is in no dump, and not listed as uncovered" uncovered \
  '/^-\[NSArray count\]/d'
contradicted "uncovered: -[UILabel setText:] is not used, or the facts cover it" uncovered \
  '$a -[UILabel setText:]'
contradicted "uncovered: -[NSArray reverse] is not used" uncovered '$a -[NSArray reverse]'
contradicted "homescreenIconViewMap] is in no dump, and not listed as uncovered" guarded \
  '/^-/d'
contradicted "guarded: -[UILabel setText:] is not used, or every system has it" guarded \
  '$a -[UILabel setText:]: always'
contradicted "guarded: -[UILabel setText:] is sent unguarded" guarded \
  '$a -[UILabel setText:]: always'

# refused EXPECTED FILE CHANGE: the checker names the file of inconsistent facts and checks nothing.
refused() {
  cp "$against/device/facts/$2" "$work/facts"
  sed -i "$3" "$against/device/facts/$2"
  result=0
  "$build/bin/sonavue_check" "$against" "$package" >"$work/said" 2>&1 || result=$?
  [ "$result" -eq 2 ] && grep -q "facts/$2:[0-9]*: .*$1" "$work/said" ||
    fail "the checker ends with $result for facts changed by $3: $(cat "$work/said")"
  cp "$work/facts" "$against/device/facts/$2"
}
refused "it is truncated" UIKit.facts '$d'
refused "it is truncated" UIKit.facts '/-setText:/d'
refused "-setText: is listed twice" UIKit.facts 's/^  -setText: .*/&\n  -setText: v@:q y?yy?/'
refused "exists in 8.4, where its class does not" SpringBoard.facts \
  's/^class SBIcon NSObject .*/class SBIcon NSObject ?ynyy/'
refused "different systems than in the previous files" UIKit.facts 's/^systems 8.0 8.2/systems 8.0 8.3/'
refused "2 columns instead of 3" UIKit.facts 's/^  -setText: v@:@ /  -setText: v@:@/'
refused "is not a message" uncovered '$a setText:'
refused "gives no reason" guarded 's/: sent only.*//'

result=0
echo nothing >"$work/nothing.deb"
"$build/bin/sonavue_check" "$source" "$work/nothing.deb" 2>"$work/said" || result=$?
[ "$result" -eq 2 ] || fail "the checker ends with $result for a file that is not a package"

# The same package with a truncated archive of its files.
result=0
(cd "$work" && ar x "$package" && truncate -s -1000 data.tar.gz &&
  ar rc cut.deb debian-binary control.tar.gz data.tar.gz)
"$build/bin/sonavue_check" "$source" "$work/cut.deb" >"$work/said" 2>&1 || result=$?
[ "$result" -eq 2 ] && grep -q "its archive is damaged" "$work/said" ||
  fail "the checker ends with $result for a truncated package"

exit $failed
