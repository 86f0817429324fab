#include <windows.h>

#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

constexpr int kCommonName = 0;
constexpr int kOrganization = 5;
constexpr int kEntireName = 9;

class SelectionFilter : public SelectionTest {
  protected:
    void OpenFilter() {
        Control(IDC_SELECTION_FROM_NCS_BUTTON).PostClick();
        filter_ = Program().WaitForDialog(Dialog());
    }
    [[nodiscard]] const Window& FilterDialog() const { return filter_; }
    [[nodiscard]] Window Fields() const { return filter_.Control(IDC_FILTER_FIELD_COMBO); }
    void ChooseField(int field) const { Fields().Send(CB_SETCURSEL, static_cast<WPARAM>(field)); }
    void WriteSample(const std::wstring& text) const {
        filter_.Control(IDC_FILTER_SAMPLE_EDIT).SetText(text);
        filter_.Send(WM_NULL);
    }
    [[nodiscard]] bool IsOkEnabled() const { return filter_.Control(IDOK).IsEnabled(); }
    /// Confirms the filter and waits until the search is through.
    void Search(int field, const std::wstring& sample) {
        ChooseField(field);
        WriteSample(sample);
        filter_.Control(IDOK).PostClick();
        filter_.WaitUntilGone();
        Dialog().WaitUntilEnabled();
        SettleDialog();
    }

  private:
    Window filter_;
};

std::string SearchByPattern(const std::string& flags, const std::string& pattern) {
    return "FindCert context=1 flags=" + flags + " mode=4 pattern=\"" + pattern +
           "\" fields=84 rest=zero -> 0";
}

TEST_F(SelectionFilter, OpensWithItsTextsAndNothingChosen) {
    OpenRecipients();
    OpenFilter();
    EXPECT_EQ(FilterDialog().Text(), L"Filter");
    EXPECT_EQ(FilterDialog().Control(IDC_FILTER_FIELD_LABEL).Text(), L"Search field:");
    EXPECT_EQ(FilterDialog().Control(IDC_FILTER_SAMPLE_LABEL).Text(),
              L"Type sample for certificate owner search\r\n(* represents any symbol):");
    EXPECT_EQ(FilterDialog().Control(IDOK).Text(), L"OK");
    EXPECT_EQ(FilterDialog().Control(IDCANCEL).Text(), L"Exit");
    EXPECT_EQ(Fields().Send(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(FilterDialog().Control(IDC_FILTER_SAMPLE_EDIT).Text(), L"");
    EXPECT_FALSE(IsOkEnabled());
    Fields().WaitForFocus();
}

TEST_F(SelectionFilter, OffersTheFieldsAndTheEntireName) {
    OpenRecipients();
    OpenFilter();
    EXPECT_EQ(Fields().Send(CB_GETCOUNT), kEntireName + 1);
    std::wstring last(static_cast<std::size_t>(Fields().Send(CB_GETLBTEXTLEN, kEntireName)) + 1, L'\0');
    Fields().Send(CB_GETLBTEXT, kEntireName, reinterpret_cast<LPARAM>(last.data()));
    last.pop_back();
    EXPECT_EQ(last, L"<Search by entire name>");
}

TEST_F(SelectionFilter, OkIsEnabledByASampleThatSaysSomething) {
    OpenRecipients();
    OpenFilter();
    for (const wchar_t* const sample : {L"a", L"*", L" x ", L"**b"}) {
        WriteSample(sample);
        EXPECT_TRUE(IsOkEnabled()) << Utf8(sample);
    }
    for (const wchar_t* const sample : {L"", L"  **  ", L"**", L" ", L"* ", L"\t*"}) {
        WriteSample(sample);
        EXPECT_FALSE(IsOkEnabled()) << Utf8(sample);
    }
}

TEST_F(SelectionFilter, EnterDoesNothingWhileOkIsDisabled) {
    OpenRecipients();
    OpenFilter();
    ChooseField(kCommonName);
    FilterDialog().Control(IDC_FILTER_SAMPLE_EDIT).PostKey(VK_RETURN);
    FilterDialog().Send(WM_NULL);
    EXPECT_TRUE(FilterDialog().IsLive() && FilterDialog().IsEnabled());
}

TEST_F(SelectionFilter, OkWithoutAFieldAsksForOneAndDropsTheListDown) {
    OpenRecipients();
    OpenFilter();
    WriteSample(L"Iva*");
    FilterDialog().Control(IDOK).PostClick();
    ExpectMessageBox(FilterDialog(), L"Select field for filter", kBoxRefusal, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return Fields().Send(CB_GETDROPPEDSTATE) != 0; }));
    EXPECT_TRUE(FilterDialog().IsLive());
    Fields().Send(CB_SHOWDROPDOWN, FALSE);
    ChooseField(kCommonName);
    FilterDialog().Control(IDOK).PostClick();
    FilterDialog().WaitUntilGone();
}

