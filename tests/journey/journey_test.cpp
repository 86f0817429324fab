#include "tests/journey/journey_test.h"

#include <windows.h>

#include "tests/driver/failure.h"
#include "tests/driver/file_dialog.h"

namespace corvane::test {

using driver::Window;

FoldersOfTest::FoldersOfTest(const driver::Texts& paths) {
    for (const std::wstring& path : paths) {
        for (std::size_t end = path.find(L'\\', 3); true; end = path.find(L'\\', end + 1)) {
            const std::wstring folder = path.substr(0, end);
            if (CreateDirectoryW(folder.c_str(), nullptr) != FALSE) {
                made_.push_back(folder);
            } else if (GetLastError() != ERROR_ALREADY_EXISTS) {
                throw driver::Failure(L"The folder could not be made (system code " +
                                      std::to_wstring(GetLastError()) + L"): " + folder);
            }
            if (end == std::wstring::npos) {
                break;
            }
        }
    }
}

FoldersOfTest::~FoldersOfTest() {
    for (auto folder = made_.rbegin(); folder != made_.rend(); ++folder) {
        RemoveDirectoryW(folder->c_str());
    }
}

void JourneyTest::TypeFolders(const Window& ruleEditor) {
    ruleEditor.Control(IDC_RULE_INPUT_EDIT).SetText(kExchangeIn);
    if (ruleEditor.Control(IDC_RULE_OUTPUT_EDIT).IsEnabled()) {
        ruleEditor.Control(IDC_RULE_OUTPUT_EDIT).SetText(kExchangeOut);
    }
    ruleEditor.Control(IDC_RULE_ERROR_EDIT).SetText(kExchangeError);
}

void JourneyTest::Pick(const Window& ruleEditor, int buttonId, const std::wstring& path) const {
    ruleEditor.Control(buttonId).PostClick();
    const driver::FileDialog picker(Editor().WaitForDialog(ruleEditor));
    picker.SetFileName(path);
    picker.Confirm();
    picker.WaitUntilGone();
    WaitForEditor(ruleEditor);
}

StoredTree JourneyTest::SaveAndReadAll() {
    SaveAndLeave();
    StoredTree tree = driver::ReadRegistryTree(kProgramKey);
    for (const wchar_t* edge : {L"Window_top", L"Window_bottom", L"Window_left", L"Window_right"}) {
        EXPECT_EQ(tree[L""].erase(edge), 1U) << driver::Utf8(edge) << " is not stored";
    }
    return tree;
}

StoredTree JourneyTest::ConfirmEachRuleUnchanged(const std::wstring& profile) {
    StartAgain();
    OpenProfile(profile);
    const int count = Rules().RowCount();
    for (int row = 0; row < count; ++row) {
        Close(OpenStored(row), IDOK);
        EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{row});
    }
    return SaveAndReadAll();
}

}  // namespace corvane::test
