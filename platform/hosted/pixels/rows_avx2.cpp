// Compiled with AVX2, so nothing in here may be shared with code for older processors.
#include "rows.h"

#include "row_loops.h"

const Rows avx2_rows = compiled_rows;
