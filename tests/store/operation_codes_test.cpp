#include "store/records.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvane::test {
namespace {

const std::vector<std::pair<std::wstring, std::wstring>> kTable = {
    {L"ENCR", L"Encrypt"},
    {L"DECR", L"Decrypt"},
    {L"HASH", L"Hash file"},
    {L"B64E", L"Encode b64"},
    {L"B64D", L"Decode b64"},
    {L"SIGN", L"Attached signature"},
    {L"CHCK", L"Verify attached signature"},
    {L"CHKX", L"Verify and delete attached signature"},
    {L"MOVE", L"Move"},
    {L"DELE", L"Delete"},
    {L"LENC", L"Encrypt long file"},
    {L"LDEC", L"Decrypt long file"},
    {L"CDSG", L"Create detached signature"},
    {L"DSIG", L"Add detached signature"},
    {L"DCHK", L"Verify detached signature"},
    {L"DELS", L"Delete signatures without verification"},
    {L"RESG", L"Resign"},
    {L"SGEN", L"Create attached signature and encrypt"},
    {L"DCCX", L"Decrypt, verify and delete attached signatures"},
    {L"ARCH", L"Archivate file"},
    {L"UNAR", L"Unarchivate file"},
    {L"PACK", L"Pack files"},
    {L"UNPK", L"Unpack files"},
    {L"EXEC", L"Execute"},
};

TEST(OperationCodes, StandInTableOrderWithTheirNames) {
    const store::TextList codes = store::SplitEntries(store::OperationCode);
    const store::TextList names = store::SplitEntries(store::kOperationNames);
    ASSERT_EQ(codes.size(), kTable.size());
    ASSERT_EQ(names.size(), kTable.size());
    for (std::size_t index = 0; index < kTable.size(); ++index) {
        EXPECT_EQ(codes[index], kTable[index].first) << "code " << index;
        EXPECT_EQ(names[index], kTable[index].second) << "name " << index;
    }
}

TEST(OperationCodes, EveryCodeIsShownByItsName) {
    for (const auto& [code, name] : kTable) {
        EXPECT_EQ(store::OperationDisplayName(code), name);
    }
}

TEST(OperationCodes, ATextThatIsNoCodeIsShownAsItIs) {
    for (const wchar_t* text : {L"", L"ENC", L"encr", L"ENCRY", L"XXXX", L"NCR\n", L"Encrypt"}) {
        EXPECT_EQ(store::OperationDisplayName(text), text);
    }
}

TEST(OperationCodes, OnlyArchAndUnarHaveAnArchiveFormatThatIsNeverZero) {
    for (const auto& [code, name] : kTable) {
        EXPECT_EQ(store::IsArchiveOperation(code), code == L"ARCH" || code == L"UNAR");
    }
}

}  // namespace
}  // namespace corvane::test
