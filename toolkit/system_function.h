#pragma once

#include <windows.h>

#include <cstring>

namespace toolkit {

/// Finds an exported function of a loaded module; null where it is missing or there is no module.
template <typename Function>
[[nodiscard]] Function FindFunction(HMODULE module, const char* name) {
    const FARPROC found = module != nullptr ? GetProcAddress(module, name) : nullptr;
    // A copy, because a cast between unrelated function types is what the compiler rightly warns of.
    Function function = nullptr;
    static_assert(sizeof function == sizeof found);
    std::memcpy(&function, &found, sizeof function);
    return function;
}

/// Finds a function that not every supported Windows has, in a module that is loaded already.
template <typename Function>
[[nodiscard]] Function FindSystemFunction(const wchar_t* moduleName, const char* name) {
    return FindFunction<Function>(GetModuleHandleW(moduleName), name);
}

}  // namespace toolkit
