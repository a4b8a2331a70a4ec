/// Stands in front of the compiler's functions for doubles, by the linker's option --wrap. All that there are on a
/// target without floating point have a counter here; CMakeLists.txt has the same names.
#include "targets/counted_doubles.h"

static unsigned long operations;

unsigned long targets::counted_doubles()
{
    return operations;
}

#define OF_TWO(result, name) \
    result __real_##name(double, double); \
    result __wrap_##name(double one, double other) \
    { \
        ++operations; \
        return __real_##name(one, other); \
    }

#define OF_ONE(result, name, argument) \
    result __real_##name(argument); \
    result __wrap_##name(argument value) \
    { \
        ++operations; \
        return __real_##name(value); \
    }

extern "C" {
OF_TWO(double, __aeabi_dadd)
OF_TWO(double, __aeabi_dsub)
OF_TWO(double, __aeabi_drsub)
OF_TWO(double, __aeabi_dmul)
OF_TWO(double, __aeabi_ddiv)
OF_TWO(int, __aeabi_dcmpeq)
OF_TWO(int, __aeabi_dcmplt)
OF_TWO(int, __aeabi_dcmple)
OF_TWO(int, __aeabi_dcmpge)
OF_TWO(int, __aeabi_dcmpgt)
OF_TWO(int, __aeabi_dcmpun)
OF_ONE(int, __aeabi_d2iz, double)
OF_ONE(unsigned, __aeabi_d2uiz, double)
OF_ONE(long long, __aeabi_d2lz, double)
OF_ONE(unsigned long long, __aeabi_d2ulz, double)
OF_ONE(float, __aeabi_d2f, double)
OF_ONE(double, __aeabi_f2d, float)
OF_ONE(double, __aeabi_i2d, int)
OF_ONE(double, __aeabi_ui2d, unsigned)
OF_ONE(double, __aeabi_l2d, long long)
OF_ONE(double, __aeabi_ul2d, unsigned long long)
}
