#!/usr/bin/env bats
# The cairo with its DirectFB back end, and the folder that is kept from one build to the next.
load machine

expect_cairo_in_place() {
    [ -e "$cairo/lib/libcairo.so.2" ] || wrong "no cairo in the cache"
    [ ! -e "$cache/cairo.work" ] || wrong "the work folder was left behind"
}

@test "cairo is built once" {
    machine_without_cairo
    expect 0
    expect_cairo_in_place
    : > "$calls"
    expect 0
    expect_not_called '^apt-get'
}

@test "unfetchable cairo is explained" {
    machine_without_cairo
    stand_in apt-get <<'END'
exit 100
END
    expect 1
    expect_last_error "run: cairo's source package could not be fetched: check the network and the package sources\
 (whole log: $cache/cairo.log)"
}

@test "broken try is replaced" {
    machine_without_cairo
    mkdir -p "$cairo/lib" "$cache/cairo.work/cairo-1.16.0"
    touch "$place/broken"
    expect 1
    expect_last_error "run: cairo did not compile: see the message above, then run again (whole log: $cache/cairo.log)"
    rm "$place/broken"
    expect 0
    expect_cairo_in_place
}

@test "two runs at once build one cairo" {
    machine_without_cairo
    "$front_door" > "$place/other" 2>&1 &
    expect 0
    wait $! || wrong "the other run failed: $(cat "$place/other")"
    expect_cairo_in_place
    [ "$(grep -c ' source cairo$' "$calls")" -eq 1 ] || wrong "cairo was not fetched once"
}

@test "cache of somebody else is refused" {
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
}

@test "blank in cache is avoided" {
    complete_machine
    user=test.$$
    stand_in id <<END
echo $user
END
    export XDG_CACHE_HOME="$place/the cache"
    expect 0 build
    rm -r "/var/tmp/dtkhddvd-$user"
    [ ! -e "$place/the cache" ] || wrong "a cache with a blank in its name"
}
