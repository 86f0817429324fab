#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "app/main_window/main_window_layout.h"
#include "app/rule_list/rule_list_view.h"
#include "app/services.h"
#include "store/records.h"
#include "store/registry/registry_access.h"
#include "toolkit/controls/button_icons.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/controls/tool_tip.h"
#include "toolkit/dialog/anchored_layout.h"
#include "toolkit/dialog/dialog.h"
#include "toolkit/system/icon.h"

namespace corvane::app {

/// The program's only top-level window. It owns the configuration from its loading at the start to its own
/// end, shows it in two lists, and passes every command on to the code that decides.
class CCorvaneDlg final : public toolkit::Dialog {
  public:
    explicit CCorvaneDlg(const Services& services);

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    void OnOk() override;
    void OnCancel() override;
    void OnSize(WPARAM kind, int width, int height) override;
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    bool OnSystemCommand(WPARAM command) override;
    bool OnPaint() override;
    HICON OnQueryDragIcon() override;
    const wchar_t* UnsavedInputReason() override;
    void OnScaleChanged() override;
    bool PreTranslateMessage(MSG& message) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;
    void ReportException(const std::exception& exception) override;

  private:
    // Initialisation.
    void SetUpMenu() const;
    void SetUpToolTips();
    void SetUpCaptions();
    void SetUpIcons();
    void SetUpLists();
    void RememberLayout();
    [[nodiscard]] bool Load();
    void RestorePlacement() const;

    // The window's own commands.
    /// Every command of the window goes this way, wherever it comes from: what the user has just ticked is
    /// in the configuration before the command works on it.
    void Execute(const std::function<void()>& command);
    void Run(MainCommand command);
    void Search();
    void Save();
    void EditLogSettings();
    void EditExtensions();
    void ShowAbout();
    void Leave(int result);
    [[nodiscard]] store::WindowRectangle RestoredRectangle() const;

    // Profiles.
    void FillProfileList();
    void OpenProfile();
    void AddProfile();
    void EditCurrentProfile();
    void DeleteSelectedProfile();
    void ImportRules();
    void EnableProfileCommands(bool isEnabled);

    // Rules.
    void AddRule();
    void EditSelectedRule();
    void CopySelectedRule();
    void DeleteSelectedRules();
    void MoveSelectedRule(MainCommand command);
    void DescribeCell(const NMITEMACTIVATE& click);
    void RefillRuleList(RuleListView::Keep keep);
    void SelectRow(int row);
    void CopyCheckBoxes();
    void TakeTicksOfShownRules();

    void LayOutColumns();
    void OnProfileListNotification(const NMHDR& header);
    bool OnRuleListNotification(NMHDR& header);

    const Services& services_;
    store::ConfigurationState state_;
    store::RegistryAccess registry_;
    RuleListView ruleList_;
    toolkit::ListView profileList_;
    toolkit::ToolTip toolTip_;
    toolkit::AnchoredLayout layout_;
    toolkit::UniqueIcon largeIcon_;
    toolkit::UniqueIcon smallIcon_;
    toolkit::ButtonIcons buttonIcons_;

    // The fields of the controls.
    std::wstring profileCaption_;
    std::wstring ruleListCaption_;
    std::wstring searchText_;
};

}  // namespace corvane::app
