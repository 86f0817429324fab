#include "tests/toolkit/seams/needed_function.h"

extern "C" __declspec(dllexport) int NeededFunction() {
    return 1;
}
