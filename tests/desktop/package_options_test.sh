#!/bin/sh
# What `./package` accepts for the desktop's package, and what it rejects before anything is built:
# package_options_test.sh PACKAGE
set -eu

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
mkdir "$work/desktop"
cp "$1" "$work/package"
# Says what it is asked to make.
cat >"$work/desktop/make" <<'END'
#!/bin/sh
echo "makes $*"
END
chmod +x "$work/desktop/make"

# says STATUS TEXT OPTION…
says() {
  status=$1
  text=$2
  shift 2
  result=0
  said=$("$work/package" "$@" 2>&1 </dev/null) || result=$?
  [ "$result" -eq "$status" ] || { echo "ends with $result instead of $status: $*" >&2; failed=1; }
  case $said in
    *"$text"*) ;;
    *) echo "does not say '$text': $*: $said" >&2; failed=1 ;;
  esac
}
own=$(dpkg --print-architecture)
says 0 "makes $own" --desktop
says 0 "makes $own" --desktop --architecture "$own"
says 0 "makes arm64" --desktop --architecture arm64
says 0 "makes arm64" --architecture arm64 --desktop
says 0 "--architecture ARCHITECTURE" --help
says 2 "--architecture needs a value" --desktop --architecture
says 2 "--architecture needs a value" --desktop --architecture ''
says 2 "--architecture needs a value" --architecture --desktop
says 2 "--architecture needs --desktop" --architecture arm64
says 2 "--architecture needs --desktop" --repository new --architecture arm64
for other in sparc aarch64 "arm64 amd64" "../arm64" '*'; do
  says 2 "not for '$other'" --desktop --architecture "$other"
done
says 2 "--desktop has no option but --architecture" --desktop --repository new
says 2 "Unknown option arm64" --desktop arm64
exit $failed
