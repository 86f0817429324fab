#include "tests/provider/needed_function.h"

extern "C" int NeededFunction() {
    return 1;
}
