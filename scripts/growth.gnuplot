# Draws docs/images/growth.png from what the benchmarks measured: run from the root of the sources.
set terminal pngcairo size 900,560 font "DejaVu Sans,11"
set output "docs/images/growth.png"
set title "Time by amount of work, each side doubling from mark to mark"
set logscale xy 2
set xlabel "files installed, skin folders listed"
set ylabel "milliseconds"
set xrange [800:20000]
set xtics (1000, 2000, 4000, 8000, 16000)
set grid
set key top left
plot "build/growth/install" using 1:($2 * 1000) with linespoints lw 2 pt 7 title "install of files of 4 KiB", \
     "build/growth/skin-list" using 1:($2 * 1000) with linespoints lw 2 pt 5 title "skin list", \
     x / 1000 * 8 with lines dt 2 lc "gray50" title "in proportion"
