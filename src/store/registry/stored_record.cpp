#include "store/registry/stored_record.h"

#include <cstddef>

namespace corvane::store {

void RecordReader::ReadCount(std::wstring_view name, std::uint32_t flags) {
    count_ = 0;
    static_cast<void>(registry_.ReadInt(name, count_, owner_, flags, 0));
    isCountBelievable_ = count_ <= kHighestElementCount;
    if (!isCountBelievable_) {
        count_ = kHighestElementCount;
        reporter_.ReportError(owner_, provider::ProviderContext{}, flags, kCodeInvalidData, kReadIntOperation,
                              nullptr, reporter_.Text().Narrow(name).c_str());
    }
}

void RecordReader::ReadElements(std::wstring_view prefix, std::uint32_t flags, TextList& list) {
    for (std::int32_t index = 0; index < count_; ++index) {
        // One whose read fails stays empty, so that the others keep their positions.
        static_cast<void>(registry_.ReadString(ElementName(prefix, static_cast<std::size_t>(index)),
                                               list.emplace_back(), owner_, flags, L""));
    }
    while (!isCountBelievable_ && !list.empty() && list.back().empty()) {
        list.pop_back();
    }
}

void RecordWriter::WriteElements(std::wstring_view prefix, std::uint32_t flags, const TextList& list) {
    for (std::size_t index = 0; index < list.size(); ++index) {
        static_cast<void>(registry_.WriteString(ElementName(prefix, index), list[index], owner_, flags));
    }
}

}  // namespace corvane::store
