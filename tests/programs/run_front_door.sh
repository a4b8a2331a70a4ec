#!/bin/sh
# run_front_door.sh CASE: one case of ./run, with the package manager, CMake and cairo's sources replaced by stand-ins, in
# a folder with a blank in its name. Each stand-in appends its command line to the file "calls".
set -eu
case_name=$1
project=$(dirname "$(dirname "$(dirname "$(readlink -f "$0")")")")
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

tree="$place/the tree"
mkdir -p "$tree" "$place/bin" "$place/cache"
cp -R "$project/run" "$project/scripts" "$tree"
calls=$place/calls
touch "$calls"
export calls place XDG_CACHE_HOME="$place/cache" PATH="$place/bin:$PATH"
unset PKG_CONFIG_PATH DESTDIR DTKHDDVD_WERROR DISPLAY
cache=$place/cache/dtkhddvd
cairo=$cache/cairo-1.16.0-$(dpkg --print-architecture)

# stand_in NAME: the body comes on standard input.
stand_in() {
    # shellcheck disable=SC2016 # The stand-in expands these.
    { printf '#!/bin/sh\necho "%s $*" >> "$calls"\n' "$1"; cat; } > "$place/bin/$1"
    chmod +x "$place/bin/$1"
}

# A machine that has all packages.
complete_machine() {
    for tool in apt-get sudo cmake ctest ldconfig; do stand_in "$tool" < /dev/null; done
    stand_in dpkg-query <<'END'
echo installed
END
    stand_in pkg-config < /dev/null
}

# A machine whose package mirror works, with a cairo source that puts an empty library in place: for the script that builds
# a cairo with the DirectFB back end.
machine_without_cairo() {
    complete_machine
    front_door=$tree/scripts/cairo.sh
    stand_in apt-get <<'END'
case "$*" in *source*) ;; *) exit 0 ;; esac
mkdir -p cairo-1.16.0/src
printf '#!/bin/sh\necho "${1#--prefix=}" > src/prefix\n' > cairo-1.16.0/configure
chmod +x cairo-1.16.0/configure
cat > cairo-1.16.0/src/Makefile <<'MAKE'
all:
	test ! -e $(place)/broken
install:
	mkdir -p $(DESTDIR)$$(cat prefix)/lib/pkgconfig
	touch $(DESTDIR)$$(cat prefix)/lib/libcairo.so.2 $(DESTDIR)$$(cat prefix)/lib/pkgconfig/cairo-directfb.pc
MAKE
END
}

wrong() {
    echo "$case_name: $*"
    for file in out err calls; do
        echo "--- $file"
        cat "$place/$file"
    done
    exit 1
}

# expect STATUS WORD...: runs ./run from another folder.
front_door=$tree/run
expect() {
    expected=$1
    shift
    status=0
    (cd / && "$front_door" "$@") > "$place/out" 2> "$place/err" || status=$?
    [ "$status" -eq "$expected" ] || wrong "the status of $* is $status"
}

expect_called() {
    grep -qF -e "$1" "$calls" || wrong "not called: $1"
}

expect_not_called() {
    ! grep -q -e "$1" "$calls" || wrong "called: $1"
}

expect_last_error() {
    [ "$(tail -n 1 "$place/err")" = "$1" ] || wrong "the last line is not: $1"
}

expect_cairo_in_place() {
    [ -e "$cairo/lib/libcairo.so.2" ] || wrong "no cairo in the cache"
    [ ! -e "$cache/cairo.work" ] || wrong "the work folder was left behind"
}

missing_package() {
    stand_in dpkg-query <<'END'
case "$*" in *libpng-dev | *cmake) exit 1 ;; esac
echo installed
END
}

