#!/usr/bin/env bash
# bench/peers.sh [--runs N] builds lumora and times it beside its peers on five minutes of stereo:
#     apt-get install soundstretch sox ffmpeg rubberband-cli time
#     bench/peers.sh
set -euo pipefail

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
build=$root/build/bench
cmake -S "$root" -B "$build" --preset bench >/dev/null
cmake --build "$build" >/dev/null
folder=$(mktemp -d "$build/peers.XXXXXX")
trap 'rm -rf "$folder"' EXIT
python3 "$root/bench/peers.py" "$@" "$build/cli/lumora" "$build/bench/copy_samples" "$folder"
