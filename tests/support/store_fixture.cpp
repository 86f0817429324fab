#include "tests/support/store_fixture.h"

namespace corvane::test {

std::vector<std::wstring> StoreFixture::ReportTexts() const {
    std::vector<std::wstring> texts;
    for (const ShownBox& box : reports.presenter.Boxes()) {
        texts.push_back(box.text);
    }
    return texts;
}

std::wstring ReportText(const std::wstring& operation, std::uint32_t code) {
    std::wstring digits;
    for (std::uint32_t rest = code; rest != 0 || digits.empty(); rest /= 16) {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[rest % 16]);
    }
    return operation + L".\r\nError 0x" + digits + L" - System text " + std::to_wstring(code) + L".";
}

}  // namespace corvane::test
