#!/usr/bin/env bats
# ./run test.
load machine

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

expect_row() {
    grep -q "^$1 * $2 of $3 * 1\.0\$" "$place/out" || wrong "no row for $1"
}

@test "both builds are tested" {
    complete_machine
    expect 0 test -R pen
    expect_called 'ctest --preset default'
    expect_called 'ctest --preset asan'
    [ "$(grep -c '^ctest .* -R pen$' "$calls")" -eq 2 ] || wrong "the words do not reach ctest"
}

@test "sanitizers alone" {
    complete_machine
    expect 0 test --asan
    expect_called 'ctest --preset asan'
    expect_not_called 'ctest --preset default'
}

@test "failing test is the result" {
    complete_machine
    stand_in ctest <<'END'
exit 8
END
    expect 8 test
    expect_not_called 'ctest --preset asan'
}

@test "unknown target is refused" {
    complete_machine
    expect 1 test --target vax
    expect_last_error 'run: no target is named "vax": there are i386 armel armhf arm64 mipsel trixie'
    expect_not_called '^cmake'
}

@test "cross compilers of another debian are refused" {
    later_debian
    expect 1 test --target arm64
    expect_last_error 'run: arm64 can only be tested on Debian 12, whose cross compilers fit the libraries that it runs with'
    expect_not_called '^apt-get'
}

@test "target without root is refused" {
    complete_machine
    stand_in unshare <<'END'
exit 1
END
    expect 1 test --target trixie
    expect_last_error "run: trixie cannot be tested here: it needs root, or user namespaces (package uidmap and a range in\
 /etc/subuid), and neither is allowed"
    expect_not_called '^mmdebstrap'
}

@test "every machine is tested" {
    quick_targets
    expect 0 test --all -R pen
    expect_row default 7 7
    expect_row asan 7 7
    expect_row "default, with cairo's DirectFB back end" 7 7
    for target in i386 armel armhf arm64 mipsel trixie; do expect_row "$target" 5 5; done
}

@test "failing machine holds up no other" {
    quick_targets
    bad_target=armel
    export bad_target
    expect 1 test --all
    expect_row armel 4 5
    expect_row trixie 5 5
    expect_last_error 'run: not all is well: armel'
}
