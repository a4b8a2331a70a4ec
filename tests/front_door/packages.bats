#!/usr/bin/env bats
# What is missing on a machine.
load machine

@test "no build makes a cairo" {
    machine_without_cairo
    front_door=$tree/run
    expect 0 build
    expect_not_called '^apt-get'
    [ ! -e "$cairo" ] || wrong "a cairo in the cache"
}

@test "complete machine calls no apt" {
    complete_machine
    expect 0 build
    expect_called "cmake -S $tree --preset default"
    expect_called "cmake --build $tree/build"
    expect_not_called '^apt-get'
    expect_not_called '^sudo'
}

@test "missing packages are installed" {
    complete_machine
    missing_package
    stand_in id <<'END'
echo 0
END
    expect 0 build
    expect_called 'apt-get update'
    expect_called 'apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 cmake libpng-dev'
    expect_not_called '^sudo'
}

@test "user installs through sudo" {
    complete_machine
    missing_package
    stand_in id <<'END'
echo 1000
END
    expect 0 build
    expect_called 'sudo env DEBIAN_FRONTEND=noninteractive apt-get install'
    expect_not_called '^apt-get'
}

@test "failing apt is explained" {
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
}

@test "missing directfb comes from debian 12" {
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
}
