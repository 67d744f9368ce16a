#!/usr/bin/env bash
# docs/screenshots/make.sh: draws every window in English and German into this folder, on a screen of its own (Xvfb).
set -euo pipefail
folder=$(cd "$(dirname "$0")" && pwd)
cd "$folder/../.."

cmake --preset release --log-level=WARNING
cmake --build --preset release --target tavrelion_screenshots
QT_QPA_PLATFORM=xcb xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
    build/release/tests/tavrelion_screenshots "$folder"
