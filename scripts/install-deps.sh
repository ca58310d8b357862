#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running Quilmar need.
# Only what is missing is installed; nothing is done when everything is present.
set -euo pipefail

PACKAGES=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-svg-dev libgl-dev libfontconfig-dev
  libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev
  fonts-dejavu-core fonts-liberation2
  xvfb xauth xdotool imagemagick poppler-utils
  at-spi2-core python3-pyatspi dbus
  clang libclang-rt-14-dev
)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

if [ "$(id -u)" -ne 0 ]; then
  echo "install-deps: these packages are missing: ${missing[*]}" >&2
  echo "install-deps: run this script as root (or install them with apt-get) and try again." >&2
  exit 1
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}"
