#include "tests/provider/needed_function.h"

extern "C" __declspec(dllexport) int UserOfNeededFunction() {
    return NeededFunction();
}
