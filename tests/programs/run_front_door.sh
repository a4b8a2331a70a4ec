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
unset PKG_CONFIG_PATH DESTDIR DTKHDDVD_WERROR DISPLAY WAYLAND_DISPLAY
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
    stand_in apt-cache <<'END'
echo '  Candidate: 1.0'
END
}

# A later Debian, whose lists have no DirectFB. What apt gets to see is kept.
later_debian() {
    complete_machine
    missing_package
    echo 'VERSION_CODENAME=trixie' > "$place/os-release"
    sed -i "s|/etc/os-release|$place/os-release|" "$tree/scripts/apt.sh"
    mkdir "$place/sources"
    printf 'Types: deb\nURIs: http://mirror/debian\nSuites: trixie trixie-updates\n' > "$place/sources/debian.sources"
    echo 'deb http://mirror/debian-security trixie-security main' > "$place/sources/security.list"
    echo 'deb http://elsewhere/tools trixie main' > "$place/sources/elsewhere.list"
    stand_in apt-config <<END
echo "list='' parts='$place/sources'"
END
    stand_in apt-cache <<'END'
case $2 in libpng-dev) echo '  Candidate: (none)' ;; *) echo '  Candidate: 1.0' ;; esac
END
    stand_in apt-get <<'END'
case "$*" in -c*install*) cp -R "$(dirname "$2")" "$place/private" ;; esac
END
}

# A machine whose tests are over at once, and that has a cairo with its DirectFB back end; those of $bad_target fail.
quick_targets() {
    complete_machine
    stand_in ctest <<'END'
echo '100% tests passed, 0 tests failed out of 7'
END
    # Each look at the clock is a minute after the one before.
    stand_in date <<'END'
echo . >> "$place/minutes"
echo $(($(wc -l < "$place/minutes") * 60))
END
    cat > "$tree/scripts/targets.sh" <<'END'
echo "testing ($1) ..."
if [ "$1" = "${bad_target-}" ]; then
    echo '80% tests passed, 1 tests failed out of 5'
    exit 8
fi
echo '100% tests passed, 0 tests failed out of 5'
END
    mkdir -p "$cairo/lib/pkgconfig"
    touch "$cairo/lib/libcairo.so.2" "$cairo/lib/pkgconfig/cairo-directfb.pc"
}

# The project as a git repository of one commit, whose version is 1.2.3.
repository() {
    complete_machine
    export GIT_AUTHOR_NAME=a GIT_AUTHOR_EMAIL=a@b GIT_COMMITTER_NAME=a GIT_COMMITTER_EMAIL=a@b GIT_CONFIG_GLOBAL=/dev/null
    mkdir "$tree/include" "$tree/debian"
    cp "$project/.gitignore" "$tree"
    sed 's/\(VERSION_MAJOR\) .*/\1 1/; s/\(VERSION_MINOR\) .*/\1 2/; s/\(VERSION_MICRO\) .*/\1 3/' \
        "$project/include/dtkhddvd.h" > "$tree/include/dtkhddvd.h"
    printf '# Changelog\n\n## Unreleased\n\n## 1.2.3\n\n## 1.2.2\n' > "$tree/CHANGELOG.md"
    echo 'dtkhddvd (1.2.3) unstable; urgency=medium' > "$tree/debian/changelog"
    git -C "$tree" init -q
    git -C "$tree" add -A
    git -C "$tree" commit -qm 'the first version'
}

expect_row() {
    grep -q "^$1 * $2 of $3 * 1\.0\$" "$place/out" || wrong "no row for $1"
}

case $case_name in
    words_are_listed)
        expect 0
        for word in demo test build bench install uninstall deb release docs check fuzz mutants soak clean help; do
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
    missing_directfb_comes_from_debian_12)
        later_debian
        stand_in id <<'END'
