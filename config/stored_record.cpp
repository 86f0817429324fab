#include "config/stored_record.h"

#include <cstddef>

namespace corvane {

void RecordReader::ReadValue(const ValueForm& form, const FieldToRead& field) {
    switch (form.storedAs) {
        case StoredAs::kNumber:
            static_cast<void>(
                registry_.ReadInt(form.name, *field.number, owner_, form.loadFlags, form.defaultNumber));
            break;
        case StoredAs::kText:
            static_cast<void>(
                registry_.ReadString(form.name, *field.text, owner_, form.loadFlags, form.defaultText));
            break;
        case StoredAs::kTextList:
            static_cast<void>(registry_.ReadStringList(form.name, *field.texts, owner_));
            break;
        case StoredAs::kTextArray:
            static_cast<void>(registry_.ReadStringArray(form.name, *field.texts, owner_));
            break;
        case StoredAs::kNumberList:
            static_cast<void>(registry_.ReadIntList(form.name, *field.numbers, owner_));
            break;
        case StoredAs::kCount:
            ReadCount(form);
            break;
        case StoredAs::kElements:
            ReadElements(form, *field.texts);
            break;
        case StoredAs::kOldElement:
            if (count_ == 0) {
                static_cast<void>(
                    registry_.ReadString(form.name, *field.text, owner_, form.loadFlags, form.defaultText));
                field.texts->push_back(*field.text);
            }
            break;
    }
}

void RecordReader::ReadCount(const ValueForm& form) {
    count_ = 0;
    static_cast<void>(registry_.ReadInt(form.name, count_, owner_, form.loadFlags, 0));
    isCountBelievable_ = count_ <= kHighestElementCount;
    if (!isCountBelievable_) {
        count_ = kHighestElementCount;
        reporter_.ReportError(owner_, ProviderContext{}, form.loadFlags, kCodeInvalidData, kReadIntOperation,
                              nullptr, reporter_.Text().Narrow(form.name).c_str());
    }
}

void RecordReader::ReadElements(const ValueForm& form, TextList& list) {
    for (std::int32_t index = 0; index < count_; ++index) {
        // One whose read fails stays empty, so that the others keep their positions.
        static_cast<void>(registry_.ReadString(ElementName(form.name, static_cast<std::size_t>(index)),
                                               list.emplace_back(), owner_, form.loadFlags, L""));
    }
    while (!isCountBelievable_ && !list.empty() && list.back().empty()) {
        list.pop_back();
    }
}

void RecordWriter::WriteValue(const ValueForm& form, const FieldToWrite& field) {
    switch (form.storedAs) {
        case StoredAs::kNumber:
            static_cast<void>(registry_.WriteInt(form.name, *field.number, owner_, form.saveFlags));
            break;
        case StoredAs::kText:
            static_cast<void>(registry_.WriteString(form.name, *field.text, owner_, form.saveFlags));
            break;
        case StoredAs::kTextList:
            static_cast<void>(registry_.WriteStringList(form.name, *field.texts, owner_));
            break;
        case StoredAs::kTextArray:
            static_cast<void>(registry_.WriteStringArray(form.name, *field.texts, owner_));
            break;
        case StoredAs::kNumberList:
            static_cast<void>(registry_.WriteIntList(form.name, *field.numbers, owner_));
            break;
        case StoredAs::kCount:
            static_cast<void>(registry_.WriteInt(form.name, static_cast<std::int32_t>(field.texts->size()),
                                                 owner_, form.saveFlags));
            break;
        case StoredAs::kElements:
            WriteElements(form, *field.texts);
            break;
        case StoredAs::kOldElement:
            break;
    }
}

void RecordWriter::WriteElements(const ValueForm& form, const TextList& list) {
    for (std::size_t index = 0; index < list.size(); ++index) {
        static_cast<void>(
            registry_.WriteString(ElementName(form.name, index), list[index], owner_, form.saveFlags));
    }
}

}  // namespace corvane
