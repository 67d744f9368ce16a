#!/usr/bin/env bash
# suites-on-windows.sh CXX WINE GOOGLETEST ROOT FOLDER: builds the suites that hold for every system for Windows in FOLDER, with all of
# the room's Windows sources, and runs them under wine, in a Windows of their own.
set -euo pipefail
cxx=$1 wine=$2 googletest=$3 root=$4 folder=$5
mkdir -p "$folder"

"$cxx" -std=c++20 -O1 -static -I"$root/app" -isystem "$googletest/include" -I"$googletest" \
    "$root"/tests/app/platform/{RegistryTest,SystemTest}.cpp "$root"/app/platform/*_win32.cpp \
    "$googletest/src/gtest-all.cc" "$googletest/src/gtest_main.cc" -lole32 -lshell32 -luuid -o "$folder/suites.exe"

export WINEPREFIX=$folder/prefix WINEDEBUG=-all WINEARCH=win64 DISPLAY=
trap '"${wine%64}server" -k 2>/dev/null || wineserver -k 2>/dev/null || true' EXIT
"$wine" "$folder/suites.exe"
