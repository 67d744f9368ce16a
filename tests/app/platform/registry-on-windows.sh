#!/usr/bin/env bash
# registry-on-windows.sh CXX WINE GOOGLETEST ROOT FOLDER: builds the registry's suite for Windows in FOLDER and runs it under wine, in a
# Windows of its own.
set -euo pipefail
cxx=$1 wine=$2 googletest=$3 root=$4 folder=$5
mkdir -p "$folder"

"$cxx" -std=c++20 -O1 -static -I"$root/app" -isystem "$googletest/include" -I"$googletest" \
    "$root/tests/app/platform/RegistryTest.cpp" "$root/app/platform/Registry_win32.cpp" \
    "$googletest/src/gtest-all.cc" "$googletest/src/gtest_main.cc" -o "$folder/registry_test.exe"

export WINEPREFIX=$folder/prefix WINEDEBUG=-all WINEARCH=win64 DISPLAY=
trap '"${wine%64}server" -k 2>/dev/null || wineserver -k 2>/dev/null || true' EXIT
"$wine" "$folder/registry_test.exe"
