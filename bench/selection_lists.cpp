#include "bench/selection_lists.h"

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "bench/list_window.h"
#include "certificates/selection/owner_list_view.h"
#include "certificates/selection/selection_form.h"
#include "reporting/error_reporter.h"
#include "reporting/system_messages.h"
#include "toolkit/dialog/modal_state.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/text/format_text.h"
#include "toolkit/text/system_text.h"

namespace {

using corvane::certificates::OwnerListView;
using corvane::certificates::RecipientSelectionForm;
using corvane::store::TextList;

constexpr int kListTurns = 7;
constexpr int kFoundOwners = 20000;
constexpr int kChosenOwners = 5000;
constexpr std::size_t kOrganizationField = 5;

std::wstring OwnerName(int number) {
    // Spread out, so that a sort has work to do. Every other one is of the first bank.
    const int spread = static_cast<int>((static_cast<long long>(number) * 7919) % 100003);
    return corvane::toolkit::FormatText(
        L"CN=Owner %d,OU=Settlement,O=%s,C=GB",
        {std::to_wstring(spread), (number % 2 == 0 ? L"Northgate Clearing " : L"Southgate Clearing ") +
                                      std::to_wstring(spread % 997)});
}

/// A provider that finds as many certificates as are wanted and hands out memory of its own.
class ManyCertificates final : public corvane::provider::ProviderLibrary {
  public:
    ManyCertificates() {
        const corvane::toolkit::WindowsSystemText text;
        for (int i = 0; i < kFoundOwners; ++i) {
            owners_.push_back(text.Narrow(OwnerName(i)));
        }
        for (std::string& owner : owners_) {
            corvane::provider::CertEntry entry = {};
            entry.owner = owner.data();
            entry.usage = 0xFF;
            certEntries.push_back(entry);
        }
        functions_.findCert = [](corvane::provider::ProviderContext, corvane::provider::CertQuery*,
                                 corvane::provider::CertFindResult* result) {
            result->count = static_cast<std::uint32_t>(certEntries.size());
            result->entries = certEntries.data();
            return std::uint32_t{0};
        };
        functions_.freeFindResult = [](corvane::provider::ProviderContext,
                                       corvane::provider::CertFindResult*) { return std::uint32_t{0}; };
    }

    [[nodiscard]] const corvane::provider::ProviderFunctions* Functions() override { return &functions_; }
    [[nodiscard]] const corvane::provider::ProviderBindFailure& LastFailure() const override {
        return failure_;
    }

  private:
    inline static std::vector<corvane::provider::CertEntry> certEntries;
    std::vector<std::string> owners_;
    corvane::provider::ProviderFunctions functions_ = {};
    corvane::provider::ProviderBindFailure failure_;
};

/// The form with its two lists, as the dialog has them.
class SelectionLists {
  public:
    explicit SelectionLists(const ListWindow& window) : form_(settings_, Start(), text_) {
        found_.Attach(window.MakeList(), L"Subjects");
        chosen_.Attach(window.MakeList(), L"Recipients");
        UpdateWindow(chosen_.Control().Window());
    }
    ~SelectionLists() {
        DestroyWindow(found_.Control().Window());
        DestroyWindow(chosen_.Control().Window());
    }
    SelectionLists(const SelectionLists&) = delete;
    SelectionLists& operator=(const SelectionLists&) = delete;
    SelectionLists(SelectionLists&&) = delete;
    SelectionLists& operator=(SelectionLists&&) = delete;

    [[nodiscard]] RecipientSelectionForm& Form() { return form_; }

    void ShowFound() { Show(found_); }
    void ShowChosen() { Show(chosen_); }

    void Answer(NMHDR& header) {
        for (OwnerListView* const list : {&found_, &chosen_}) {
            if (header.hwndFrom == list->Control().Window()) {
                list->Answer(header);
            }
        }
    }

  private:
    static corvane::certificates::SelectionStart Start() {
        corvane::certificates::SelectionStart start;
        for (int i = 0; i < kChosenOwners; ++i) {
            start.chosen.push_back(OwnerName(kFoundOwners + i));
        }
        return start;
    }
    static void Show(OwnerListView& list) {
        list.Change([] {});
        UpdateWindow(list.Control().Window());
    }

    corvane::certificates::CertSearchSettings settings_ =
        corvane::certificates::SearchSettingsOf({}, corvane::certificates::CertificateUse::kRecipients);
    corvane::toolkit::WindowsSystemText text_;
    RecipientSelectionForm form_;
    corvane::certificates::FoundOwners foundOwners_{form_};
    corvane::certificates::ChosenOwners chosenOwners_{form_};
    OwnerListView found_{foundOwners_};
    OwnerListView chosen_{chosenOwners_};
};

class SelectionBench {
  public:
    SelectionBench() {
        window_.AnswerWith([this](NMHDR& header) {
            if (lists_ != nullptr) {
                lists_->Answer(header);
            }
        });
        for (int i = 0; i < kFoundOwners; ++i) {
            allFound_.push_back(OwnerName(i));
        }
    }

