#!/bin/sh
# Installs the Debian packages that the build and the tests need, if they are
# missing. As root it says what it installs and installs it; as anyone else it
# prints the apt-get line to run and fails.
# Usage: tools/ensure-deps.sh package...
missing=""
for p in "$@"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing="$missing $p"
  fi
done
[ -z "$missing" ] && exit 0
if [ "$(id -u)" -ne 0 ]; then
  echo "Missing Debian packages:$missing"
  echo "Install them as root with:"
  echo "  apt-get install -y$missing"
  exit 1
fi
echo "Installing missing Debian packages:$missing"
export DEBIAN_FRONTEND=noninteractive
apt-get update -q || exit 1
# shellcheck disable=SC2086
apt-get install -y -q $missing || exit 1
