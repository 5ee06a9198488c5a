#!/usr/bin/env bash
# Signs tessera.exe, between ./build and the packing: ./package CERTIFICATE KEY does all three.
# Usage: scripts/sign.sh CERTIFICATE KEY [FOLDER]; files in PEM, the certificate with those between it
# and its root, and the folder that holds the program, dist/ unless another is named.
#
# Name the authority's server for time stamps as TESSERA_TIME_SERVER: without a stamp
# the signature ends with the certificate. Keep certificate and key outside of the repository.
set -euo pipefail
[[ $# -ge 2 ]] || { sed -n '3,4s/^# //p' "$0" >&2; exit 2; }
certificate=$(realpath "$1")
key=$(realpath "$2")
folder=$(realpath "${3:-$(dirname "$0")/../dist}")
cd "$(dirname "$0")/.."
scripts/setup.sh sign

program=$folder/tessera.exe
signed=$(mktemp -d)
trap 'rm -rf "$signed"' EXIT
stamp=()
[[ -z ${TESSERA_TIME_SERVER-} ]] || stamp=(-ts "$TESSERA_TIME_SERVER")
osslsigncode sign -h sha256 -certs "$certificate" -key "$key" -n Tessera "${stamp[@]}" \
  -in "$program" -out "$signed/tessera.exe" >"$signed/log" 2>&1 || { cat "$signed/log" >&2; exit 1; }
cat "$signed/tessera.exe" >"$program"
echo "$program is signed."
