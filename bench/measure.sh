# Measures commands: time and peak memory, the best of three runs. Sourced with bash. The variable "program" has the
# program.
times=$(mktemp)
trap 'rm -f "$times"' EXIT

# measure NAME COMMAND...: runs a command of the program three times.
measure() {
    local name=$1
    shift
    for _ in 1 2 3; do
        env time -a -o "$times" -f "$name	%e	%M" "$program" "$@" >/dev/null
    done
}

# report_measures: prints what was measured.
report_measures() {
    awk -F '\t' '
        !($1 in seconds) { order[++count] = $1; seconds[$1] = $2; memory[$1] = $3 }
        { if ($2 < seconds[$1]) seconds[$1] = $2; if ($3 < memory[$1]) memory[$1] = $3 }
        END { for (i = 1; i <= count; ++i) printf "%-42s %7.2f s %6.0f MB\n", order[i], seconds[order[i]], memory[order[i]] / 1024 }
    ' "$times"
}
