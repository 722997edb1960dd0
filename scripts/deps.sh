#!/usr/bin/env bash
# Installs what building and testing Partitude needs, when it is missing.
# On Debian and Ubuntu this uses apt-get (non-interactive); elsewhere it names
# the packages to install by hand and goes on.
set -euo pipefail

packages=(cmake g++ make qt6-base-dev qt6-svg-dev qt6-multimedia-dev qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
          libgif-dev fonts-liberation2 fonts-noto-color-emoji poppler-utils xvfb xauth
          dbus-daemon dbus-bin at-spi2-core python3-gi gir1.2-atspi-2.0
          clang libclang-rt-14-dev desktop-file-utils appstream help2man)

missing=()
if command -v dpkg-query >/dev/null 2>&1; then
  for p in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$p")
  done
else
  echo "Not a Debian system: make sure these (or your system's equivalents) are installed:" >&2
  echo "  ${packages[*]}" >&2
  exit 0
fi

((${#missing[@]} == 0)) && exit 0

echo "Installing: ${missing[*]}"
sudo=()
[[ $(id -u) -eq 0 ]] || sudo=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
