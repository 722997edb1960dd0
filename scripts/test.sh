#!/usr/bin/env bash
# Builds Partitude with its tests and runs every test, headless.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build --parallel "$(nproc 2>/dev/null || echo 2)"
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --timeout 300 --parallel 2
