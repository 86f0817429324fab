// Prints how the program compares with what can be had: each figure is a ratio, measured turn by turn in this
// one run. bench_ratios CORVANE EMPTY_DIALOG

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/rule_list/rule_list_view.h"
#include "app/rule_list/rule_row.h"
#include "bench/bare_registry.h"
#include "bench/list_window.h"
#include "bench/program_measure.h"
#include "bench/ratio.h"
#include "bench/selection_lists.h"
#include "provider/provider_library.h"
#include "reporting/error_reporter.h"
#include "reporting/system_messages.h"
#include "store/registry/load_configuration.h"
#include "store/registry/registry_calls.h"
#include "store/registry/save_configuration.h"
#include "tests/kit/samples/sample_configuration.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/text/system_text.h"

namespace {

using corvane::store::ConfigurationState;

constexpr int kTurns = 7;
constexpr std::size_t kListedRules = 10000;

/// The stored configuration, as the program reads and writes it.
class Store {
  public:
    Store() : reporter_(messages_, systemMessages_, provider_, text_) {}

    void Load() {
        ConfigurationState state;
        corvane::store::RegistryAccess registry(calls_, reporter_);
        if (!corvane::store::LoadConfiguration(state, registry, reporter_, nullptr)) {
            throw std::runtime_error("the sample does not load");
        }
    }

    void Save(ConfigurationState& state) {
        corvane::store::RegistryAccess registry(calls_, reporter_);
        corvane::store::SaveConfiguration(state, {}, registry, reporter_, nullptr);
    }

