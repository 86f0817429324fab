#include "certificates/session/cryptocontext.h"

#include <gmock/gmock.h>

#include <optional>
#include <utility>

#include "reporting/message_styles.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CryptocontextTest : public CertsFixture {};

TEST_F(CryptocontextTest, IsClosedOnceWithItsEnd) {
    static_cast<void>(OpenContext());
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
    EXPECT_EQ(sessions_.OpenContexts(), 0U);
}

TEST_F(CryptocontextTest, ClosedBeforeItsEndItIsClosedOnce) {
    {
        certificates::Cryptocontext context = OpenContext();
        context.Close();
        EXPECT_EQ(context.Get(), 0U);
        context.Close();
    }
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
}

TEST_F(CryptocontextTest, MovedItIsClosedOnceByTheNewOwner) {
    {
        std::optional<certificates::Cryptocontext> moved;
        {
            certificates::Cryptocontext context = OpenContext();
            moved.emplace(std::move(context));
        }
        EXPECT_THAT(sessions_.Closed(), IsEmpty());
        EXPECT_EQ(moved->Get(), ScriptedSessions::kFirstContext);
    }
    EXPECT_THAT(sessions_.Closed(), ElementsAre(ScriptedSessions::kFirstContext));
}

TEST_F(CryptocontextTest, DroppedItStaysOpen) {
    {
        certificates::Cryptocontext context = OpenContext();
        context.Drop();
        EXPECT_EQ(context.Get(), 0U);
    }
    EXPECT_THAT(sessions_.Closed(), IsEmpty());
    EXPECT_EQ(sessions_.OpenContexts(), 1U);
}

TEST_F(CryptocontextTest, NoneIsNotClosed) {
    static_cast<void>(certificates::Cryptocontext(*sessions_.Functions(), 0, Reporter(), owner_, input_));
    EXPECT_THAT(sessions_.Closed(), IsEmpty());
}

TEST_F(CryptocontextTest, ACloseThatFailsIsReportedWithoutItsErrorStackAndCountsAsClosed) {
    sessions_.uninitializeStatus = 0xE0700010;
    Reports().provider.SetErrorText(0xE0700010, "Card removed.");
    Reports().provider.PushError(ScriptedSessions::kFirstContext, {"not asked for", "f", 1, "d"});
    {
        certificates::Cryptocontext context = OpenContext();
        context.Close();
        EXPECT_EQ(context.Get(), 0U);
    }
    EXPECT_THAT(Boxes(), ElementsAre(ShownBox{owner_,
                                              L"Cryptocontext uninitialization.\r\n"
                                              L"XSIG error 0xE0700010 - Card removed.",
                                              reporting::AppTitle, reporting::kErrorStyle}));
    EXPECT_EQ(Reports().provider.ErrorLineCalls(), 0U);
}

}  // namespace
}  // namespace corvane::test
