# Makes a table of test results for a tenth of the cables in a table of cables:
#
#     cabledoc table export FILE.job cables | awk -F , -f bench/results.awk >results.csv
#
# Every seventh test is a failed one. Among the cables are as many with curves as among all.
BEGIN { print "cable_id,tested_at,verdict,length_12,length_36,length_45,length_78,length_unit,wiremap,m:NEXT,m:RL" }
NR > 1 && int(NR / 10) % 10 == NR % 10 {
    metres = 10 + NR % 80
    printf "%s,2026-01-01T%02d:%02d:%02d,%s,", $1, NR / 3600 % 24, NR / 60 % 60, NR % 60, NR % 7 ? "PASS" : "FAIL"
    printf "%d.1,%d.4,%d.2,%d.7,m,12>12 36>36 45>45 78>78,%d.%d,3.2\n", metres, metres, metres, metres, NR % 9, NR % 10
}
