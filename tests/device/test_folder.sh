# What the package's tests begin with: their arguments, a folder of their own, a way to fail.
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
