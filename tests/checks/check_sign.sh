#!/usr/bin/env bash
# Checks that scripts/sign.sh signs the program, by a certificate that is thrown away. Usage:
# check_sign.sh FOLDER, with the program in it, which stays as it is. One line "ok ..." or "not ok ..."
# per check. Run at the root of the repository.
set -uo pipefail

says() { if [[ $1 -eq 0 ]]; then echo "ok $2"; else echo "not ok $2"; fi; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$1/tessera.exe" "$work/"

# A certificate that may sign programs: NAME.
make_certificate() {
  openssl req -x509 -newkey rsa:2048 -nodes -days 1 -subj "/CN=$1" -keyout "$work/$1.key" \
    -out "$work/$1.pem" -addext extendedKeyUsage=codeSigning >/dev/null 2>&1
}

is_signed() {
  osslsigncode verify -CAfile "$work/$1.pem" -in "$work/tessera.exe" >"$work/log" 2>&1
}

make_certificate ours && make_certificate others
says $? "two certificates are made"
! is_signed ours
says $? "the program is not signed yet"

before=$(sha256sum <"$work/tessera.exe")
! scripts/sign.sh "$work/ours.pem" "$work/others.key" "$work" >/dev/null 2>&1
says $? "a key of another certificate is refused"
[[ $(sha256sum <"$work/tessera.exe") == "$before" ]]
says $? "and leaves the program as it was"

scripts/sign.sh "$work/ours.pem" "$work/ours.key" "$work" >/dev/null
says $? "the program is signed"
is_signed ours
says $? "the signature is valid"
! is_signed others
says $? "and nobody else's"
printf '\1' | dd of="$work/tessera.exe" bs=1 seek=5000 conv=notrunc status=none
! is_signed ours
says $? "a change of the program breaks it"
