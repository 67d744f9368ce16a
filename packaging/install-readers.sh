#!/usr/bin/env bash
# install-readers.sh: installs the readers of word processor files that come from npm, for the tests, into build/readers. The versions
# and what they consist of are fixed in readers/package-lock.json. Asks nothing and does nothing when all are there.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
target=$here/../build/readers

cmp -s "$here/readers/package-lock.json" "$target/installed.json" && exit 0
mkdir -p "$target"
cp "$here"/readers/package.json "$here"/readers/package-lock.json "$target"
if ! npm ci --prefix "$target" --ignore-scripts --no-audit --no-fund --loglevel=error >"$target/npm.log" 2>&1; then
    echo "npm could not install the readers that the tests use (is its registry within reach?):" >&2
    cat "$target/npm.log" >&2
    exit 1
fi
cp "$here/readers/package-lock.json" "$target/installed.json"
