#!/usr/bin/env bash
# Fails when a folder of src/ uses a symbol that neither it nor a folder that it builds on defines.
#
# Usage: layers.sh FILE      with a line "FOLDER|FOLDERS THAT IT BUILDS ON|OBJECT FILES" for each folder
set -euo pipefail

while IFS='|' read -r folder used objects; do
    echo "folder $folder $used"
    # shellcheck disable=SC2086
    nm -P -g $objects
done <"$1" | awk '
    $1 == "folder" { folder = $2; for (i = 2; i <= NF; i++) uses[folder, $i]; next }
    $2 ~ /^[Uvw]$/ { wanted[folder, $1]; next }
    NF > 1 { homes[$1] = homes[$1] " " folder }
    END {
        for (pair in wanted) {
            split(pair, want, SUBSEP)
            count = split(homes[want[2]], home, " ")
            found = 0
            for (i = 1; i <= count; i++)
                found += (want[1], home[i]) in uses
            checked += count
            if (count > 0 && found == 0)
                print want[1] " uses " want[2] " of" homes[want[2]]
        }
        if (checked == 0)
            print "There are no symbols to check."
    }' | c++filt | sort | tee /dev/stderr | { ! grep -q .; }
