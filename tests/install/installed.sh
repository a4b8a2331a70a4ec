#!/bin/sh
# installed.sh CASE: one case of an installation below $PREFIX. Whoever finds the build in $BUILD by one of the usual
# variables would prove nothing, so these are cleared.
set -eu
case_name=$1
here=$(dirname "$(readlink -f "$0")")
project=$(dirname "$(dirname "$here")")
libraries=$PREFIX/$LIBRARIES
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset LD_LIBRARY_PATH LIBRARY_PATH CPATH DFBARGS DISPLAY WAYLAND_DISPLAY ZUVOARGS DESTDIR
export HOME="$work" PKG_CONFIG_PATH="$libraries/pkgconfig"
headless=--dfb:system=dummy,quiet,no-cursor,mode=640x480

wrong() {
    echo "$case_name: $*"
    exit 1
}

# compile COMPILER SOURCE [PACKAGE...]: with $more_sources, which the shell splits. pkg-config puts a backslash before the blank of the prefix, which only a second
# reading takes away.
compile() {
    compiler=$1 source=$2
    shift 2
    flags=$(pkg-config --cflags --libs "${@:-dtkhddvd}")
    eval "$compiler \"\$source\" $more_sources -o \"\$work/user\" $flags -lm \"-Wl,-rpath,\$libraries\"" ||
        wrong "does not compile: $(basename "$source")"
}

expect_in_place() {
    for file; do
        [ -f "$PREFIX/$file" ] || wrong "not installed: $file"
    done
}