    /// Lists that are fresh, and filled as far as `prepare` does.
    double Measure(const std::function<void(SelectionLists&)>& prepare,
                   const std::function<void(SelectionLists&)>& work) {
        lists_ = std::make_unique<SelectionLists>(window_);
        prepare(*lists_);
        const double milliseconds = MillisecondsOf([&] { work(*lists_); });
        lists_.reset();
        return milliseconds;
    }

    /// The plain way, in a list as fresh: row by row, with redrawing off.
    double InsertPlainly(const TextList& owners) {
        corvane::toolkit::ListView list;
        list.Attach(window_.MakeList());
        list.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES | LVS_EX_LABELTIP);
        list.InsertColumn(0, L"Subjects");
        list.SetColumnWidth(0, list.ClientWidth());
        UpdateWindow(list.Window());
        const double milliseconds = MillisecondsOf([&] { Fill(list, owners); });
        DestroyWindow(list.Window());
        return milliseconds;
    }

    void FindAll(SelectionLists& lists) {
        if (!lists.Form().SearchLocalStore(context_, reporter_, nullptr)) {
            throw std::runtime_error("the owners are not found");
        }
        lists.ShowFound();
    }

    [[nodiscard]] const TextList& AllFound() const { return allFound_; }

  private:
    static void Fill(const corvane::toolkit::ListView& list, const TextList& owners) {
        {
            const corvane::toolkit::ListView::RedrawLock locked(list);
            for (const std::wstring& owner : owners) {
                list.AppendRow(owner);
            }
        }
        UpdateWindow(list.Window());
    }

    ListWindow window_;
    std::unique_ptr<SelectionLists> lists_;
    TextList allFound_;
    ManyCertificates provider_;
    corvane::toolkit::WindowsMessagePresenter messages_;
    corvane::toolkit::WindowsSystemText text_;
    corvane::reporting::WindowsSystemMessages systemMessages_;
    corvane::reporting::ErrorReporter reporter_{messages_, systemMessages_, provider_, text_};
    corvane::toolkit::WindowsInputGate input_;
    corvane::certificates::Cryptocontext context_{*provider_.Functions(), 0, reporter_, nullptr, input_};
};

}  // namespace

std::vector<RatioRow> MeasureSelectionLists() {
    SelectionBench bench;
    const TextList& all = bench.AllFound();
    TextList ofTheFirstBank;
    for (const std::wstring& owner : all) {
        if (owner.find(L"Northgate") != std::wstring::npos) {
            ofTheFirstBank.push_back(owner);
        }
    }
    TextList chosenAtTheEnd = all;
    for (int i = 0; i < kChosenOwners; ++i) {
        chosenAtTheEnd.push_back(OwnerName(kFoundOwners + i));
    }

    const auto find = [&bench](SelectionLists& lists) { bench.FindAll(lists); };
    const auto measured = [&bench](const auto& prepare, const auto& work) {
        return [&bench, prepare, work] { return bench.Measure(prepare, work); };
    };
    const auto inserting = [&bench](const TextList& owners) {
        return [&bench, &owners] { return bench.InsertPlainly(owners); };
    };
    const auto filter = [](const wchar_t* text) {
        return [text](SelectionLists& lists) {
            lists.Form().SetFilter(text);
            lists.ShowFound();
        };
    };
    const auto row = [](const char* what, double ratio, double target) {
        return RatioRow{
            .what = what, .against = "inserting the rows shown", .ratio = ratio, .target = target};
    };

    return {
        row("finding and listing 20,000 owners",
            MedianRatio(kListTurns, measured([](SelectionLists&) {}, find), inserting(all)), 1.50),
        row("listing 20,000 owners that are known",
            MedianRatio(kListTurns,
                        measured([&all](SelectionLists& lists) { lists.Form().AddFound(all); },
                                 [](SelectionLists& lists) { lists.ShowFound(); }),
                        inserting(all)),
            1.50),
        // Every owner has the letter, so every row stays.
        row("one filter keystroke over 20,000 owners",
            MedianRatio(kListTurns, measured(find, filter(L"o")), inserting(all)), 0.50),
        // Half of the rows go.
        row("one filter keystroke that leaves 10,000",
            MedianRatio(kListTurns,
                        measured(
                            [&](SelectionLists& lists) {
                                find(lists);
                                filter(L"o=")(lists);
                            },
                            filter(L"o=n")),
                        inserting(ofTheFirstBank)),
            0.50),
        row("sorting 20,000 owners by a field",
            MedianRatio(kListTurns,
                        measured(find,
                                 [](SelectionLists& lists) {
                                     lists.Form().SetSortField(kOrganizationField);
                                     lists.ShowFound();
                                 }),
                        inserting(all)),
            1.50),
        row("adding 20,000 owners to 5,000 chosen",
            MedianRatio(kListTurns,
                        measured(
                            [&](SelectionLists& lists) {
                                find(lists);
                                lists.Form().CheckAllFound(true);
                                lists.ShowFound();
                                lists.ShowChosen();
                            },
                            [](SelectionLists& lists) {
                                static_cast<void>(lists.Form().AddChecked());
                                lists.ShowChosen();
                            }),
                        inserting(chosenAtTheEnd)),
            1.50),
    };
}
