#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/standin/loaded/loaded_standin.h"

namespace corvane::standin {
namespace {

/// The worked example as text. A checkout gives it as UTF-16 with a byte order mark.
std::wstring ReadWorkedExample() {
    std::ifstream file(ToCodePage(PathFromEnvironment(L"WORKED_EXAMPLE")), std::ios::binary);
    const std::string bytes = {std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(bytes.substr(0, 2), "\xFF\xFE") << "not in the form that reg import takes";
    std::wstring text;
    for (std::size_t index = 2; index + 1 < bytes.size(); index += 2) {
        const auto low = static_cast<unsigned char>(bytes[index]);
        const auto high = static_cast<unsigned char>(bytes[index + 1]);
        text += static_cast<wchar_t>(low | (high << 8));
    }
    return text;
}

/// The data of the text values "<letter>0", "<letter>1" and so on.
std::vector<std::wstring> NumberedValues(const std::wstring& text, wchar_t letter) {
    std::vector<std::wstring> values;
    const std::wstring start = std::wstring(L"\r\n\"") + letter;
    for (std::size_t at = text.find(start); at != std::wstring::npos; at = text.find(start, at + 1)) {
        const std::size_t digit = at + start.size();
        const std::size_t afterDigits = text.find_first_not_of(L"0123456789", digit);
        constexpr std::wstring_view kMiddle = L"\"=\"";
        if (afterDigits == digit || text.compare(afterDigits, kMiddle.size(), kMiddle) != 0) {
            continue;
        }
        const std::size_t from = afterDigits + kMiddle.size();
        values.push_back(text.substr(from, text.find(L"\"\r\n", from) - from));
    }
    return values;
}

TEST(WorkedExample, EveryRecipientIsFoundWithACertificateForEncryption) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    const std::vector<std::wstring> recipients = NumberedValues(ReadWorkedExample(), L'C');
    EXPECT_GE(recipients.size(), 9U);
    for (const std::wstring& recipient : recipients) {
        std::vector<FoundCertificate> found;
        EXPECT_EQ(library.Search(context, 4, ToCodePage(recipient).c_str(), found), 0U)
            << ToCodePage(recipient);
        ASSERT_FALSE(found.empty());
        EXPECT_NE(found[0].usage & 0x1CU, 0U) << ToCodePage(recipient);
        EXPECT_EQ(found[0].owner, ToCodePage(recipient));
    }
}

TEST(WorkedExample, EverySignerIsFound) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    const std::vector<std::wstring> signers = NumberedValues(ReadWorkedExample(), L'S');
    EXPECT_GE(signers.size(), 9U);
    for (const std::wstring& signer : signers) {
        std::vector<FoundCertificate> found;
        EXPECT_EQ(library.Search(context, 0x104, ToCodePage(signer).c_str(), found), 0U)
            << ToCodePage(signer);
    }
}

}  // namespace
}  // namespace corvane::standin
