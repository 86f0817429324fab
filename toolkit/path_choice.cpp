#include "toolkit/path_choice.h"

#include <array>
#include <cstdio>

namespace toolkit {

namespace {

constexpr std::uint32_t kNotEnoughMemory = 8;
constexpr std::uint32_t kBufferOverflow = 111;
constexpr std::uint32_t kInvalidName = 123;
constexpr std::uint32_t kInternalError = 1359;

std::uint32_t CodeOfCommonDialogError(std::uint32_t commonDialogError) {
    switch (commonDialogError) {
        case 0x0009:  // No memory for the dialog's own records,
        case 0x000A:  // to lock what was handed in,
        case 0x3001:  // or to subclass a list.
            return kNotEnoughMemory;
        case kCommonDialogInvalidFileName:
            return kInvalidName;
        case 0x3003:  // The buffer has no room for the chosen name.
            return kBufferOverflow;
        default:
            return kInternalError;
    }
}

}  // namespace

DialogFailure CommonDialogFailure(std::uint32_t commonDialogError) {
    std::array<char, 64> detail{};
    std::snprintf(detail.data(), detail.size(), "common dialog error 0x%X",
                  static_cast<unsigned>(commonDialogError));
    return {kShowFileDialogOperation, detail.data(), CodeOfCommonDialogError(commonDialogError)};
}

}  // namespace toolkit
