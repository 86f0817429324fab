#include <windows.h>

#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kAnn[] = L"CN=Ann,C=GB";
constexpr wchar_t kBob[] = L"CN=Bob,C=GB";
constexpr wchar_t kCyd[] = L"CN=Cyd,C=GB";
constexpr wchar_t kAskForBob[] =
    L"No certificates found for user CN=Bob,C=GB.\r\nContinue to check other users?";

std::string SearchForOwner(const std::string& flags, const std::string& owner) {
    return "FindCert context=1 flags=" + flags + " mode=4 pattern=\"" + owner +
           "\" fields=28084 rest=zero -> 0";
}

class SelectionConfirming : public SelectionTest {
  protected:
    void ScriptEveryone() {
        for (const char* const owner : {"CN=Ann,C=GB", "CN=Bob,C=GB", "CN=Cyd,C=GB"}) {
            script.Certificate(LibraryScriptWriter::kEvery, owner);
        }
    }
    void NameList(const std::wstring& name) const { Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(name); }
};

TEST_F(SelectionConfirming, GivesTheLowerOwnersCheckedOrNotInTheOrderShown) {
    ScriptEveryone();
    OpenRecipients({kCyd, kAnn, kBob});
    Check(Chosen(), {1});
    ClickHeader(Chosen());
    ClickHeader(Chosen());
    EXPECT_EQ(Confirm(), HostResult(1, Texts{kCyd, kBob, kAnn}));
    ExpectNothingOut();
}

TEST_F(SelectionConfirming, AsksForEachOwnerInOrderWithTheNetworkStore) {
    ScriptEveryone();
    OpenRecipients({kBob, kAnn});
    EXPECT_EQ(Confirm(), HostResult(1, Texts{kBob, kAnn}));
    const std::vector<std::string> searches = Calls("FindCert");
    ASSERT_EQ(searches.size(), 3U);
    EXPECT_EQ(searches[1], SearchForOwner("4", "CN=Bob,C=GB"));
    EXPECT_EQ(searches[2], SearchForOwner("4", "CN=Ann,C=GB"));
}

TEST_F(SelectionConfirming, AsksWithoutTheNetworkStoreWhereItIsNotUsed) {
    setup.csProfile.notUseDirectory = 1;
    ScriptEveryone();
    OpenRecipients({kAnn});
    EXPECT_EQ(Confirm(), HostResult(1, Texts{kAnn}));
    EXPECT_EQ(Calls("FindCert"), std::vector<std::string>{SearchForOwner("0", "CN=Ann,C=GB")});
}

TEST_F(SelectionConfirming, AsksForSignersOfASignerList) {
    ScriptEveryone();
    OpenFirstList({{L"Board", {kAnn}}});
    EXPECT_EQ(Confirm(), HostResult(1, std::vector<store::SignerGroup>{{L"Board", {kAnn}}}));
    EXPECT_EQ(Calls("FindCert").back(), SearchForOwner("104", "CN=Ann,C=GB"));
}

TEST_F(SelectionConfirming, AnOwnerWithoutCertificateIsDroppedOnYes) {
    script.CertificateFor("CN=Ann,C=GB", "CN=Ann,C=GB");
    script.CertificateFor("CN=Cyd,C=GB", "cn=cyd,c=gb");
    OpenRecipients({kAnn, kBob, kCyd});
    Control(IDOK).PostClick();
    ExpectMessageBox(Dialog(), kAskForBob, kBoxQuestion, IDYES);
    EXPECT_EQ(ResultOfDialog(), HostResult(1, Texts{kAnn, kCyd}));
}

TEST_F(SelectionConfirming, NoKeepsEveryOwnerAndTheDialog) {
    script.CertificateFor("CN=Ann,C=GB", "CN=Ann,C=GB");
    OpenRecipients({kAnn, kBob, kCyd});
    Control(IDOK).PostClick();
    ExpectBox(kAskForBob, kBoxQuestion, IDNO);
    ExpectStaysOpen();
    Chosen().WaitForFocus();
    EXPECT_EQ(Chosen().Column(0), (Texts{kAnn, kBob, kCyd}));
    EXPECT_EQ(Found().RowCount(), 0);
}

TEST_F(SelectionConfirming, ACertificateThatCannotEncryptIsNoneForARecipient) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Bob,C=GB", 0x03);
    OpenRecipients({kBob});
    Control(IDOK).PostClick();
    ExpectMessageBox(Dialog(), kAskForBob, kBoxQuestion, IDYES);
    EXPECT_EQ(ResultOfDialog(), HostResult(1, store::TextList{}));
}

