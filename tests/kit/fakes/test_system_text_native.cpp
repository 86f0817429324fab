#include "tests/kit/fakes/test_system_text.h"

#include <iconv.h>
#include <clocale>
#include <cwctype>
#include <memory>
#include <stdexcept>
#include <type_traits>

namespace corvane::test {

namespace {

// One conversion, from one character set to another.
class Converter {
  public:
    Converter(const char* from, const char* to) : handle_(iconv_open(to, from)) {
        if (handle_ == reinterpret_cast<iconv_t>(-1)) {  // NOLINT(performance-no-int-to-ptr)
            throw std::runtime_error(std::string("No conversion from ") + from + " to " + to);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    Converter(Converter&&) = delete;
    Converter& operator=(Converter&&) = delete;
    ~Converter() { iconv_close(handle_); }

    // Converts one character made of `bytes`; empty when that is no character of the set.
    [[nodiscard]] std::string Convert(std::string bytes) const {
        char result[8] = {};
        char* in = bytes.data();
        char* out = result;
        std::size_t inLeft = bytes.size();
        std::size_t outLeft = sizeof result;
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        const bool isWhole =
            iconv(handle_, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1) && inLeft == 0;
        return isWhole ? std::string(result, sizeof result - outLeft) : std::string();
    }

  private:
    iconv_t handle_;
};

constexpr const char* kWideSet = "UTF-16LE";

const char* SetName(CodePage codePage) {
    switch (codePage) {
        case CodePage::kShiftJis:
            return "CP932";
        case CodePage::kCyrillic:
            return "CP1251";
        case CodePage::kLatin:
            return "CP1252";
        case CodePage::kUtf8:
            break;
    }
    return "UTF-8";
}

std::string BytesOf(std::wstring_view units) {
    std::string bytes;
    for (const wchar_t unit : units) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>((unit >> 8) & 0xFF);
    }
    return bytes;
}

std::wstring UnitsOf(std::string_view bytes) {
    std::wstring units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        units += static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) |
                                      (static_cast<unsigned char>(bytes[i + 1]) << 8U));
    }
    return units;
}

bool IsSurrogatePair(std::wstring_view text) {
    return text.size() >= 2 && text[0] >= 0xD800 && text[0] <= 0xDBFF && text[1] >= 0xDC00 &&
           text[1] <= 0xDFFF;
}

struct LocaleFreer {
    void operator()(locale_t locale) const { freelocale(locale); }
};

using OwnedLocale = std::unique_ptr<std::remove_pointer_t<locale_t>, LocaleFreer>;

OwnedLocale UnicodeLocale() {
    OwnedLocale locale(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr));
    if (!locale) {
        throw std::runtime_error("No locale C.UTF-8");
    }
    return locale;
}

}  // namespace

std::string TestSystemText::Narrow(std::wstring_view text) const {
    const Converter converter(kWideSet, SetName(codePage_));
    const std::string replacement = codePage_ == CodePage::kUtf8 ? "\xEF\xBF\xBD" : "?";
    std::string narrow;
    while (!text.empty()) {
        const std::size_t length = IsSurrogatePair(text) ? 2 : 1;
        std::string converted = converter.Convert(BytesOf(text.substr(0, length)));
        for (std::size_t i = 0; converted.empty() && i < length; ++i) {
            narrow += replacement;
        }
        narrow += converted;
        text.remove_prefix(length);
    }
    return narrow;
}

std::wstring TestSystemText::Widen(std::string_view text) const {
    constexpr std::size_t kLongestCharacterBytes = 4;
    const Converter converter(SetName(codePage_), kWideSet);
    std::wstring wide;
    while (!text.empty()) {
        std::size_t length = 1;
        std::string converted = converter.Convert(std::string(text.substr(0, length)));
        while (converted.empty() && length < kLongestCharacterBytes && length < text.size()) {
            ++length;
            converted = converter.Convert(std::string(text.substr(0, length)));
        }
        if (converted.empty()) {
            length = 1;
            wide += codePage_ == CodePage::kUtf8
                        ? L'\xFFFD'
                        : static_cast<wchar_t>(static_cast<unsigned char>(text.front()));
        }
        wide += UnitsOf(converted);
        text.remove_prefix(length);
    }
    return wide;
}

std::wstring TestSystemText::UpperCase(std::wstring_view text) const {
    const OwnedLocale locale = UnicodeLocale();
    std::wstring upper(text);
    for (wchar_t& unit : upper) {
        unit = static_cast<wchar_t>(towupper_l(static_cast<std::wint_t>(unit), locale.get()));
    }
    return upper;
}

std::wstring TestSystemText::LowerCase(std::wstring_view text) const {
    const OwnedLocale locale = UnicodeLocale();
    std::wstring lower(text);
    for (wchar_t& unit : lower) {
        unit = static_cast<wchar_t>(towlower_l(static_cast<std::wint_t>(unit), locale.get()));
    }
    return lower;
}

}  // namespace corvane::test
