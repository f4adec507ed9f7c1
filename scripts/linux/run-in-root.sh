#!/usr/bin/env bash
# What in-system does as root and in a mount namespace that ends with it.
#
# usage: run-in-root.sh BASE ROOT CACHE COMMAND...
set -euo pipefail
source scripts/linux/root.sh
base=$1 root=$2 cache=$3
shift 3

unpack_root "$base" "$root"
chown -R 0:0 "$root/wheelwright"
mkdir -p "$root/root/.cache"
mount --bind "$cache" "$root/root/.cache"
inside "$root" sh -c 'cd /wheelwright && exec "$@"' sh "$@"