echo 0
END
        expect 0 build
        expect_called "apt-get -c $cache/packages.work/apt.conf install"
        expect_not_called '^apt-get install'
        cat "$place"/private/sources/* > "$place/out"
        for line in 'Suites: trixie trixie-updates' 'Suites: bookworm bookworm-updates' \
            'deb http://mirror/debian-security bookworm-security main'; do
            grep -qxF "$line" "$place/out" || wrong "no line: $line"
        done
        ! grep -q elsewhere "$place/out" || wrong "another distributor is asked"
        [ "$(tail -n 2 "$place/private/preferences")" = 'Pin: release n=bookworm
Pin-Priority: 100' ] || wrong "the older release is not the last choice"
        grep -q '^Suites: trixie trixie-updates$' "$place/sources/debian.sources" || wrong "the system's sources have changed"
        [ ! -e "$cache/packages.work" ] || wrong "the work folder was left behind"
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
    unknown_target_is_refused)
        complete_machine
        expect 1 test --target vax
        expect_last_error 'run: no target is named "vax": there are i386 armel armhf arm64 mipsel trixie'
        expect_not_called '^cmake'
        ;;
    cross_compilers_of_another_debian_are_refused)
        later_debian
        expect 1 test --target arm64
        expect_last_error 'run: arm64 can only be tested on Debian 12, whose cross compilers fit the libraries that it runs with'
        expect_not_called '^apt-get'
        ;;
    target_without_root_is_refused)
        complete_machine
        stand_in unshare <<'END'
exit 1
END
        expect 1 test --target trixie
        expect_last_error "run: trixie cannot be tested here: it needs root, or user namespaces (package uidmap and a range in\
 /etc/subuid), and neither is allowed"
        expect_not_called '^mmdebstrap'
        ;;
    every_machine_is_tested)
        quick_targets
        expect 0 test --all -R pen
        expect_row default 7 7
        expect_row asan 7 7
        expect_row "default, with cairo's DirectFB back end" 7 7
        for target in i386 armel armhf arm64 mipsel trixie; do expect_row "$target" 5 5; done
        ;;
    failing_machine_holds_up_no_other)
        quick_targets
        bad_target=armel
        export bad_target
        expect 1 test --all
        expect_row armel 4 5
        expect_row trixie 5 5
        expect_last_error 'run: not all is well: armel'
        ;;
    install_passes_the_prefix)
        complete_machine
        expect 0 install --prefix "$place/there" --strip
        expect_called "cmake --install $tree/build --prefix $place/there --strip"
        ;;
    what_was_installed_is_removed)
        complete_machine
        stand_in cmake <<'END'
[ "$1" = --install ] || exit 0
folder=$DESTDIR$4
mkdir -p "$folder/lib" "$folder/share/doc/dtkhddvd/examples"
touch "$folder/lib/libdtkhddvd.so.1" "$folder/share/doc/dtkhddvd/examples/hello.c" "$folder/lib/libother.so"
ln -sf libdtkhddvd.so.1 "$folder/lib/libdtkhddvd.so"
printf '%s\n%s\n%s' "$4/lib/libdtkhddvd.so" "$4/lib/libdtkhddvd.so.1" "$4/share/doc/dtkhddvd/examples/hello.c" \
    > "$2/install_manifest.txt"
END
        expect 0 install --prefix "$place/one place"
        DESTDIR=$place/stage expect 0 install --prefix /opt
        touch "$place/stage/opt/share/doc/dtkhddvd/somebody else's"
        expect 0 uninstall
        [ "$(cat "$place/out")" = 'removed 6 files' ] || wrong "another message"
        (cd "$place" && find 'one place' stage ! -type d) | sort > "$place/left"
        [ "$(cat "$place/left")" = "one place/lib/libother.so
stage/opt/lib/libother.so
stage/opt/share/doc/dtkhddvd/somebody else's" ] || wrong "something else is left: $(cat "$place/left")"
        [ ! -e "$place/one place/share/doc/dtkhddvd" ] || wrong "an empty folder is left"
        [ -d "$place/one place/share/doc" ] || wrong "a folder of others is gone"
        expect 1 uninstall
        expect_last_error "run: $tree/build/installed.txt, the list of installed files, is not there: ./run install with the\
 same --prefix makes it"
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
        expect_called "gallery $tree/build/gallery.png --backend software"
        expect_called "gallery $tree/build/gallery-hardware.png --backend hardware"
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
        stand_in dpkg-buildpackage <<'END'
touch ../libdtkhddvd1.deb ../dtkhddvd.changes
END
        for tool in blhc lintian; do stand_in "$tool" < /dev/null; done
        expect 0 deb
        expect_called 'dpkg-buildpackage -us -uc'
        expect_called "blhc --all $tree/build/deb.log"
        expect_called 'lintian '
        [ -e "$tree/build/deb/dtkhddvd/scripts/deb.sh" ] || wrong "the sources were not copied"
        [ "$(tail -n 1 "$place/out")" = "  $tree/build/deb/libdtkhddvd1.deb" ] || wrong "the package is not named"
        ;;
    release_is_the_same_bytes)
        repository
        expect 0 release
        cp "$tree/build/dtkhddvd-1.2.3.tar.gz" "$place/first.tar.gz"
        git clone -q "$tree" "$place/clone"
        chmod -R go-rwx "$place/clone"
        front_door=$place/clone/run
        (umask 077 && TZ=Pacific/Auckland LC_ALL=C expect 0 release)
        cmp "$place/first.tar.gz" "$place/clone/build/dtkhddvd-1.2.3.tar.gz" || wrong "other bytes"
        tar -xzf "$place/first.tar.gz" -C "$place"
        diff -r --exclude=.git --exclude=build "$tree" "$place/dtkhddvd-1.2.3" || wrong "something is missing"
        ;;
    uncommitted_release_is_refused)
        repository
        touch "$tree/new"
        expect 1 release
        expect_last_error 'run: there are uncommitted changes: commit them, a release is made of a commit'
        ;;
    release_of_two_versions_is_refused)
        repository
        sed -i '1s/1\.2\.3/1.2.4/' "$tree/debian/changelog"
        expect 1 release
        expect_last_error 'run: the latest version in debian/changelog is 1.2.4, and that of include/dtkhddvd.h is 1.2.3'
        ;;
    documentation_is_made)
        complete_machine
        stand_in doxygen <<'END'
mkdir "$DTKHDDVD_DOCS/html"
touch "$DTKHDDVD_DOCS/html/index.html"
END
        stand_in linkchecker < /dev/null
        stand_in mandoc < /dev/null
        cp -R "$project/docs" "$tree"
        expect 0 docs
        expect_called 'doxygen docs/Doxyfile'
        expect_called 'linkchecker '
        expect_called 'mandoc -T lint docs/man/'
        ;;
    dead_links_are_told)
        complete_machine
        stand_in doxygen <<'END'
mkdir "$DTKHDDVD_DOCS/html"
echo '<a href="gone.html">here</a>' > "$DTKHDDVD_DOCS/html/index.html"
END
        stand_in mandoc < /dev/null
        cp -R "$project/docs" "$tree"
        expect 1 docs
        grep -q '^run: a page has a dead link:$' "$place/err" || wrong "another message"
        grep -q 'gone.html' "$place/err" || wrong "the link is not named"
        ;;
    broken_tables_are_told)
        complete_machine
        stand_in doxygen <<'END'
mkdir "$DTKHDDVD_DOCS/html"
echo '&lt;td class="markdownTableBodyNone"&gt;' > "$DTKHDDVD_DOCS/html/index.html"
END
        cp -R "$project/docs" "$tree"
        expect 1 docs
        expect_last_error 'run: these pages have a broken table or link: see above'
        ;;
    clean_removes_the_build)
        mkdir "$tree/build"
        expect 0 clean
        [ ! -e "$tree/build" ] || wrong "the build directory is still there"
        ;;
    *) wrong "no such case" ;;
esac
