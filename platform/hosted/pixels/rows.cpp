#include "rows.h"

#include "row_loops.h"

const Rows baseline_rows = compiled_rows;

const Rows* choose_rows()
{
#if (defined __x86_64__ || defined __i386__) && !defined ZUVO_WITHOUT_AVX2
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx2"))
        return &avx2_rows;
#endif
    return &baseline_rows;
}