case $case_name in
    words_are_listed)
        expect 0
        for word in demo test build bench install deb docs check fuzz soak clean help; do
            [ "$(grep -c "^  $word " "$place/out")" -eq 1 ] || wrong "no line for $word"
        done
        cp "$place/out" "$place/list"
        expect 0 help
        cmp -s "$place/out" "$place/list" || wrong "help says something else"
        ;;
    unknown_word_is_refused)
        expect 2 paint
        [ ! -s "$place/out" ] || wrong "something on standard output"
        [ "$(cat "$place/err")" = 'run: unknown word "paint": try ./run help' ] || wrong "another message"
        ;;
    superfluous_option_is_refused)
        expect 2 clean --all
        [ "$(cat "$place/err")" = 'run: clean takes no options, but there is "--all": try ./run help' ] || wrong "another message"
        ;;
    no_build_makes_a_cairo)
        machine_without_cairo
        front_door=$tree/run
        expect 0 build
        expect_not_called '^apt-get'
        [ ! -e "$cairo" ] || wrong "a cairo in the cache"
        ;;
    complete_machine_calls_no_apt)
        complete_machine
        expect 0 build
        expect_called "cmake -S $tree --preset default"
        expect_called "cmake --build $tree/build"
        expect_not_called '^apt-get'
        expect_not_called '^sudo'
        ;;
    missing_packages_are_installed)
        complete_machine
        missing_package
        stand_in id <<'END'
echo 0
END
        expect 0 build
        expect_called 'apt-get update'
        expect_called 'apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 cmake libpng-dev'
        expect_not_called '^sudo'
        ;;
    user_installs_through_sudo)
        complete_machine
        missing_package
        stand_in id <<'END'
echo 1000
END
        expect 0 build
        expect_called 'sudo env DEBIAN_FRONTEND=noninteractive apt-get install'
        expect_not_called '^apt-get'
        ;;
    failing_apt_is_explained)
        complete_machine
        missing_package
        for tool in apt-get sudo; do
            stand_in "$tool" <<'END'
exit 100
END
        done
        expect 1 build
        expect_last_error "run: apt-get could not install cmake libpng-dev: check the network and the package sources,\
 or install them by hand as root (whole log: $cache/packages.log)"
        expect_not_called '^cmake'
        ;;
    cairo_is_built_once)
        machine_without_cairo
        expect 0
        expect_cairo_in_place
        : > "$calls"
        expect 0
        expect_not_called '^apt-get'
        ;;
    unfetchable_cairo_is_explained)
        machine_without_cairo
        stand_in apt-get <<'END'
