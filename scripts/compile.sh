#!/usr/bin/env bash
# Configures and builds one preset of CMakePresets.json. Usage: scripts/compile.sh PRESET
set -euo pipefail
cd "$(dirname "$0")/.."

# Of two that build the same, one waits for the other.
mkdir -p out
exec {lock}>"out/$1.lock"
flock "$lock"

# Rebuilds are quick with a compiler cache, where the machine has one.
! command -v ccache >/dev/null || export CMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --preset "$1" >/dev/null
cmake --build "out/$1"
