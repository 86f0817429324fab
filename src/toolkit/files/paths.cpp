#include "toolkit/files/paths.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string_view>
#include <vector>

namespace corvane::toolkit {

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

std::wstring ProposedFileName(std::wstring name) {
    std::replace_if(
        name.begin(), name.end(),
        [](wchar_t character) {
            return character < L' ' ||
                   std::wstring_view(L"\"*/:<>?\\|").find(character) != std::wstring_view::npos;
        },
        L'_');
    return name;
}

namespace {

constexpr std::size_t kLongestPlainPath = 260;

bool IsSeparator(wchar_t character) {
    return character == L'\\' || character == L'/';
}

bool IsLetter(wchar_t character) {
    return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

// "C:\..."
bool StartsAtDrive(std::wstring_view path) {
    return path.size() >= 3 && IsLetter(path[0]) && path[1] == L':' && IsSeparator(path[2]);
}

// "\\server\...", but neither "\\?\..." nor "\\.\...".
bool StartsAtServer(std::wstring_view path) {
    return path.size() >= 3 && IsSeparator(path[0]) && IsSeparator(path[1]) && path[2] != L'?' &&
           path[2] != L'.' && !IsSeparator(path[2]);
}

// The names on the way, of which the first `rootSize` cannot be left by a "..".
std::vector<std::wstring_view> Steps(std::wstring_view path, std::size_t rootSize) {
    std::vector<std::wstring_view> steps;
    while (!path.empty()) {
        const std::size_t end = path.find_first_of(L"\\/");
        const std::wstring_view step = path.substr(0, end);
        path.remove_prefix(end == std::wstring_view::npos ? path.size() : end + 1);
        if (step == L"..") {
            if (steps.size() > rootSize) {
                steps.pop_back();
            }
        } else if (!step.empty() && step != L".") {
            steps.push_back(step);
        }
    }
    return steps;
}

}  // namespace

std::wstring LongPathForm(const std::wstring& path) {
    const bool isOnServer = StartsAtServer(path);
    if (path.size() < kLongestPlainPath || (!isOnServer && !StartsAtDrive(path))) {
        return path;
    }
    // A drive, or a server and its share.
    constexpr std::size_t kDriveSteps = 1;
    constexpr std::size_t kShareSteps = 2;
    std::wstring form = isOnServer ? L"\\\\?\\UNC" : L"\\\\?";
    for (const std::wstring_view step : Steps(path, isOnServer ? kShareSteps : kDriveSteps)) {
        form.append(1, L'\\').append(step);
    }
    return IsSeparator(path.back()) ? form + L'\\' : form;
}

}  // namespace corvane::toolkit
