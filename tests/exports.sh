#!/usr/bin/env bash
# Fails when a library exports a name that is neither in the namespace cabledoc nor of an exported class, or when it
# exports nothing of such a class.
#
# Usage: exports.sh LIBRARY FOLDER      with the folder of the public headers
set -euo pipefail

exported=$(nm -D --defined-only -C "$1" | cut -d ' ' -f 3- | grep -v '^CABLEDOC_QT')
classes=$(grep -ohE '^class CABLEDOC_EXPORT \w+' "$2"/*.h | cut -d ' ' -f 3)
grep -vE "^((vtable|typeinfo|typeinfo name) for )?(cabledoc|${classes//$'\n'/|})(::|@)" <<<"$exported" && exit 1
for class in $classes; do
    grep -qE "^(cabledoc::)?$class::" <<<"$exported" || { echo "$class is not exported"; exit 1; }
done
