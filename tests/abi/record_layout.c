#include <dtkhddvd.h>
#include <stddef.h>
#include <stdio.h>

/* The records as callers in C see them: every field is one pointer wide, and this is their order. */
struct Field {
    const char *name;
    size_t offset;
};

static const struct Field toolkit_fields[] = {
    {"priv", offsetof(DTKHDDVD, priv)},
    {"magic", offsetof(DTKHDDVD, magic)},
    {"AddRef", offsetof(DTKHDDVD, AddRef)},
    {"Release", offsetof(DTKHDDVD, Release)},
    {"SetStrokeColor", offsetof(DTKHDDVD, SetStrokeColor)},
    {"SetFillColor", offsetof(DTKHDDVD, SetFillColor)},
    {"SetFillPattern", offsetof(DTKHDDVD, SetFillPattern)},
    {"CreatePen", offsetof(DTKHDDVD, CreatePen)},
    {"SetPen", offsetof(DTKHDDVD, SetPen)},
    {"Line", offsetof(DTKHDDVD, Line)},
    {"Rectangle", offsetof(DTKHDDVD, Rectangle)},
    {"Polygon", offsetof(DTKHDDVD, Polygon)},
    {"Ellipse", offsetof(DTKHDDVD, Ellipse)},
    {"the end", sizeof(DTKHDDVD)},
};

static const struct Field pen_fields[] = {
    {"priv", offsetof(DTKHDDVDPen, priv)},
    {"magic", offsetof(DTKHDDVDPen, magic)},
    {"AddRef", offsetof(DTKHDDVDPen, AddRef)},
    {"Release", offsetof(DTKHDDVDPen, Release)},
    {"GetSize", offsetof(DTKHDDVDPen, GetSize)},
    {"GetSurface", offsetof(DTKHDDVDPen, GetSurface)},
    {"GetShape", offsetof(DTKHDDVDPen, GetShape)},
    {"the end", sizeof(DTKHDDVDPen)},
};

static const size_t header_version =
    DTKHDDVD_VERSION_MAJOR * 10000 + DTKHDDVD_VERSION_MINOR * 100 + DTKHDDVD_VERSION_MICRO;

static int misplaced(const char *record, const struct Field *fields, size_t count)
{
    int found = 0;
    size_t i;
    for (i = 0; i < count; ++i) {
        if (fields[i].offset == i * sizeof(void *))
            continue;
        printf("%s: %s is at %u, not at word %u\n", record, fields[i].name, (unsigned int) fields[i].offset,
               (unsigned int) i);
        ++found;
    }
    return found;
}

static int check(const char *what, size_t value, size_t expected)
{
    if (value == expected)
        return 0;
    printf("%s is %u, not %u\n", what, (unsigned int) value, (unsigned int) expected);
    return 1;
}

int main(void)
{
    int failures = misplaced("DTKHDDVD", toolkit_fields, sizeof(toolkit_fields) / sizeof(toolkit_fields[0]));
    failures += misplaced("DTKHDDVDPen", pen_fields, sizeof(pen_fields) / sizeof(pen_fields[0]));
    failures += check("the size of DTKHDDVDPenShape", sizeof(DTKHDDVDPenShape), 32);
    failures += check("the place of x3", offsetof(DTKHDDVDPenShape, x3), 24);
    failures += check("the size of the batch", sizeof(batch_rectangles), 64 * 16);
    failures += check("the points of the batch", sizeof(batch_points), 64 * 8);
    failures += check("DTKHDDVD_STROKE", DTKHDDVD_STROKE, 1);
    failures += check("DTKHDDVD_FILL", DTKHDDVD_FILL, 2);
    failures += check("DTKHDDVD_FAILURE", DTKHDDVD_FAILURE, 1);
    failures += check("DTKHDDVD_INIT", DTKHDDVD_INIT, 2);
    failures += check("DTKHDDVD_UNSUPPORTED", DTKHDDVD_UNSUPPORTED, 5);
    failures += check("DTKHDDVD_INVARG", DTKHDDVD_INVARG, 8);
    failures += check("DTKHDDVD_THIZNULL", DTKHDDVD_THIZNULL, 20);
    failures += check("the version", header_version, BUILT_VERSION);
    return failures != 0;
}
