#!/usr/bin/env bash
# Renews the pictures in docs that the tour takes (run.sh --tour), by their names. To be looked at
# before they are committed.
set -euo pipefail
cd "$(dirname "$0")/.."

./run.sh --tour
for picture in out/tour/tour-*.png; do
  name=${picture##*/tour-??-}
  if [ -e "docs/$name" ]; then cp "$picture" "docs/$name"; fi
done