TEST_F(SelectionFilter, AFieldSearchAsksForKeyAndTrimmedSample) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Ivanov,C=RU");
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Signer,C=RU", 0x03);
    OpenRecipients();
    OpenFilter();
    Search(kCommonName, L"  Iva*  ");
    EXPECT_EQ(Calls("FindCert").back(), SearchByPattern("E04", "CN=Iva*"));
    EXPECT_EQ(Found().Column(0), Texts{L"CN=Ivanov,C=RU"});
    OpenFilter();
    EXPECT_EQ(Fields().Send(CB_GETCURSEL), CB_ERR);
    Search(kOrganization, L"*");
    EXPECT_EQ(Calls("FindCert").back(), SearchByPattern("E04", "O=*"));
}

TEST_F(SelectionFilter, TheEntireNameIsThePatternAndAStarAloneMeansEverybody) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Ivanov,C=RU", 0x03);
    OpenNewList();
    OpenFilter();
    Search(kEntireName, L"CN=Iva*,*");
    EXPECT_EQ(Calls("FindCert").back(), SearchByPattern("F04", "CN=Iva*,*"));
    EXPECT_EQ(Found().Column(0), Texts{L"CN=Ivanov,C=RU"});
    OpenFilter();
    Search(kEntireName, L"*");
    EXPECT_EQ(Calls("FindCert").back(), SearchByPattern("F04", "*=*"));
    EXPECT_EQ(Found().RowCount(), 1);
}

TEST_F(SelectionFilter, ASearchWithoutResultSaysSo) {
    script.Status("FindCert", 2, 0xE0700046);
    script.Nothing(3);
    OpenRecipients();
    for (int turn = 0; turn < 2; ++turn) {
        OpenFilter();
        ChooseField(kCommonName);
        WriteSample(L"x");
        FilterDialog().Control(IDOK).PostClick();
        FilterDialog().WaitUntilGone();
        ExpectBox(L"No certificates found for your request", kBoxRefusal, IDOK);
        ExpectStaysOpen();
    }
}

TEST_F(SelectionFilter, AFailedSearchIsReportedAndKeepsTheList) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Ivanov,C=RU");
    script.Status("FindCert", 3, 0xE0700041);
    script.ErrorText(0xE0700041, "The network certificate store does not answer");
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    OpenFilter();
    ChooseField(kCommonName);
    WriteSample(L"Iva*");
    FilterDialog().Control(IDOK).PostClick();
    FilterDialog().WaitUntilGone();
    ExpectBox(
        L"Searching for certificate CN=Iva*.\r\nXSIG error 0xE0700041 - The network certificate store does "
        L"not answer.",
        kBoxReport, IDOK);
    ExpectStaysOpen();
    EXPECT_EQ(Found().Column(0), Texts{L"CN=Ivanov,C=RU"});
}

TEST_F(SelectionFilter, CancelSearchesNothing) {
    OpenRecipients();
    OpenFilter();
    ChooseField(kCommonName);
    WriteSample(L"x");
    FilterDialog().FocusOfThread().PostKey(VK_ESCAPE);
    FilterDialog().WaitUntilGone();
    Dialog().WaitUntilEnabled();
    ExpectStaysOpen();
    EXPECT_EQ(Calls("FindCert").size(), 1U);
}

}  // namespace
}  // namespace corvane::test
