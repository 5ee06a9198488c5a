#!/usr/bin/env bash
# Configures and builds one preset of CMakePresets.json. Usage: scripts/compile.sh PRESET
set -euo pipefail
cd "$(dirname "$0")/.."

# Rebuilds are quick with a compiler cache, where the machine has one.
! command -v ccache >/dev/null || export CMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --preset "$1" >/dev/null
cmake --build "out/$1"
