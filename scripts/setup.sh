#!/usr/bin/env bash
# Installs the Debian packages that a purpose needs and that this machine lacks.
# Usage: scripts/setup.sh build|package|sign|run|test|page|fuzz|coverage|mutants|bench...
set -euo pipefail

build=(cmake ninja-build g++-mingw-w64-x86-64-posix fp-utils)
package=("${build[@]}" python3)
sign=(osslsigncode)
run=("${build[@]}" wine wine64 fonts-wine xvfb xdotool imagemagick)
test=("${run[@]}" "${sign[@]}" openssl g++ clang-14 libclang-rt-14-dev lld googletest
  clang-format-14 clang-tidy-14 python3)
page=("${run[@]}" chromium chromium-driver python3 python3-selenium python3-html5lib python3-pil
  poppler-utils fonts-noto-cjk fonts-hosny-amiri)
fuzz=(cmake ninja-build clang-14 libclang-rt-14-dev)
coverage=(cmake ninja-build googletest clang-14 llvm-14 python3)
mutants=(cmake ninja-build g++ clang-14 googletest python3)
bench=("${run[@]}" g++ libbenchmark-dev libsimpleini-dev libinih-dev)

wanted=()
for purpose in "$@"; do
  case $purpose in
    build) wanted+=("${build[@]}") ;;
    package) wanted+=("${package[@]}") ;;
    sign) wanted+=("${sign[@]}") ;;
    run) wanted+=("${run[@]}") ;;
    test) wanted+=("${test[@]}") ;;
    page) wanted+=("${page[@]}") ;;
    fuzz) wanted+=("${fuzz[@]}") ;;
    coverage) wanted+=("${coverage[@]}") ;;
    mutants) wanted+=("${mutants[@]}") ;;
    bench) wanted+=("${bench[@]}") ;;
    *) echo "setup.sh: unknown purpose: $purpose" >&2; exit 2 ;;
  esac
done

if ! command -v dpkg-query >/dev/null; then
  echo "setup.sh: this is no Debian machine; please install yourself: ${wanted[*]}" >&2
  exit 0
fi

installed() { [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]; }

missing=()
for package in "${wanted[@]}"; do
  installed "$package" || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
if [[ $EUID -ne 0 ]]; then
  command -v sudo >/dev/null || { echo "setup.sh: needs root or sudo to install: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q "$@" >"$log" 2>&1 </dev/null; }
if ! { apt update && apt install -y --no-install-recommends "${missing[@]}"; }; then
  tail -n 40 "$log" >&2
  exit 1
fi
