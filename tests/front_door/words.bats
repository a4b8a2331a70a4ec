#!/usr/bin/env bats
# What ./run says, and the words that are over at once.
load machine

@test "words are listed" {
    expect 0
    for word in demo test build bench install uninstall deb release docs check fuzz mutants soak clean help; do
        [ "$(grep -c "^  $word " "$place/out")" -eq 1 ] || wrong "no line for $word"
    done
    cp "$place/out" "$place/list"
    expect 0 help
    cmp -s "$place/out" "$place/list" || wrong "help says something else"
}

@test "unknown word is refused" {
    expect 2 paint
    [ ! -s "$place/out" ] || wrong "something on standard output"
    [ "$(cat "$place/err")" = 'run: unknown word "paint": try ./run help' ] || wrong "another message"
}

@test "superfluous option is refused" {
    expect 2 clean --all
    [ "$(cat "$place/err")" = 'run: clean takes no options, but there is "--all": try ./run help' ] || wrong "another message"
}

@test "clean removes the build" {
    mkdir "$tree/build"
    expect 0 clean
    [ ! -e "$tree/build" ] || wrong "the build directory is still there"
}

@test "demo passes options" {
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
}

@test "demo opens a window" {
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
}
