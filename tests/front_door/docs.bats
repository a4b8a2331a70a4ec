#!/usr/bin/env bats
# ./run docs.
load machine

@test "documentation is made" {
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
}

@test "dead links are told" {
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
}

@test "broken tables are told" {
    complete_machine
    stand_in doxygen <<'END'
mkdir "$DTKHDDVD_DOCS/html"
echo '&lt;td class="markdownTableBodyNone"&gt;' > "$DTKHDDVD_DOCS/html/index.html"
END
    cp -R "$project/docs" "$tree"
    expect 1 docs
    expect_last_error 'run: these pages have a broken table or link: see above'
}
