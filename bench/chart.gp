# chart.gp: the ratios of a table as dots over the items. Needs the variables csv and svg.
set datafile separator ","
set terminal svg size 1100,1000 dynamic noenhanced font "Sans,12" background rgb "white"
set output svg

columns = "'prescribed calls' 'toolkit software' 'toolkit engine' DirectFB AGG 'Allegro 5' cairo gd Imlib2 pixman 'Qt 5' SDL2_gfx"
colours = "#888888 #1f77b4 #d62728 #000000 #9467bd #8c564b #2ca02c #bcbd22 #17becf #e377c2 #ff7f0e #7f7f7f"
sizes = "0.8 1.2 1.2 0.5 0.5 0.5 0.5 0.5 0.5 0.5 0.5 0.5"

set title "Time of one drawing, as a multiple of the plainest loop over its pixels (logarithmic, further left is faster)"
set logscale x
set xrange [0.5:500]
set xlabel "multiple of the floor"
set grid x y
set yrange [:] reverse
set key outside right top Left reverse
set offsets 0, 0, 0.5, 0.5

plot for [i = 1:words(columns)] csv skip 1 \
    using (strcol(3) eq word(columns, i) ? $8 : NaN):1:ytic(2) \
    with points pointtype 7 pointsize real(word(sizes, i)) linecolor rgb word(colours, i) title word(columns, i)