more_sources=''
case $case_name in
    everything_is_put_in_place)
        rm -rf "$PREFIX"
        "$CMAKE" --install "$BUILD" --prefix "$PREFIX" --strip > "$work/log" || wrong "does not install: $(cat "$work/log")"
        expect_in_place include/dtkhddvd/dtkhddvd.h include/dtkhddvd/dtkhddvd.hpp include/dtkhddvd/zuvo.h \
            "$LIBRARIES/libdtkhddvd.so.$VERSION" "$LIBRARIES/libzuvo.so.$VERSION" \
            "$LIBRARIES/pkgconfig/dtkhddvd.pc" "$LIBRARIES/cmake/dtkhddvd/dtkhddvdConfig.cmake" \
            bin/dtk_demo bin/dtk_bench bin/test_dtkhd bin/zuvo_check bin/dtk_trace bin/dtk_replay "$LIBRARIES/dtkhddvd/dtk_recorder.so" share/man/man1/dtk_demo.1 \
            share/man/man1/dtk_trace.1 share/man/man1/dtk_replay.1 \
            share/man/man1/dtk_bench.1 share/man/man1/test_dtkhd.1 share/man/man1/zuvo_check.1 \
            share/man/man3/dtkhddvd.3 share/doc/dtkhddvd/examples/hello.c
        [ -z "$HAS_WINDOW" ] || expect_in_place "$LIBRARIES/zuvo/libzuvo_window.so"
        [ -x "$PREFIX/share/doc/dtkhddvd/examples/df_rosette.py" ] || wrong "the Python example cannot be run"
        for library in libdtkhddvd libzuvo; do
            [ "$(readlink "$libraries/$library.so")" = "$library.so.${VERSION%%.*}" ] || wrong "no link for $library"
        done
        [ "$(pkg-config --modversion dtkhddvd)" = "$VERSION" ] || wrong "pkg-config tells another version"
        ;;
    c_user_with_pkg_config)
        compile "$CC -std=c99 -Wall -Wextra -Werror" "$here/user.c"
        "$work/user" "$headless" || wrong "draws something else"
        ;;
    readme_program_compiles)
        sed -n '/^```c$/,/^```$/ { /^```/! p }' "$project/README.md" > "$work/badge.c"
        [ "$(grep -c 'main(' "$work/badge.c")" -eq 1 ] || wrong "there is not one program in the README"
        compile "$CC -Wall -Wextra -Werror" "$work/badge.c"
        "$work/user" "$headless" || wrong "fails with $?"
        ;;
    cxx_user_with_pkg_config)
        compile "$CXX" "$here/user.cpp"
        "$work/user" "$headless" || wrong "draws something else"
        ;;
    users_with_cmake)
        unset PKG_CONFIG_PATH
        "$CMAKE" -S "$here/project" -B "$work/build" "-DCMAKE_PREFIX_PATH=$PREFIX" > "$work/log" 2>&1 &&
            "$CMAKE" --build "$work/build" >> "$work/log" 2>&1 || wrong "does not build: $(cat "$work/log")"
        "$work/build/c_user" "$headless" || wrong "the C user draws something else"
        "$work/build/cxx_user" "$headless" || wrong "the C++ user draws something else"
        ;;
    part_of_another_project)
        unset PKG_CONFIG_PATH
        for way in add_subdirectory FetchContent; do
            "$CMAKE" -S "$here/subproject" -B "$work/$way" "-DDTKHDDVD=$project" -DWAY=$way -DCMAKE_BUILD_TYPE=Release \
                > "$work/log" 2>&1 || wrong "cannot be configured by $way: $(cat "$work/log")"
        done
        "$CMAKE" --build "$work/FetchContent" -j 2 > "$work/log" 2>&1 || wrong "does not build: $(cat "$work/log")"
        "$work/FetchContent/c_user" "$headless" || wrong "draws something else"
        others=$(find "$work/FetchContent" -name CMakeFiles -prune -o -type f -executable ! -name '*.so*' ! -name c_user -print)
        [ -z "$others" ] || wrong "other programs are built: $others"
        "$CMAKE" --install "$work/FetchContent" --prefix "$work/prefix" > "$work/log"
        [ ! -e "$work/prefix" ] || wrong "the parent's installation holds the toolkit's: $(cat "$work/log")"
        ;;
    examples_compile)
        cd "$PREFIX/share/doc/dtkhddvd/examples"
        for name in hello df_chart df_clock df_menu df_paint; do
            more_sources="$(find . -name "${name}_*.c" | tr '\n' ' ') screen.c"
            compile "$CC -Wall -Wextra -Werror" $name.c dtkhddvd libpng
            "$work/user" --png "$work/$name.png" || wrong "fails: $name"
            [ -s "$work/$name.png" ] || wrong "leaves no picture: $name"
        done
        ;;
    pango_draws_beside_it)
        cd "$PREFIX/share/doc/dtkhddvd/examples"
        more_sources=screen.c
        for order in 'dtkhddvd pangocairo' 'pangocairo dtkhddvd'; do
            # shellcheck disable=SC2086 # The packages are split.
            compile "$CC -Wall -Wextra -Werror" df_label.c $order libpng
            "$work/user" --png "$work/$order.png" || wrong "fails: $order"
        done
        cmp "$work"/dtk*.png "$work"/pango*.png || wrong "the order of linking shows"
        ;;
    pycairo_draws_beside_it)
        for order in 'cairo screen' 'screen cairo'; do
            # shellcheck disable=SC2086 # The modules are split.
            LD_LIBRARY_PATH="$libraries" "$PYTHON" -B "$here/beside_pycairo.py" "$PREFIX/share/doc/dtkhddvd/examples" \
                "$headless" $order || wrong "fails: $order"
        done
        ;;
    programs_run)
        "$PREFIX/bin/dtk_demo" --frames 2 --size 640x480 2> "$work/log" || wrong "dtk_demo: $(cat "$work/log")"
        "$PREFIX/bin/dtk_bench" --duration 0.01 --size 64 2> "$work/log" || wrong "dtk_bench: $(cat "$work/log")"
        "$PREFIX/bin/zuvo_check" --scenes 10 > "$work/log" 2>&1 || wrong "zuvo_check: $(cat "$work/log")"
        "$PREFIX/bin/dtk_trace" -o "$work/demo.dtk" "$PREFIX/bin/dtk_demo" --frames 2 --size 640x480 2> "$work/log" ||
            wrong "dtk_trace: $(cat "$work/log")"
        "$PREFIX/bin/dtk_replay" "$work/demo.dtk" | grep -q '^2 frames: ' || wrong "dtk_replay does not play two frames"
        [ -n "$HAS_WINDOW" ] || exit 0
        # The window's library is found from any folder: it says itself that there is no such display.
        (cd / && DISPLAY=:987 "$PREFIX/bin/dtk_demo" --frames 2 --size 640x480 2> "$work/log") || wrong "$(cat "$work/log")"
        grep -q "^zuvo: no window: .*(DISPLAY=':987'" "$work/log" || wrong "no window's library: $(cat "$work/log")"
        ;;
    cairo_is_the_systems)
        [ -z "$(find "$PREFIX" -name 'libcairo*')" ] || wrong "a cairo of its own"
        ldd "$libraries/libdtkhddvd.so" | grep -q 'libcairo\.so\.2 => /' || wrong "no cairo at all"
        ;;
    no_file_names_the_build)
        for folder in "$BUILD" "$project"; do
            # The installation itself may lie below the build directory, but no file says where.
            ! grep -raFl -e "$folder/" "$PREFIX" || wrong "these files name $folder"
        done
        for file in "$libraries"/lib*.so.? "$PREFIX"/bin/*; do
            readelf -d "$file" | sed -n 's/.*R.*PATH.*\[\(.*\)\]/\1/p' | tr : '\n' > "$work/paths"
            # shellcheck disable=SC2016 # The loader expands it.
            ! grep -v '^\$ORIGIN' "$work/paths" || wrong "a fixed path in $file"
        done
        ;;
    *) wrong "no such case" ;;
esac
