#!/bin/bash
# Makes the folder that package managers read, lets one read it, and tries inputs that must be
# rejected: `repository_test.sh SOURCE BUILD`.
set -eu

. "$(dirname "$0")/test_folder.sh"
preset=$(basename "$build")
name=org.plumvane.sonavue2
address=https://plumvane.example.org/sonavue

# make FOLDER [ADDRESS]
make() {
  "$source/device/repository/make" "$preset" "$work/$1" "${@:2}"
}

make plain
make addressed "$address"
# Another user and working directory must not change the result.
(umask 077 && cd / && TZ=Asia/Tokyo LC_ALL=C.UTF-8 make again "$address")
diff -r "$work/addressed" "$work/again" || fail "two builds of the folder differ"
[ -z "$(find "$work/again" ! -perm -a+r -o -type d ! -perm -a+x)" ] || fail "some files are not readable by all"
grep -rlF -e "$source" -e "$work" "$work/again" && fail "a file contains a path of this machine"

cd "$work/addressed"
package=$(echo *.deb)
expected="CydiaIcon.png Packages Packages.bz2 Packages.gz Release index.html $package pictures"
[ "$(LC_ALL=C echo *)" = "$expected" ] || fail "unexpected files: $(echo *)"
gzip -dc Packages.gz | cmp - Packages || fail "Packages.gz differs from Packages"
bzip2 -dc Packages.bz2 | cmp - Packages || fail "Packages.bz2 differs from Packages"
date=$(LC_ALL=C date -u -d "@$(git -C "$source" log -1 --format=%ct)" '+%a, %d %b %Y %H:%M:%S UTC')
for line in "Origin: Sonavue" "Label: Sonavue" "Suite: stable" "Version: 2.0.0" "Codename: ios" \
  "Architectures: iphoneos-arm" "Components: main" "Description: A music player over the home screen" \
  "Date: $date"; do
  grep -qxF "$line" Release || fail "Release lacks: $line"
done

