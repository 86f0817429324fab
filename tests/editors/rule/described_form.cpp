#include "tests/editors/rule/described_form.h"

#include "tests/kit/fakes/registry_snapshot.h"

namespace corvane::test {

namespace {

std::string Flag(bool is, const char* name) {
    return is ? std::string(" ") + name : std::string(" not-") + name;
}

std::string Quoted(const std::wstring& text) {
    return " \"" + Printable(text) + "\"";
}

std::string Texts(const corvane::store::TextList& list) {
    std::string texts = " (";
    for (const std::wstring& text : list) {
        texts += Quoted(text);
    }
    return texts + " )";
}

std::string Line(const std::string& name, const editors::TextField& field) {
    return name + Quoted(field.text) + Flag(field.isShown, "shown") + Flag(field.isEnabled, "enabled") +
           Flag(field.isReadOnly, "read-only") + "\n";
}

std::string Line(const std::string& name, const editors::NumberField& field) {
    return name + " " + std::to_string(field.number) + Flag(field.isShown, "shown") + "\n";
}

std::string Line(const std::string& name, const editors::ChoiceField& field) {
    return name + Texts(field.entries) + " at " + std::to_string(field.index) + Flag(field.isShown, "shown") +
           "\n";
}

std::string Line(const std::string& name, const editors::IconButton& button) {
    return name + Quoted(button.toolTip) + " icon " + std::to_string(static_cast<int>(button.icon)) +
           Flag(button.isEnabled, "enabled") + "\n";
}

std::string Line(const std::string& name, const std::wstring& label) {
    return name + Quoted(label) + "\n";
}

template <typename Fields>
std::string Lines(const std::string& name, const Fields& fields) {
    std::string lines;
    int number = 0;
    for (const auto& field : fields) {
        lines += Line(name + " " + std::to_string(++number), field);
    }
    return lines;
}

std::string SignerLists(const editors::RuleForm& form) {
    std::string lines;
    for (const store::SignerGroup& group : form.result.signerGroups) {
        lines += "signer list" + Quoted(group.name) + Texts(group.signers) + "\n";
    }
    return lines;
}

}  // namespace

std::string DescribeForm(const editors::RuleForm& form) {
    return Line("title", form.title) + Line("exit", form.exitText) + Line("operation", form.operation) +
           Line("CS profile label", form.csProfileLabel) + Line("CS profile", form.csProfile) +
           Line("description label", form.descriptionLabel) + Line("description", form.description) +
           Line("IN", form.inputButton) + Line("input folder", form.inputFolder) +
           Line("OUT", form.outputButton) + Line("output folder", form.outputFolder) +
           Line("ERROR", form.errorButton) + Line("error folder", form.errorFolder) +
           Line("CERT", form.certButton) + Line("cert field", form.cert) + Lines("label", form.rowLabels) +
           Lines("choice", form.choices) + Lines("text", form.texts) + Lines("number", form.numbers) +
           Line("add mask", form.addMaskButton) + Line("edit mask", form.editMaskButton) +
           Line("delete mask", form.deleteMaskButton) + "recipients" + Texts(form.recipients) + "\nmasks" +
           Texts(form.result.masks) + "\n" + SignerLists(form);
}

}  // namespace corvane::test
