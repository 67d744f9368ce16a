#!/usr/bin/env bash
# docs/screenshots/make.sh [FOLDER [dark] [all]]: draws every window on a screen of its own (Xvfb), in English and German into this folder.
# With another folder they go there: `all` draws them in all languages, `dark` as on a dark desktop, to be looked at after a change.
set -euo pipefail
folder=$(cd "$(dirname "$0")" && pwd)
target=$(realpath -m "${1:-$folder}")
cd "$folder/../.."

mkdir -p "$target"
cmake --preset release --log-level=WARNING
cmake --build --preset release --target tavrelion_screenshots
QT_QPA_PLATFORM=xcb xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
    build/release/tests/tavrelion_screenshots "$target" "${@:2}"
