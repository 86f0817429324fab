#pragma once

#include <windows.h>

#include <exception>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/toolkit/ids.h"
#include "toolkit/dialog/dialog.h"

namespace corvane::test {

/// A dialog that hands every hook on to what a test has put there. A hook that a test leaves empty does what
/// the base class does.
class TestDialog : public toolkit::Dialog {
  public:
    explicit TestDialog(int templateId = IDD_HIDDEN_FORM, HWND owner = nullptr)
        : toolkit::Dialog(templateId, owner) {}
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;
    TestDialog(TestDialog&&) = delete;
    TestDialog& operator=(TestDialog&&) = delete;
    ~TestDialog() override;

    using toolkit::Dialog::Control;
    using toolkit::Dialog::DotsPerInch;
    using toolkit::Dialog::EnableControl;
    using toolkit::Dialog::EndModal;
    using toolkit::Dialog::FieldsAsShown;
    using toolkit::Dialog::HasEnded;
    using toolkit::Dialog::PutData;
    using toolkit::Dialog::SetControlText;
    using toolkit::Dialog::TakeData;

    /// Done once, when the dialog runs and its thread has nothing else left to do.
    std::function<void()> whenIdle;
    std::function<bool()> onInit;
    std::function<bool(int controlId, UINT notificationCode)> onCommand;
    std::function<bool(NMHDR& header, LRESULT& result)> onNotify;
    std::function<void(WPARAM kind, int width, int height)> onSize;
    std::function<void(MINMAXINFO& info)> onMinimumMaximumInfo;
    std::function<bool(WPARAM command)> onSystemCommand;
    std::function<bool()> onPaint;
    std::function<HICON()> onQueryDragIcon;
    std::function<const wchar_t*()> unsavedInputReason;
    /// What Windows was told about its end: the window and the reason, which is empty where it was taken
    /// back.
    std::vector<std::pair<HWND, std::wstring>> shutdownReasons;
    std::function<void()> onScaleChanged;
    std::function<bool(const MSG& message)> preTranslate;
    std::function<void(toolkit::DataExchange& exchange)> exchangeFields;
    /// Where this is empty, the reports are kept in `reported`.
    std::function<void(const std::exception& exception)> reportException;
    std::vector<std::string> reported;

    /// Tells the exception as a dialog does that has no words of its own for it.
    void ReportAsTheBaseClassDoes(const std::exception& exception) {
        toolkit::Dialog::ReportException(exception);
    }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    void OnSize(WPARAM kind, int width, int height) override;
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    bool OnSystemCommand(WPARAM command) override;
    bool OnPaint() override;
    HICON OnQueryDragIcon() override;
    const wchar_t* UnsavedInputReason() override;
    void BlockShutdown(HWND window, const wchar_t* reason) override;
    void UnblockShutdown(HWND window) override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;
    void ReportException(const std::exception& exception) override;

  private:
    UINT_PTR idleTimer_ = 0;
    UINT_PTR limitTimer_ = 0;
};

}  // namespace corvane::test
