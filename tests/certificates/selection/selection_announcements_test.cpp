#include <gmock/gmock.h>

#include "tests/kit/driver/win_events.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

/// Ticks of the owner lists, which the control does not keep by itself, as a screen reader hears of them.
class SelectionAnnouncements : public SelectionTest {
  protected:
    void OpenWithThreeOfEach() {
        for (const char* owner : {"CN=Ann,C=GB", "CN=Ben,C=GB", "CN=Cid,C=GB"}) {
            script.Certificate(LibraryScriptWriter::kEvery, owner);
        }
        OpenRecipients({L"CN=Dan,C=GB", L"CN=Eve,C=GB", L"CN=Fay,C=GB"});
        Press(IDC_SELECTION_FROM_STORE_BUTTON);
    }
};

TEST_F(SelectionAnnouncements, AClickOnABoxIsAnnouncedForItsRow) {
    OpenWithThreeOfEach();
    for (const ListView& list : {Found(), Chosen()}) {
        const WinEvents ticks(list, EVENT_OBJECT_STATECHANGE);
        list.PostLeftClick(list.CheckBoxCentre(1));
        ticks.WaitForCount(1);
        list.PostLeftClick(list.CheckBoxCentre(2));
        ticks.WaitForCount(2);
        list.PostLeftClick(list.CheckBoxCentre(1));
        ticks.WaitForCount(3);
        EXPECT_EQ(ticks.Children(), (std::vector<LONG>{2, 3, 2}));
    }
}

TEST_F(SelectionAnnouncements, TheSpaceBarAnnouncesEachSelectedRow) {
    OpenWithThreeOfEach();
    Found().Select({0, 2});
    const WinEvents ticks(Found(), EVENT_OBJECT_STATECHANGE);
    Found().PostKey(VK_SPACE);
    ticks.WaitForCount(2);
    SettleDialog();
    EXPECT_THAT(ticks.Children(), ::testing::UnorderedElementsAre(1, 3));
}

}  // namespace
}  // namespace corvane::test