  private:
    corvane::toolkit::WindowsMessagePresenter messages_;
    corvane::toolkit::WindowsSystemText text_;
    corvane::reporting::WindowsSystemMessages systemMessages_;
    corvane::provider::SystemProviderLibrary provider_;
    corvane::store::WindowsRegistryCalls calls_;
    corvane::reporting::ErrorReporter reporter_;
};

std::vector<RatioRow> MeasureRegistry() {
    Store store;
    ConfigurationState sample = corvane::test::SampleConfiguration(10, 100);
    CleanRegistry();
    PrepareRegistry();
    store.Save(sample);
    std::vector<RatioRow> rows;
    rows.push_back({.what = "loading 10 profiles of 100 rules",
                    .against = "the bare registry calls",
                    .ratio = MedianRatio(
                        kTurns, [&] { return MillisecondsOf([&] { store.Load(); }); },
                        [] { return MillisecondsOf([] { ReadWithBareCalls(); }); }),
                    .target = 1.10});
    rows.push_back({.what = "loading 10 profiles of 100 rules",
                    .against = "reg export of the same tree",
                    .ratio = MedianRatio(
                        kTurns, [&] { return MillisecondsOf([&] { store.Load(); }); },
                        [] {
                            return MeasureCommand(
                                L"reg export HKCU\\SOFTWARE\\HOLVAN\\tarntray corvane_bench.reg /y");
                        }),
                    .target = 1.00});
    DeleteFileW(L"corvane_bench.reg");
    rows.push_back({.what = "saving 10 profiles of 100 rules",
                    .against = "the bare registry calls",
                    .ratio = MedianRatio(
                        kTurns, [&] { return MillisecondsOf([&] { store.Save(sample); }); },
                        [&] { return MillisecondsOf([&] { WriteWithBareCalls(sample); }); }),
                    .target = 1.10});
    CleanRegistry();
    return rows;
}

/// The plain way: row by row, cell by cell, with redrawing off.
void InsertPlainly(const corvane::toolkit::ListView& list, const std::vector<corvane::store::Rule>& rules) {
    const corvane::toolkit::ListView::RedrawLock locked(list);
    list.DeleteAllRows();
    for (std::size_t position = 0; position < rules.size(); ++position) {
        list.AppendRow(corvane::app::RuleColumnAt(0).text(rules[position], position));
        for (std::size_t column = 1; column < corvane::app::RuleColumns().size(); ++column) {
            std::wstring text = corvane::app::RuleColumnAt(column).text(rules[position], position);
            LVITEMW cell = {};
            cell.iSubItem = static_cast<int>(column);
            cell.pszText = text.data();
            SendMessageW(list.Window(), LVM_SETITEMTEXTW, position, reinterpret_cast<LPARAM>(&cell));
        }
        if (rules[position].isOn != 0) {
            list.SetChecked(static_cast<int>(position), true);
        }
    }
}

std::vector<RatioRow> MeasureLists() {
    ConfigurationState state = corvane::test::SampleConfiguration(1, kListedRules);
    for (corvane::store::Rule& rule : state.profiles.front().rules) {
        rule.signerGroups.clear();
    }
    const corvane::toolkit::WindowsSystemText text;
    ListWindow window;
    corvane::app::RuleListView ruleList(state);
    ruleList.Attach(window.MakeList(), GetSystemMetrics(SM_CXVSCROLL));
    window.AnswerWith([&ruleList](NMHDR& header) {
        if (header.hwndFrom == ruleList.Control().Window()) {
            ruleList.Control().Answer(header);
        }
    });
    corvane::app::RuleListView plainColumns(state);
    plainColumns.Attach(window.MakeList(), GetSystemMetrics(SM_CXVSCROLL));
    const corvane::toolkit::ListView& plain = plainColumns.Control();

    const auto fillPlainly = [&] {
        return MillisecondsOf([&] {
            InsertPlainly(plain, state.profiles.front().rules);
            UpdateWindow(plain.Window());
        });
    };
    const auto fill = [&](const wchar_t* search) {
        return MillisecondsOf([&] {
            ruleList.Fill(0, search, text, corvane::app::RuleListView::Keep::kScrollAndSelection);
            UpdateWindow(ruleList.Control().Window());
        });
    };
    std::vector<RatioRow> rows;
    rows.push_back({.what = "filling the rule list with 10,000 rules",
                    .against = "inserting the rows cell by cell",
                    .ratio = MedianRatio(
                        kTurns, [&] { return fill(L""); }, fillPlainly),
                    .target = 0.50});
    // Every description has the letter, so every row stays: the most that a keystroke can ask for.
    rows.push_back({.what = "one search keystroke over 10,000 rules",
                    .against = "inserting the rows cell by cell",
                    .ratio = MedianRatio(
                        kTurns, [&] { return fill(L"r"); }, fillPlainly),
                    .target = 0.50});
    return rows;
}

double Megabytes(std::size_t sizeBytes) {
    return static_cast<double>(sizeBytes) / (1024 * 1024);
}

std::vector<RatioRow> MeasurePrograms(const std::wstring& program, const std::wstring& empty) {
    std::vector<RatioRow> rows;
    rows.push_back({.what = "start to the main window shown, worked example",
                    .against = "its template empty, and the load's bare calls",
                    .ratio = MedianRatio(
                        kTurns, [&] { return MeasureProgram(program).millisecondsToWindow; },
                        [&] {
                            return MeasureProgram(empty).millisecondsToWindow +
                                   MillisecondsOf([] { ReadWithBareCalls(); });
                        }),
                    .target = 1.35});
    rows.push_back({.what = "size without icons and pictures",
                    .against = "that program",
                    .ratio = static_cast<double>(SizeWithoutPictures(program)) /
                             static_cast<double>(SizeWithoutPictures(empty)),
                    .target = std::nullopt});
    std::printf("The program has %.2f MB, %.2f MB of it without icons and pictures.\n",
                Megabytes(static_cast<std::size_t>(std::filesystem::file_size(program))),
                Megabytes(SizeWithoutPictures(program)));
    Store store;
    ConfigurationState sample = corvane::test::SampleConfiguration(1, 1000);
    CleanRegistry();
    PrepareRegistry();
    store.Save(sample);
    rows.push_back({.what = "peak working set with 1,000 rules loaded",
                    .against = "that program",
                    .ratio = MedianRatio(
                        3, [&] { return static_cast<double>(MeasureProgram(program).peakWorkingSet); },
                        [&] { return static_cast<double>(MeasureProgram(empty).peakWorkingSet); }),
                    .target = 1.5});
    CleanRegistry();
    return rows;
}

void Print(const std::vector<RatioRow>& rows) {
    for (const RatioRow& row : rows) {
        std::printf("%-48s %-48s %6.2f", row.what.c_str(), row.against.c_str(), row.ratio);
        if (row.target) {
            std::printf(" %6.2f  %s", *row.target, row.ratio <= *row.target ? "met" : "MISSED");
        }
        std::printf("\n");
    }
    std::fflush(stdout);
}

}  // namespace

int wmain(int argumentCount, wchar_t** arguments) {
    if (argumentCount != 3) {
        std::fprintf(stderr, "usage: bench_ratios CORVANE EMPTY_DIALOG\n");
        return 2;
    }
    try {
        std::printf("%-48s %-48s %6s %6s\n", "what", "against", "ratio", "most");
        // First, while the worked example is still what the registry holds.
        Print(MeasurePrograms(arguments[1], arguments[2]));
        Print(MeasureRegistry());
        Print(MeasureLists());
        Print(MeasureSelectionLists());
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "%s\n", exception.what());
        return 1;
    }
    return 0;
}
