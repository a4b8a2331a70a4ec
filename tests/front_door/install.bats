#!/usr/bin/env bats
# ./run install, uninstall and deb.
load machine

@test "install passes the prefix" {
    complete_machine
    expect 0 install --prefix "$place/there" --strip
    expect_called "cmake --install $tree/build --prefix $place/there --strip"
}

@test "what was installed is removed" {
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
}

@test "packages are made" {
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
}
