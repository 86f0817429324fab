#include <windows.h>

#include <algorithm>

#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kHelen[] = L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB";
constexpr wchar_t kErik[] = L"CN=Erik Sandberg,O=Lindholm Freight,C=SE";
constexpr wchar_t kGrace[] = L"CN=Grace Whitfield,O=Ferrow Insurance,C=US";
constexpr wchar_t kRuth[] = L"CN=Ruth Vale,O=Vale, Son and Partners,C=GB";
constexpr wchar_t kGateway[] = L"CN=Northgate Gateway,O=Northgate Clearing,C=GB";

/// The choice among real certificates.
class SelectionAmongCertificates : public SelectionTest {
  protected:
    [[nodiscard]] int RowOf(const std::wstring& owner) const {
        const Texts rows = Found().Column(0);
        const auto found = std::find(rows.begin(), rows.end(), owner);
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
    [[nodiscard]] auto CountOf(const std::wstring& owner) const {
        const Texts rows = Found().Column(0);
        return std::count(rows.begin(), rows.end(), owner);
    }
    void SearchNetworkStore(int field, const std::wstring& sample) const {
        Control(IDC_SELECTION_FROM_NCS_BUTTON).PostClick();
        const Window filter = Program().WaitForDialog(Dialog());
        filter.Control(IDC_FILTER_FIELD_COMBO).Send(CB_SETCURSEL, static_cast<WPARAM>(field));
        filter.Control(IDC_FILTER_SAMPLE_EDIT).SetText(sample);
        filter.Control(IDOK).PostClick();
        filter.WaitUntilGone();
        Dialog().WaitUntilEnabled();
        SettleDialog();
    }
};

TEST_F(SelectionAmongCertificates, RecipientsAreThoseWhoCanDecrypt) {
    OpenRecipients({}, Library::kStandIn);
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(CountOf(kHelen), 1);
    EXPECT_EQ(CountOf(kErik), 0);
    EXPECT_EQ(CountOf(kGrace), 0);
    EXPECT_EQ(CountOf(kRuth), 0);
}

TEST_F(SelectionAmongCertificates, SignersAreEverybody) {
    OpenNewList({}, Library::kStandIn);
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(CountOf(kHelen), 1);
    EXPECT_EQ(CountOf(kErik), 1);
    EXPECT_EQ(CountOf(kGrace), 0);
}

TEST_F(SelectionAmongCertificates, TheNetworkStoreIsSearchedByField) {
    OpenRecipients({}, Library::kStandIn);
    SearchNetworkStore(0, L"ruth*");
    EXPECT_EQ(Found().Column(0), Texts{kRuth});
    SearchNetworkStore(5, L"Northgate*");
    EXPECT_EQ(CountOf(kGateway), 1);
    EXPECT_EQ(CountOf(kHelen), 1);
    EXPECT_EQ(Found().Cell(0, 0), kRuth);
}

TEST_F(SelectionAmongCertificates, ChosenOwnersComeBackAndOneWhoCannotDecryptIsDropped) {
    OpenRecipients({kErik, kHelen}, Library::kStandIn);
    SearchNetworkStore(0, L"Ruth Vale");
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    Press(IDC_SELECTION_ADD_BUTTON);
    Control(IDOK).PostClick();
    ExpectMessageBox(
        Dialog(),
        std::wstring(L"No certificates found for user ") + kErik + L".\r\nContinue to check other users?",
        kBoxQuestion, IDYES);
    EXPECT_EQ(ResultOfDialog(), HostResult(1, Texts{kHelen, kRuth}));
}

TEST_F(SelectionAmongCertificates, AnOwnerWhoseCertificateHasExpiredIsAFailedSearch) {
    OpenRecipients({kGrace, kHelen}, Library::kStandIn);
    Control(IDOK).PostClick();
    ExpectBox(std::wstring(L"Searching for certificate ") + kGrace +
                  L".\r\nXSIG error 0xE0700046 - Nothing was found.",
              kBoxReport, IDOK);
    ExpectStaysOpen();
    EXPECT_EQ(Chosen().RowCount(), 2);
}

}  // namespace
}  // namespace corvane::test
