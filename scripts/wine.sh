# shellcheck shell=bash
# Wine prefixes and X displays of our own; to be sourced by scripts at the root of the repository.
#
#   processor_keep N          the calling shell, and what it starts, on one processor
#   display_start             a private X display; sets DISPLAY
#   prefix_use NAME [desktop] a fresh prefix out/wine/NAME; sets WINEPREFIX
#   prefix_value KEY NAME TEXT  a text in the prefix's HKEY_CURRENT_USER, before its first process
#   wine_clean_up             ends all that was started; call it in an exit trap
#
# Needs Bash. Ends processes by their id only, and only those that carry our prefix or that we started.

# A program that crashes ends, and no debugger waits for somebody to look at it.
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe="
wine_root=$PWD/out/wine
display_size=1280x1024
display_process=

# What a Windows program calls an absolute path of this machine.
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# N counts from 0, and after the last of those that may be used comes the first again. Between two, most
# of what a program does is waiting for the other one to wake up whenever Wine's server or the window
# system is called.
processor_keep() {
  local allowed
  read -ra allowed < <(python3 -c 'import os; print(*sorted(os.sched_getaffinity(0)))')
  taskset --cpu-list --pid "${allowed[$1 % ${#allowed[@]}]}" "$BASHPID" >/dev/null
}

display_start() {
  local number_file number
  number_file=$(mktemp)
  exec {number_channel}>"$number_file"
  Xvfb -displayfd "$number_channel" -screen 0 "${display_size}x24" -nolisten tcp \
    </dev/null >/dev/null 2>&1 &
  display_process=$!
  exec {number_channel}>&-
  for _ in {1..600}; do
    number=$(<"$number_file")
    [[ -n $number ]] && break
    kill -0 "$display_process" 2>/dev/null || break
    sleep 0.1
  done
  rm -f "$number_file"
  [[ -n $number ]] || { echo "No X display could be started." >&2; return 1; }
  export DISPLAY=:$number
}

# The prefix that the others are copied from: making one takes many seconds, copying it one.
prefix_make_base() {
  local base=$wine_root/base
  [[ -e $base.ready && $(<"$base.ready") == "$(wine --version)" ]] && return
  rm -rf "$base" "$base.ready"
  mkdir -p "$base"
  if ! WINEPREFIX=$base timeout 180 wine wineboot --init </dev/null >/dev/null 2>&1; then
    echo "Wine could not make a prefix in $base." >&2
    prefix_end "$base"
    return 1
  fi
  WINEPREFIX=$base timeout 60 wineserver -w || return 1
  # Debian's wine64 does not look for its own fonts where they are.
  mkdir -p "$base/drive_c/windows/Fonts"
  cp /usr/share/wine/fonts/* "$base/drive_c/windows/Fonts/"
  wine --version >"$base.ready"
}

prefix_use() {
  local name=$1 desktop=${2-}
  export WINEPREFIX=$wine_root/$name
  prefix_make_base || return 1
  prefix_end "$WINEPREFIX"
  rm -rf "$WINEPREFIX"
  # The system's files are hard links; the registry and the INI files, which change, are copies.
  cp -al "$wine_root/base" "$WINEPREFIX"
  cp --remove-destination "$wine_root"/base/*.reg "$WINEPREFIX/"
  cp --remove-destination "$wine_root"/base/drive_c/windows/*.ini "$WINEPREFIX/drive_c/windows/"
  if [[ $desktop == desktop ]]; then
    # Without a window manager each closing window costs two seconds; Wine's own desktop needs none.
    prefix_value 'Software\Wine\Explorer' Desktop Default
    prefix_value 'Software\Wine\Explorer\Desktops' Default "$display_size"
  fi
}

prefix_value() {
  local key=${1//\\/\\\\} name=$2 text=${3//\\/\\\\}
  printf '\n[%s]\n"%s"="%s"\n' "$key" "$name" "$text" >>"$WINEPREFIX/user.reg"
}

# Ends every process that runs in a prefix: services outlive a killed server.
prefix_end() {
  local prefix=$1 process remaining
  [[ -d $prefix ]] || return 0
  # Fails when no server runs, which is as good.
  WINEPREFIX=$prefix timeout 10 wineserver -k >/dev/null 2>&1 || true
  for _ in {1..50}; do
    remaining=
    for process in $(prefix_processes "$prefix"); do
      kill -KILL "$process" 2>/dev/null && remaining=yes
    done
    [[ -z $remaining ]] && return 0
    sleep 0.1
  done
}

# The ids of Wine's processes in a prefix. Other tools that a script starts after prefix_use carry
# the prefix in their environment too, and are left alone.
prefix_processes() {
  local entry command
  for entry in /proc/[0-9]*; do
    grep -qzFx "WINEPREFIX=$1" "$entry/environ" 2>/dev/null || continue
    command=$(tr '\0' ' ' 2>/dev/null <"$entry/cmdline") || continue
    [[ $command == *wine* || $command == *.exe* ]] && echo "${entry#/proc/}"
  done
}

wine_clean_up() {
  if [[ -n ${WINEPREFIX-} ]]; then prefix_end "$WINEPREFIX"; fi
  if [[ -n $display_process ]]; then
    kill "$display_process" 2>/dev/null || true
    wait "$display_process" 2>/dev/null || true
    display_process=
  fi
}
