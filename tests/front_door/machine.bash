# shellcheck shell=bash
# ./run with the package manager, CMake and cairo's sources replaced by stand-ins, in a folder with a blank in its name. Each
# stand-in appends its command line to the file "calls".

# shellcheck disable=SC2034 # The cases use these.
setup() {
    project=$(dirname "$(dirname "$BATS_TEST_DIRNAME")")
    place=$(mktemp -d)
    tree="$place/the tree"
    mkdir -p "$tree" "$place/bin" "$place/cache"
    cp -R "$project/run" "$project/scripts" "$tree"
    calls=$place/calls
    touch "$calls"
    export calls place XDG_CACHE_HOME="$place/cache" PATH="$place/bin:$PATH"
    unset PKG_CONFIG_PATH DESTDIR DTKHDDVD_WERROR DISPLAY WAYLAND_DISPLAY
    cache=$place/cache/dtkhddvd
    cairo=$cache/cairo-1.16.0-$(dpkg --print-architecture)
    front_door=$tree/run
}

teardown() {
    rm -rf "$place"
}

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
    echo "$*"
    for file in out err calls; do
        echo "--- $file"
        cat "$place/$file"
    done
    return 1
}

# expect STATUS WORD...: runs ./run from another folder.
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
