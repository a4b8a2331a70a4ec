#!/usr/bin/env bats
# ./run release.
load machine

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

@test "release is the same bytes" {
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
}

@test "uncommitted release is refused" {
    repository
    touch "$tree/new"
    expect 1 release
    expect_last_error 'run: there are uncommitted changes: commit them, a release is made of a commit'
}

@test "release of two versions is refused" {
    repository
    sed -i '1s/1\.2\.3/1.2.4/' "$tree/debian/changelog"
    expect 1 release
    expect_last_error 'run: the latest version in debian/changelog is 1.2.4, and that of include/dtkhddvd.h is 1.2.3'
}
