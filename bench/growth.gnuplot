# How times grow with the number of cables: gnuplot -c bench/growth.gnuplot TIMES.tsv PLOT.svg
# Lines of the times are "NAME/CABLES<tab>SECONDS".
times = ARG1
set terminal svg size 900,420 dynamic background "white"
set output ARG2
set logscale xy
set format x "10^{%T}"
set format y "10^{%T} s"
set xlabel "cables"
set grid
set key outside right
rows(name) = sprintf("< sed -n 's#^%s/\\([0-9]*\\)\t#\\1\t#p' %s | sort -n", name, times)
set multiplot layout 1,2
set title "whole files"
plot for [name in "load bareParse pugixmlLoad save bareWrite pugixmlSave rebuild"] \
    rows(name) using 1:2 with linespoints title name
set title "single cables"
plot for [name in "findByTag findById exists readById change rename addAndRemove siblingWalk"] \
    rows(name) using 1:2 with linespoints title name