# Each of the three lists has every file, with hashes from programs that are independent of this project.
for list in MD5Sum:md5sum SHA1:sha1sum SHA256:sha256sum; do
  find . -type f ! -name Release -printf '%P\n' | LC_ALL=C sort | while read -r file; do
    echo " $("${list#*:}" "$file" | cut -d' ' -f1) $(wc -c <"$file") $file"
  done >"$work/expected"
  sed "1,/^${list%:*}:/d" Release | sed '/^[^ ]/,$d' | cmp - "$work/expected" ||
    fail "the list ${list%:*} differs"
done

# The addresses, and the differences without one.
field() {
  dpkg-deb --field "$1" "$2"
}
page=$(field "$package" Depiction)
icon=$(field "$package" Icon)
[ -f "${page#"$address/"}" ] || fail "the page is not at $page"
[ -f "${icon#"$address/"}" ] || fail "the icon is not at $icon"
[ "$(field "$package" Homepage)" = "$address/" ] || fail "the homepage is $(field "$package" Homepage)"
grep -qF ">$address<" index.html || fail "the page does not name the source"
for each in Depiction Homepage Icon; do
  [ -z "$(field "$work/plain/$package" $each)" ] || fail "without an address there is a $each"
done
"$source/device/package/make" "$preset" "$work/alone"
cmp "$work/alone/$package" "$work/plain/$package" || fail "without an address the package differs"
grep -q '>Source<' "$work/plain/index.html" && fail "the page names a source without an address"

# The page is complete, runs no scripts, fetches nothing from elsewhere, and all its pictures exist.
for html in index.html ../plain/index.html; do
  grep -inE '<script|javascript:|@[A-Z]+@|url\(| on[a-z]+=|(src|href)="[a-z]*:' "$html" &&
    fail "$html has forbidden content"
  for word in 2.0.0 prefers-color-scheme '<title>Sonavue' '<h3>2.0.0</h3>'; do
    grep -qF "$word" "$html" || fail "$html lacks $word"
  done
done
shown=$(sed -n 's/.*<img src="\([^"]*\)".*/\1/p' index.html | sort)
[ "$shown" = "$( (echo CydiaIcon.png && find pictures -type f) | sort)" ] || fail "pictures: $shown"
items=$(grep -c '^- ' "$source/CHANGELOG.md")
[ "$(sed -n '/new<\/h2>/,/<\/section>/p' index.html | grep -c '<li>.*</li>')" -eq "$items" ] ||
  fail "the page does not list the $items entries of the changelog"

# page_of COMMAND… prints the page of a package whose control file was changed by the command.
page_of() {
  rm -rf "$work/tree"
  dpkg-deb --raw-extract "$package" "$work/tree"
  (cd "$work/tree/DEBIAN" && "$@")
  dpkg-deb -z1 --build "$work/tree" "$work/other.deb" >"$work/said" 2>&1
  "$source/device/repository/page" "$work/other.deb" 2>"$work/said"
}
page_of sed -i 's/^Depends: .*/Depends: firmware (>= 8.0), others/' control |
  grep -qF '<td>8.0 or later</td>' || fail "the page does not name the first system"
page_of sed -i 's/^Depends: .*/Depends: firmware (>= 8.1), others (<< 2), firmware (<< 9.0)/' control |
  grep -qF '<td>8.1 or later, before 9.0</td>' || fail "the page does not name the range of systems"
page_of sed -i 's/^Version: .*/Version: 2.0.9/' control >/dev/null && fail "a page is made for a version without changelog entry"
grep -qF "CHANGELOG.md has no entry for 2.0.9" "$work/said" || fail "unexpected error: $(cat "$work/said")"
rm -r "$work/tree" "$work/other.deb"

# A package manager without any other source.
apt=$work/apt
mkdir -p "$apt"/{etc/parts,etc/sources,etc/trusted,state/lists/partial,cache/archives/partial,got}
touch "$apt/status" "$apt/etc/preferences"
echo "deb [trusted=yes] file:$work/addressed ./" >"$apt/etc/sources.list"
cat >"$apt/configuration" <<END
Dir::State "$apt/state";
Dir::State::status "$apt/status";
Dir::Cache "$apt/cache";
Dir::Etc::sourcelist "$apt/etc/sources.list";
Dir::Etc::sourceparts "$apt/etc/sources";
Dir::Etc::parts "$apt/etc/parts";
Dir::Etc::main "$apt/etc/none";
Dir::Etc::preferences "$apt/etc/preferences";
Dir::Etc::preferencesparts "$apt/etc/parts";
Dir::Etc::trusted "$apt/etc/none";
Dir::Etc::trustedparts "$apt/etc/trusted";
APT::Architecture "iphoneos-arm";
APT::Architectures { "iphoneos-arm"; };
APT::Sandbox::User "";
Acquire::Languages "none";
END
export APT_CONFIG=$apt/configuration
cd "$apt/got"
apt-get -o APT::Update::Error-Mode=any update >"$work/said" 2>&1 ||
  fail "the manager cannot read the source: $(cat "$work/said")"
grep -E '^(W|E):' "$work/said" && fail "the manager reports a problem"
apt-cache policy $name >"$work/said"
grep -q "Candidate: 2.0.0" "$work/said" || fail "no version to install: $(cat "$work/said")"
apt-cache policy | grep -qF "o=Sonavue,a=stable,n=ios,l=Sonavue,c=" || fail "the release differs"
apt-cache show $name >"$work/said"
held=$work/addressed/$package
for line in "Size: $(wc -c <"$held")" "MD5sum: $(md5sum <"$held" | cut -d' ' -f1)" \
  "SHA1: $(sha1sum <"$held" | cut -d' ' -f1)" "SHA256: $(sha256sum <"$held" | cut -d' ' -f1)" \
  "Architecture: iphoneos-arm" "Name: Sonavue" "Depiction: $address/index.html"; do
  grep -qxF "$line" "$work/said" || fail "the manager does not know: $line"
done
apt-get download $name >"$work/said" 2>&1 || fail "the manager cannot fetch: $(cat "$work/said")"
cmp "$held" "$apt"/got/*.deb || fail "what the manager fetches differs"
cd "$work"

# snapshot lists everything in the test's folder except the test's own log.
snapshot() {
  find "$work" ! -path "$work/said" ! -path "$work" -printf '%P %i %s %m\n' | sort
}

# refused STATUS EXPECTED COMMAND…: the command ends with STATUS, prints EXPECTED, and changes no file.
refused() {
  before=$(snapshot)
  result=0
  "${@:3}" >"$work/said" 2>&1 </dev/null || result=$?
  [ "$result" -eq "$1" ] || fail "ends with $result instead of $1: ${*:3}: $(cat "$work/said")"
  grep -qF -- "$2" "$work/said" || fail "does not print '$2': ${*:3}: $(cat "$work/said")"
  [ "$(snapshot)" = "$before" ] || fail "changes files: ${*:3}"
}

# Invalid arguments are detected before anything is built.
command=$source/package
refused 2 "--repository needs a value" "$command" --repository
refused 2 "--repository needs a value" "$command" --repository ""
refused 2 "--repository needs a value" "$command" --repository --address "$address"
refused 2 "--address needs a value" "$command" --repository new --address
refused 2 "--address needs --repository" "$command" --address "$address"
refused 2 "Unknown option --repo" "$command" --repo new
refused 2 "Unknown option new" "$command" new
for bad in plumvane.example.org ftp://a.example file:///a http:// https:///a https:/a xhttps://a; do
  refused 2 "must begin with http" "$command" --repository new --address "$bad"
done
for bad in "https://a.example/a b" " https://a.example" "https://a.example " $'https://a.example/\nIcon: x' \
  $'https://a.example/\r' $'https://a.example\t' 'https://a.example/"' 'https://a.example/<b>' \
  'https://a.example/|' 'https://a.example/&' 'https://a.example/\' 'https://a.example/é'; do
  refused 2 "An address " "$command" --repository new --address "$bad"
done
refused 0 "--repository FOLDER" "$command" --help

# The checker also validates addresses if the folder is made without that command.
refused 1 "Depiction is not a valid address" "$source/device/repository/make" "$preset" new ftp://a.example
refused 1 "Depiction is not a valid address" "$source/device/repository/make" "$preset" new "https://a b"
refused 1 "Depiction is not a valid address" "$source/device/repository/make" "$preset" new \
  $'https://a.example/\n b'

# Folders and files that were not made here are never replaced.
echo mine >file
mkdir empty foreign
echo mine >foreign/mine
for kind in added changed lost theirs; do cp -a plain $kind; done
echo mine >added/mine
echo mine >>changed/index.html
rm lost/pictures/open-panel.jpg
sed -i 's/^Origin: .*/Origin: Others/' theirs/Release
mkdir half
cp plain/Release half
refused 1 "is a file" "$command" --repository file
for folder in foreign added changed lost theirs half /; do
  refused 1 "contains something other" "$command" --repository $folder
done
refused 1 "There is no folder $work/none" "$command" --repository none/new
refused 1 "/proc is not writable" "$command" --repository /proc/new

# Neither is a file that appears in an empty folder while the source is being made.
mkdir busy programs
printf '#!/bin/sh\necho mine >"%s/busy/mine"\nexec %s "$@"\n' "$work" "$(command -v bzip2)" >programs/bzip2
chmod +x programs/bzip2
(PATH=$work/programs:$PATH make busy >said 2>&1) && fail "a folder is replaced while another process writes to it"
[ "$(echo busy*/*)" = busy/mine ] || fail "files that appeared meanwhile are lost: $(echo busy*/*)"

# An empty folder is accepted, and so is one that was made here, by any name.
ln -s empty link
make link
diff -r plain empty || fail "in an empty folder the source differs"
[ -L link ] || fail "the link is gone"
make empty "$address"
diff -r addressed empty || fail "the new source has not replaced the old one"
ls -d ./*.new-* .*.new-* 2>/dev/null && fail "temporary folders are left"

exit $failed
