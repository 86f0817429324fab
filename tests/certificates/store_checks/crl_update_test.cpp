#include "certificates/store_checks/crl_update.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "store/registry/registry_access.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CrlUpdate : public CertsFixture {
  protected:
    CrlUpdate() {
        csProfile_.name = L"main";
        csProfile_.crlUpdatePeriod = 24;
        registry_.PutKey(kProgramKeyPath);
        Reports().provider.SetErrorText(0xE0700001, "No route.");
    }

    bool Update() {
        const certificates::Cryptocontext context = OpenContext();
        return certificates::UpdateCrlIfDue(owner_, csProfile_, context, services_);
    }

    void Store(const std::vector<std::wstring>& entries) {
        registry_.PutTextList(kProgramKeyPath, L"LastCrlUpdate", entries);
    }

    // What the list holds, read back by the access layer.
    corvane::store::TextList Stored() {
        corvane::store::TextList entries;
        store::RegistryAccess access(registry_, Reporter());
        EXPECT_EQ(access.OpenKey(kProgramKeyPath), 0U);
        EXPECT_TRUE(access.ReadStringList(L"LastCrlUpdate", entries, nullptr));
        return entries;
    }

    store::CsProfile csProfile_;
};

TEST_F(CrlUpdate, LoadsTheListsIntoAnEmptyBufferOf1024Bytes) {
    EXPECT_TRUE(Update());
    EXPECT_THAT(sessions_.Controls(),
                ElementsAre(ControlCall{ScriptedSessions::kFirstContext, 4, 1024, true}));
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600000000"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CrlUpdate, DoesNothingBeforeThePeriodHasPassed) {
    Store({L"main;;" + std::to_wstring(clock_.seconds - (23 * 3600 + 59 * 60))});
    const RegistrySnapshot before = registry_.Snapshot();
    EXPECT_TRUE(Update());
    EXPECT_THAT(sessions_.Controls(), IsEmpty());
    EXPECT_EQ(registry_.Snapshot(), before);
}

TEST_F(CrlUpdate, RunsExactlyAfterThePeriod) {
    Store({L"main;;" + std::to_wstring(clock_.seconds - 86'400)});
    EXPECT_TRUE(Update());
    EXPECT_EQ(sessions_.Controls().size(), 1U);
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600000000"));
}

TEST_F(CrlUpdate, TwoCsProfilesLeaveTwoEntriesInTheOrderOfTheirFirstRefresh) {
    EXPECT_TRUE(Update());
    csProfile_.name = L"alpha";
    EXPECT_TRUE(Update());
    csProfile_.name = L"main";
    clock_.seconds += 360'000;
    EXPECT_TRUE(Update());
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600360000", L"alpha;;1600000000"));
}

TEST_F(CrlUpdate, EntriesOfOtherShapesStay) {
    Store({L"main", L"what;;is;;this", L";;"});
    EXPECT_TRUE(Update());
    EXPECT_THAT(Stored(), ElementsAre(L"main", L"what;;is;;this", L";;", L"main;;1600000000"));
}

TEST_F(CrlUpdate, OfDoubledEntriesTheLastOneIsReplaced) {
    Store({L"main;;1", L"main;;2", L"x;;3"});
    EXPECT_TRUE(Update());
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1", L"main;;1600000000", L"x;;3"));
}

TEST_F(CrlUpdate, TheTimeAfter2038IsWrittenWhole) {
    clock_.seconds = 4'300'000'000;
    EXPECT_TRUE(Update());
    EXPECT_THAT(Stored(), ElementsAre(L"main;;4300000000"));
    EXPECT_TRUE(Update());
    EXPECT_EQ(sessions_.Controls().size(), 2U) << "and read back wrongly, so that it is due again";
}

TEST_F(CrlUpdate, AClockBefore1970IsWrittenWithItsSign) {
    clock_.seconds = -5;
    EXPECT_TRUE(Update());
    EXPECT_THAT(Stored(), ElementsAre(L"main;;-5"));
}

TEST_F(CrlUpdate, AKeyThatCannotBeOpenedStops) {
    registry_.FailCall(0, 5);
    EXPECT_FALSE(Update());
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{owner_,
                                              L"Create (open) register key "
                                              L"HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarntray.\r\n"
                                              L"Error 0x5 - System text 5.",
                                              reporting::AppTitle, reporting::kErrorStyle}));
    EXPECT_THAT(sessions_.Controls(), IsEmpty());
}

TEST_F(CrlUpdate, AKeyThatIsMissingStopsAndIsNotMade) {
    MemoryRegistry empty;
    const certificates::CertServices services{sessions_, Reporter(), warnings_, empty,
                                              clock_,    input_,     opening_};
    const certificates::Cryptocontext context = OpenContext();
    EXPECT_FALSE(certificates::UpdateCrlIfDue(owner_, csProfile_, context, services));
    EXPECT_FALSE(empty.HasKey(kProgramKeyPath));
    ASSERT_EQ(empty.Calls().size(), 1U);
    EXPECT_EQ(empty.Calls()[0].operation, RegistryOperation::kOpen);
    EXPECT_EQ(empty.Calls()[0].access, store::kReadWriteAccess);
}

TEST_F(CrlUpdate, AValueOfAnotherTypeIsReportedAndCountsAsEmpty) {
    registry_.PutNumber(kProgramKeyPath, L"LastCrlUpdate", 7);
    EXPECT_TRUE(Update());
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].text,
              L"Reading multistring value 'LastCrlUpdate' from register.\r\nError 0xD - System text 13.");
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600000000"));
}

