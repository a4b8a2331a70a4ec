# growth.gp: the toolkit's times over the pixels written, one picture for each back end, and over the points of
# polygons beside cairo. Needs the variables csv and svg.
set datafile separator ","
set terminal svg size 1500,560 dynamic enhanced font "Sans,12" background rgb "white"
set output svg

primitives = "'ellipse opaque' 'ellipse alpha' '1px ellipse outline' '5x5 pen ellipse' '5x5 pen line' '5x5 pen border' 'rectangle opaque' 'rectangle alpha' 'textured rectangle' 'textured ellipse' 'triangle opaque' 'triangle alpha'"

# The name of an item without its size, and that size.
primitive(item) = item[1:strlen(item) - strstrt(reversed(item), " ")]
size(item) = real(item[strlen(item) - strstrt(reversed(item), " ") + 2:*])
reversed(text) = strlen(text) < 2 ? text : reversed(text[2:*]) . text[1:1]

set datafile missing NaN
set logscale xy
set format x "10^{%T}"
set format y "10^{%T}"
set xlabel "pixels written"
set grid
set multiplot layout 1,3
set ylabel "nanoseconds"
set key left top Left reverse font ",9"
do for [column in "'toolkit software' 'toolkit engine'"] {
    set title column
    plot for [i = 1:words(primitives)] csv skip 1 \
        using (strcol(3) eq column && primitive(strcol(2)) eq word(primitives, i) ? $6 : NaN):5 \
        with linespoints pointtype i pointsize 0.6 linecolor i title word(primitives, i)
}
set title "a ring of many points"
set xlabel "points"
plot [500:2e6] for [drawn_by in "'toolkit software' 'toolkit engine' cairo"] csv skip 1 \
    using (strcol(3) eq drawn_by && primitive(strcol(2)) eq "ring of points" ? size(strcol(2)) : NaN):5 \
    with linespoints pointsize 0.8 title drawn_by
unset multiplot
