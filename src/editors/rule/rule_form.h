#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "editors/rule/operation_table.h"
#include "store/records.h"

namespace corvane::editors {

/// A button with a picture. The tool tip is its accessible name too.
struct IconButton {
    RuleIcon icon = RuleIcon::kInputFolder;
    std::wstring toolTip;
    bool isEnabled = true;

    bool operator==(const IconButton&) const = default;
};

/// An edit field for text.
struct TextField {
    std::wstring text;
    bool isShown = true;
    bool isEnabled = true;
    bool isReadOnly = false;

    bool operator==(const TextField&) const = default;
};

/// A digit-only edit field.
struct NumberField {
    std::int32_t number = 0;
    bool isShown = false;

    bool operator==(const NumberField&) const = default;
};

/// A drop-down list.
struct ChoiceField {
    store::TextList entries;
    int index = 0;  ///< The selected entry; -1 for none, as the system has it.
    bool isShown = true;

    bool operator==(const ChoiceField&) const = default;
};

/// The rule editor as a plain object: what each control shows and whether it can be used, and what the editor
/// holds behind them. The dialog copies the texts, numbers and indexes from and to its controls, shows the
/// rest, and calls the functions on the form for whatever the user does. Nothing here reaches the caller's
/// records.
struct RuleForm {
    bool isNew = false;      ///< The rule that was handed in had no operation.
    store::Profile profile;  ///< A copy of the profile that owns the rule.

    std::wstring title;
    std::wstring exitText;

    ChoiceField operation;
    std::wstring csProfileLabel;
    ChoiceField csProfile;
    std::wstring descriptionLabel;
    TextField description;

    IconButton inputButton;
    TextField inputFolder;
    IconButton outputButton;
    TextField outputFolder;
    IconButton errorButton;
    TextField errorFolder;
    IconButton certButton;
    TextField cert;  ///< A count or, for an operation that moves or executes, a path.

    // The option rows. A row is its label and at most one of the fields of its number; rows 1 to 3 can be a
    // choice, a text or a number, row 4 only a text.
    std::array<std::wstring, kRowCount> rowLabels;
    std::array<ChoiceField, kRowCount - 1> choices;
    std::array<TextField, kRowCount> texts;
    std::array<NumberField, kRowCount - 1> numbers;

    IconButton addMaskButton;
    IconButton editMaskButton;
    IconButton deleteMaskButton;

    store::TextList recipients;  ///< The owners chosen so far.
    store::Rule result;  ///< Holds the masks and the signer lists; everything else comes with the commit.

    /// The operation whose fields are shown; `operation` is ahead of it until the change is told.
    Operation laidOutOperation = Operation::kEncrypt;
    /// The CS profile that was selected before the one in `csProfile`; the same once a change was told.
    int settledCsProfile = 0;

    bool operator==(const RuleForm&) const = default;
};

/// The selected operation, or none where nothing is selected.
[[nodiscard]] std::optional<Operation> SelectedOperation(const RuleForm& form);

/// The text of the selected entry; empty where there is none.
[[nodiscard]] std::wstring SelectedEntry(const ChoiceField& choice);

/// The CS profile that was accepted last, as its index in the profile. There is one for the whole program,
/// owned by whoever opens rule editors, and it outlives each of them.
struct AcceptedCsProfile {
    int index = 0;
};

/// The form with which the editor opens on `rule` of `profile`. A rule without an operation is a new one and
/// gives nothing but that to the form. Opening any other rule sets `accepted`, opening a new one leaves it.
[[nodiscard]] RuleForm OpenRule(const store::Profile& profile, const store::Rule& rule,
                                AcceptedCsProfile& accepted);

/// The user selected an operation: the form goes over from the operation that it shows to the selected one.
/// What the user entered is kept, emptied or reset as the two operations want it. With no operation selected
/// nothing happens.
void ChangeOperation(RuleForm& form);

/// The rule that a checked form stands for. It holds what the selected operation uses, as the user left it;
/// everything else is empty or 0, whatever the edited rule held. A rule that was edited is always switched
/// on.
[[nodiscard]] store::Rule CommitRule(const RuleForm& form);

/// The label of the certificate field: what the operation wants to have in it.
[[nodiscard]] std::wstring CertLabel(Operation operation);

/// Shows the number of recipients or of signer lists in the certificate field of an operation that has such.
void ShowCertCount(RuleForm& form, Operation operation);

/// True where a text stands for "not set": empty, or the stored marker "0".
[[nodiscard]] bool IsNotSet(const std::wstring& text);

/// The user changed the text of a number field. Takes the number and returns the text that has to be put
/// into the field at once instead, or none where it may stand. A negative number becomes 0, one that does
/// not fit 32 bits the largest that does; pasted text is cut down to the number that it begins with. An
/// empty field counts as 0 and may stand, so that another number can be typed.
[[nodiscard]] std::optional<std::wstring> OnNumberTextChanged(NumberField& field, const std::wstring& text);

}  // namespace corvane::editors
