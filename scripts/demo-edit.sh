#!/usr/bin/env bash
# Works the running program on the X display DISPLAY as a user would, with keys alone: gives the
# third row of the list the key Ctrl+Shift+J, which is free, and saves. Leaves a picture of it.
# Usage: scripts/demo-edit.sh WINCMD_INI PICTURE
set -euo pipefail
file=$1
picture=$2
before=$(cksum <"$file")

screen() { import -window root -depth 8 rgb:-; }
colours() { import -window root -format '%k' info:-; }
saved() { [[ $(cksum <"$file") != "$before" ]]; }

# Nothing on the screen changes, but for a caret that may blink.
steady() {
  local pictures=() _
  for _ in {1..6}; do
    pictures+=("$(screen | cksum)")
    sleep 0.15
  done
  [[ ${pictures[0]} == "${pictures[4]}" || ${pictures[0]} == "${pictures[5]}" ]] &&
    [[ $(printf '%s\n' "${pictures[@]}" | sort -u | wc -l) -le 2 ]]
}
# A window is there, and it is drawn.
shown() { [[ $(colours) -gt 16 ]] && steady; }

wait_for() {
  local what=$1 end=$((SECONDS + $2))
  shift 2
  until "$@"; do
    if [[ $SECONDS -ge $end ]]; then
      import -window root "$picture"
      echo "demo-edit: $what did not come about; see $picture" >&2
      exit 1
    fi
    sleep 0.2
  done
}

press() {
  local key
  for key in "$@"; do
    xdotool key --delay 50 "$key"
    wait_for "rest after $key" 20 steady
  done
}

wait_for "the program's window" 60 shown
press Down Down
press ctrl shift j Return
# F10 opens the menu bar; Alt would be taken for a key to assign.
press F10 f s
wait_for "a change in $file" 30 saved
wait_for "rest after saving" 20 steady
import -window root "$picture"
echo "Gave one command the key Ctrl+Shift+J and saved; the picture is $picture."
