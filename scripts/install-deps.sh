#!/usr/bin/env bash
# Installs every Debian package that building and testing KOVA needs.
# This is the only place that knows package names; it does nothing when all are present.
# With --fuzz it also installs clang and its runtime, which the fuzz target needs.
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  libgtest-dev libgmock-dev libbenchmark-dev
  liblpsolve55-dev libcolamd2 libsuitesparse-dev
  coinor-libclp-dev
  libsqlite3-dev libsqlitecpp-dev
  nlohmann-json3-dev
  libboost-date-time-dev libboost-nowide-dev libboost-filesystem-dev
  libminizip-dev libshp-dev libproj-dev
  graphviz
)

for argument in "$@"; do
  case "$argument" in
    --fuzz) packages+=(clang libclang-rt-14-dev) ;;
    *) echo "usage: $0 [--fuzz]" >&2; exit 2 ;;
  esac
done

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -q
$SUDO apt-get install -y -q --no-install-recommends "${missing[@]}"
