#!/usr/bin/env bash
# Builds Partitude and starts it. Any arguments go to the program
# (for example --settings DIR or --print-to-pdf DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build --parallel "$(nproc 2>/dev/null || echo 2)" --target partitude
exec ./build/partitude "$@"