TEST_F(CrlUpdate, APlainTextIsAListOfOne) {
    registry_.PutText(kProgramKeyPath, L"LastCrlUpdate", L"main;;1600000000");
    EXPECT_TRUE(Update());
    EXPECT_THAT(sessions_.Controls(), IsEmpty());
}

TEST_F(CrlUpdate, AReadThatFailsIsReportedAndTheEntryIsAppended) {
    registry_.FailCall(1, 5);
    EXPECT_TRUE(Update());
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(sessions_.Controls().size(), 1U);
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600000000"));
}

TEST_F(CrlUpdate, AWriteThatFailsIsReportedAndTheContextGoesOn) {
    registry_.FailCalls([](const RegistryCall& call) { return call.operation == RegistryOperation::kSet; },
                        112);
    EXPECT_TRUE(Update());
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].text,
              L"Writing multistring value 'LastCrlUpdate' into register.\r\nError 0x70 - System text 112.");
}

TEST_F(CrlUpdate, AFailureWithoutDiagnosisIsSilentAndRecorded) {
    sessions_.controlStatus = 0xE0700001;
    EXPECT_TRUE(Update());
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(warnings_.warnings, IsEmpty());
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600000000"));
}

TEST_F(CrlUpdate, ASuccessWithDiagnosisIsSilent) {
    sessions_.controlText = "all well";
    EXPECT_TRUE(Update());
    EXPECT_THAT(warnings_.warnings, IsEmpty());
}

TEST_F(CrlUpdate, AFailureIsExplainedWithTheDiagnosisInsteadOfTheErrorStack) {
    sessions_.controlStatus = 0xE0700001;
    sessions_.controlText = "http://a \xCE\xF8";
    Reports().provider.PushError(ScriptedSessions::kFirstContext, {"t", "f", 1, "d"});
    EXPECT_TRUE(Update());
    EXPECT_THAT(warnings_.warnings,
                ElementsAre(ShownWarning{nullptr,
                                         L"Connetion to CRL distribution point.\r\n"
                                         L"XSIG error 0xE0700001 - No route.\r\n\r\nhttp://a \x041E\x0448",
                                         L"", certificates::WarningMode::kWarning}));
    EXPECT_THAT(Boxes(),
                ElementsAre(ShownBox{owner_, L"No route (0xE0700001).\r\nContinue without loading CRL?",
                                     reporting::AppTitle, reporting::kContinueStyle}));
    EXPECT_EQ(Reports().provider.ErrorLineCalls(), 0U);
}

TEST_F(CrlUpdate, CancelStopsButTheTimeIsRecorded) {
    sessions_.controlStatus = 0xE0700001;
    sessions_.controlText = "x";
    Reports().presenter.AnswerNext(reporting::kAnswerCancel);
    EXPECT_FALSE(Update());
    EXPECT_THAT(Stored(), ElementsAre(L"main;;1600000000"));
}

TEST_F(CrlUpdate, ADiagnosisThatFillsTheBufferEndsWithIt) {
    sessions_.controlStatus = 0xE0700001;
    sessions_.controlText = std::string(5000, 'x');
    EXPECT_TRUE(Update());
    ASSERT_EQ(warnings_.warnings.size(), 1U);
    EXPECT_TRUE(warnings_.warnings[0].text.ends_with(L"\r\n\r\n" + std::wstring(1024, L'x')));
}

TEST_F(CrlUpdate, TheKeyIsClosedBeforeTheUserIsAsked) {
    sessions_.controlStatus = 0xE0700001;
    sessions_.controlText = "x";
    class Watcher : public certificates::WarningPresenter {
      public:
        explicit Watcher(MemoryRegistry& registry) : registry_(registry) {}
        void Show(toolkit::WindowHandle /*owner*/, const std::wstring& /*text*/,
                  const std::wstring& /*title*/, certificates::WarningMode /*mode*/) override {
            openKeys = registry_.OpenKeys();
        }
        std::size_t openKeys = 99;

      private:
        MemoryRegistry& registry_;
    } watcher(registry_);
    const certificates::CertServices services{sessions_, Reporter(), watcher, registry_,
                                              clock_,    input_,     opening_};
    const certificates::Cryptocontext context = OpenContext();
    EXPECT_TRUE(certificates::UpdateCrlIfDue(owner_, csProfile_, context, services));
    EXPECT_EQ(watcher.openKeys, 0U);
}

}  // namespace
}  // namespace corvane::test
