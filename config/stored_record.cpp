#include "config/stored_record.h"

#include <cstddef>

namespace corvane {

void RecordReader::ReadNumber(std::wstring_view name, std::int32_t& number, std::uint32_t flags,
                              std::int32_t defaultNumber) {
    static_cast<void>(registry_.ReadInt(name, number, owner_, flags, defaultNumber));
}

void RecordReader::ReadText(std::wstring_view name, std::wstring& text, std::uint32_t flags,
                            std::wstring_view defaultText) {
    static_cast<void>(registry_.ReadString(name, text, owner_, flags, defaultText));
}

void RecordReader::ReadCount(std::wstring_view name, std::uint32_t flags) {
    count_ = 0;
    ReadNumber(name, count_, flags, 0);
    isCountBelievable_ = count_ <= kHighestElementCount;
    if (!isCountBelievable_) {
        count_ = kHighestElementCount;
        reporter_.ReportError(owner_, ProviderContext{}, flags, kCodeInvalidData, kReadIntOperation, nullptr,
                              reporter_.Text().Narrow(name).c_str());
    }
}

void RecordReader::ReadElements(std::wstring_view prefix, TextList& list, std::uint32_t flags) {
    for (std::int32_t index = 0; index < count_; ++index) {
        // One whose read fails stays empty, so that the others keep their positions.
        ReadText(ElementName(prefix, static_cast<std::size_t>(index)), list.emplace_back(), flags, L"");
    }
    while (!isCountBelievable_ && !list.empty() && list.back().empty()) {
        list.pop_back();
    }
}

void RecordWriter::WriteCount(std::wstring_view name, const TextList& list, std::uint32_t flags) {
    static_cast<void>(registry_.WriteInt(name, static_cast<std::int32_t>(list.size()), owner_, flags));
}

void RecordWriter::WriteElements(std::wstring_view prefix, const TextList& list, std::uint32_t flags) {
    for (std::size_t index = 0; index < list.size(); ++index) {
        static_cast<void>(registry_.WriteString(ElementName(prefix, index), list[index], owner_, flags));
    }
}

}  // namespace corvane
