# Prepares the public header for Doxygen, which wants a comment at each declaration where the header has one for several.

# The forms of a function for one back end are explained once, above the functions.
/^DFBResult [A-Za-z_]+_(SW|HW)\(/ { skipping = 1 }
skipping { if (/;/) skipping = 0; next }

/^typedef struct [A-Za-z]+_data / { print "/** Private. */" }

# A slot of a record is documented with the function of its name.
/^struct [A-Za-z]+ \{/ { record = $2 }
/^    DFBResult \(\*/ { match($0, /[A-Z][A-Za-z]+\)/); print "/** " record "_" substr($0, RSTART, RLENGTH - 1) "(). */" }
/^    int x[0-3], y[0-3];/ { print "/** A corner. */ int " substr($2, 1, 2) "; /** A corner. */ int " $3; next }

# Declarations without a comment of their own share the one before.
/^(extern |#define DTKHDDVD_VERSION_)/ {
    gsub(/, /, ";\n/** As before. */\nextern int ")
    if (was_declaration)
        print "/** As before. */"
}
{ was_declaration = /^(extern |#define DTKHDDVD_VERSION_)/; print }
