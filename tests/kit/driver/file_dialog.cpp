#include "tests/kit/driver/file_dialog.h"

#include <dlgs.h>

#include "tests/kit/driver/failure.h"

namespace corvane::test {

Window FileDialog::FileNameField() const {
    for (const int id : {cmb13, edt1}) {
        if (HasControl(id)) {
            return Control(id);
        }
    }
    throw Failure(L"A field for the file name was expected in " + Name() + L", and there is none.");
}

std::wstring FileDialog::FileName() const {
    return FileNameField().Text();
}

void FileDialog::SetFileName(const std::wstring& path) const {
    FileNameField().SetText(path);
}

std::vector<std::wstring> FileDialog::FileTypes() const {
    const Window types = Control(cmb1);
    std::vector<std::wstring> entries;
    const LRESULT count = types.Send(CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        std::wstring entry(static_cast<std::size_t>(types.Send(CB_GETLBTEXTLEN, index)) + 1, L'\0');
        types.Send(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(entry.data()));
        entry.pop_back();
        entries.push_back(entry);
    }
    return entries;
}

void FileDialog::Confirm() const {
    Control(IDOK).PostClick();
}

void FileDialog::GiveUp() const {
    Post(WM_COMMAND, IDCANCEL);
    WaitUntilGone();
}

}  // namespace corvane::test
