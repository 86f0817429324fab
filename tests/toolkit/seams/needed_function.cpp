#include "tests/toolkit/seams/needed_function.h"

extern "C" int NeededFunction() {
    return 1;
}