TEST_F(SelectionConfirming, AFailedSearchIsReportedAndStops) {
    ScriptEveryone();
    script.Status("FindCert", 3, 0xE0700050);
    script.ErrorText(0xE0700050, "No answer");
    OpenRecipients({kAnn, kBob, kCyd});
    Control(IDOK).PostClick();
    ExpectBox(L"Searching for certificate CN=Bob,C=GB.\r\nXSIG error 0xE0700050 - No answer.", kBoxReport,
              IDOK);
    ExpectStaysOpen();
    EXPECT_EQ(Calls("FindCert").size(), 3U);
    EXPECT_EQ(Chosen().Column(0), (Texts{kAnn, kBob, kCyd}));
}

TEST_F(SelectionConfirming, NoRecipientsAreAccepted) {
    OpenRecipients();
    EXPECT_EQ(Confirm(), HostResult(1, store::TextList{}));
}

TEST_F(SelectionConfirming, EnterConfirms) {
    ScriptEveryone();
    OpenRecipients({kAnn});
    Chosen().PostKey(VK_RETURN);
    EXPECT_EQ(ResultOfDialog(), HostResult(1, Texts{kAnn}));
}

TEST_F(SelectionConfirming, ASignerListNeedsAName) {
    ScriptEveryone();
    OpenNewList();
    Control(IDOK).PostClick();
    ExpectBox(L"No list name", kBoxRefusal, IDOK);
    ExpectStaysOpen();
    Control(IDC_SELECTION_LIST_NAME_EDIT).WaitForFocus();
    EXPECT_EQ(Calls("FindCert").size(), 1U);
}

TEST_F(SelectionConfirming, ASignerListNeedsANameOfItsOwn) {
    ScriptEveryone();
    OpenFirstList({{L"Board", {kAnn}}, {L"Staff", {kBob}}});
    NameList(L"Staff");
    Control(IDOK).PostClick();
    ExpectBox(L"List with this name already exists", kBoxRefusal, IDOK);
    // Lists are stored under their names, where letter case makes no difference.
    NameList(L"staff");
    Control(IDOK).PostClick();
    ExpectBox(L"List with this name already exists", kBoxRefusal, IDOK);
    NameList(L"Staff\\new");
    Control(IDOK).PostClick();
    ExpectBox(L"List name cannot contain the symbol '\\'", kBoxRefusal, IDOK);
    Control(IDC_SELECTION_LIST_NAME_EDIT).WaitForFocus();
    NameList(L"New staff");
    EXPECT_EQ(Confirm(),
              HostResult(1, std::vector<store::SignerGroup>{{L"New staff", {kAnn}}, {L"Staff", {kBob}}}));
}

TEST_F(SelectionConfirming, AnEditedListMayKeepItsName) {
    ScriptEveryone();
    OpenFirstList({{L"Board", {kAnn}}, {L"Staff", {kBob}}});
    EXPECT_EQ(Confirm(),
              HostResult(1, std::vector<store::SignerGroup>{{L"Board", {kAnn}}, {L"Staff", {kBob}}}));
}

TEST_F(SelectionConfirming, ASignerListNeedsSigners) {
    script.NothingFor("CN=Bob,C=GB");
    OpenNewList();
    NameList(L"Board");
    Control(IDOK).PostClick();
    ExpectBox(L"No users selected.", kBoxRefusal, IDOK);
    ExpectStaysOpen();
    Found().WaitForFocus();
}

TEST_F(SelectionConfirming, ASignerListWhoseSignersAreAllDroppedStaysOpen) {
    script.NothingFor("CN=Bob,C=GB");
    OpenFirstList({{L"Board", {kBob}}});
    Control(IDOK).PostClick();
    ExpectBox(kAskForBob, kBoxQuestion, IDYES);
    ExpectBox(L"No users selected.", kBoxRefusal, IDOK);
    ExpectStaysOpen();
    Found().WaitForFocus();
    EXPECT_EQ(Chosen().Column(0), Texts{kBob});
}

TEST_F(SelectionConfirming, SignersOfOtherListsAreExcludedAndReported) {
    ScriptEveryone();
    OpenFirstList({{L"Board", {kAnn}}, {L"Staff", {kBob}}});
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    Control(IDC_SELECTION_ADD_BUTTON).PostClick();
    ExpectWarningBox(Dialog(), L"Warning:",
                     L"Following signers are used in other lists and had been excluded:\r\n\r\n"
                     L"Signer\r\n\"CN=Bob,C=GB\"\r\nis used in list\r\n\"Staff\"\r\n\r\n");
    Dialog().WaitUntilEnabled();
    SettleDialog();
    EXPECT_EQ(Chosen().Column(0), (Texts{kAnn, kCyd}));
    EXPECT_EQ(Confirm(),
              HostResult(1, std::vector<store::SignerGroup>{{L"Board", {kAnn, kCyd}}, {L"Staff", {kBob}}}));
}

}  // namespace
}  // namespace corvane::test
