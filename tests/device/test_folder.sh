# Common start of the package's tests: their arguments, a temporary folder, and `fail`.
# shellcheck shell=sh
source=$1
build=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

fail() {
  echo "FAILED: $*" >&2
  failed=1
}