exit 100
END
        expect 1
        expect_last_error "run: cairo's source package could not be fetched: check the network and the package sources\
 (whole log: $cache/cairo.log)"
        ;;
    broken_try_is_replaced)
        machine_without_cairo
        mkdir -p "$cairo/lib" "$cache/cairo.work/cairo-1.16.0"
        touch "$place/broken"
        expect 1
        expect_last_error "run: cairo did not compile: see the message above, then run again (whole log: $cache/cairo.log)"
        rm "$place/broken"
        expect 0
        expect_cairo_in_place
        ;;
    two_runs_at_once_build_one_cairo)
        machine_without_cairo
        "$front_door" > "$place/other" 2>&1 &
        expect 0
        wait $! || wrong "the other run failed: $(cat "$place/other")"
        expect_cairo_in_place
        [ "$(grep -c ' source cairo$' "$calls")" -eq 1 ] || wrong "cairo was not fetched once"
        ;;
    cache_of_somebody_else_is_refused)
        complete_machine
        mkdir "$place/elsewhere"
        ln -s "$place/elsewhere" "$cache"
        expect 0 build
        rm "$place/elsewhere"/*
        # Root alone can give a link away, and to nobody else a link to / leads to a folder of their own.
        if [ "$(id -u)" -eq 0 ]; then
            chown -h 65534 "$cache"
        else
            ln -sfn / "$cache"
        fi
        expect 1 build
        expect_last_error "run: $cache belongs to somebody else: set XDG_CACHE_HOME to a folder of your own, without blanks in its name"
        [ -z "$(ls "$place/elsewhere")" ] || wrong "something was written there"
        if [ "$(id -u)" -eq 0 ]; then
            rm "$cache"
            mkdir "$cache"
            chown 65534 "$cache"
            expect 1 build
        fi
        ;;
    blank_in_cache_is_avoided)
        complete_machine
        user=test.$$
        stand_in id <<END
echo $user
END
        export XDG_CACHE_HOME="$place/the cache"
        expect 0 build
        rm -r "/var/tmp/dtkhddvd-$user"
        [ ! -e "$place/the cache" ] || wrong "a cache with a blank in its name"
        ;;
    both_builds_are_tested)
        complete_machine
        expect 0 test -R pen
        expect_called 'ctest --preset default'
        expect_called 'ctest --preset asan'
        [ "$(grep -c '^ctest .* -R pen$' "$calls")" -eq 2 ] || wrong "the words do not reach ctest"
        ;;
    sanitizers_alone)
        complete_machine
        expect 0 test --asan
        expect_called 'ctest --preset asan'
        expect_not_called 'ctest --preset default'
        ;;
    failing_test_is_the_result)
        complete_machine
        stand_in ctest <<'END'
exit 8
END
        expect 8 test
        expect_not_called 'ctest --preset asan'
        ;;
    install_passes_the_prefix)
        complete_machine
        expect 0 install --prefix "$place/there" --strip
        expect_called "cmake --install $tree/build --prefix $place/there --strip"
        ;;
    demo_passes_options)
        complete_machine
        mkdir "$tree/build"
        for program in dtk_demo gallery; do
            stand_in "$program" < /dev/null
            mv "$place/bin/$program" "$tree/build"
        done
        expect 0 demo --frames 20 --png /tmp/other.png
        expect_called '--frames 20 --png /tmp/other.png --backend software --png /tmp/other.png'
        expect_called '--frames 20 --png /tmp/other.png --backend hardware --png /tmp/other-hardware.png'
        expect_called "gallery $tree/build/gallery.png software"
        expect_called "gallery $tree/build/gallery-hardware.png hardware"
        expect_not_called '--rate'
        grep -q '/tmp/other.png$' "$place/out" || wrong "the picture's place is not said"
        ;;
    demo_opens_a_window)
        complete_machine
        mkdir "$tree/build"
        for program in dtk_demo gallery; do
            # shellcheck disable=SC2016 # The stand-in expands it.
            echo 'echo "on display ${DISPLAY-none}" >> "$calls"' | stand_in "$program"
            mv "$place/bin/$program" "$tree/build"
        done
        DISPLAY=:7 expect 0 demo --seconds 3
        expect_called '--seconds 20 --rate 60 --size 1280x720 --seconds 3'
        [ "$(grep -c '^on display none$' "$calls")" -eq 4 ] || wrong "pictures need no display"
        [ "$(grep -c '^on display :7$' "$calls")" -eq 1 ] || wrong "no window"
        ;;
    packages_are_made)
        complete_machine
        stand_in lintian < /dev/null
        stand_in doxygen < /dev/null
        stand_in mandoc < /dev/null
        expect 0 deb
        expect_called "cmake --fresh -S $tree -B $tree/build/deb -DCMAKE_INSTALL_PREFIX=/usr"
        expect_called "cmake --build $tree/build/deb --target package"
        expect_called 'lintian '
        ;;
    documentation_is_made)
        complete_machine
        stand_in doxygen < /dev/null
        stand_in mandoc < /dev/null
        cp -R "$project/docs" "$tree"
        expect 0 docs
        expect_called 'doxygen -'
        expect_called 'mandoc -T lint docs/man/'
        ;;
    clean_removes_the_build)
        mkdir "$tree/build"
        expect 0 clean
        [ ! -e "$tree/build" ] || wrong "the build directory is still there"
        ;;
    *) wrong "no such case" ;;
esac
