#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "app/main_window/main_window_layout.h"
#include "app/rule_list/rule_list_view.h"
#include "app/services.h"
#include "reporting/product_dialog.h"
#include "store/records.h"
#include "store/registry/registry_access.h"
#include "toolkit/controls/list_view.h"

namespace corvane::app {

/// The program's only top-level window. It owns the configuration from its loading at the start to its own
/// end, shows it in two lists, and passes every command on to the code that decides.
class CCorvaneDlg final : public reporting::ProductDialog {
  public:
    explicit CCorvaneDlg(const Services& services);

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    void OnOk() override;
    void OnCancel() override;
    void OnArranged() override { LayOutColumns(); }
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    bool OnSystemCommand(WPARAM command) override;
    bool OnPaint() override;
    HICON OnQueryDragIcon() override;
    const wchar_t* UnsavedInputReason() override;
    void OnScaleChanged() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    // Initialisation.
    void SetUpMenu() const;
    void SetUpCaptions();
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

    // The fields of the controls.
    std::wstring profileCaption_;
    std::wstring ruleListCaption_;
    std::wstring searchText_;
};

}  // namespace corvane::app
