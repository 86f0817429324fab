#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "app/reporting/error_reporter.h"
#include "config/records.h"
#include "config/registry_access.h"
#include "config/registry_layout.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// A count read from the registry is anybody's number. Up to this many elements are read one by one, as the
/// count says; a higher one is reported as invalid data. Then the elements that stand there up to this many
/// are read, without the missing ones behind the last, so that a damaged count loses no text, and costs
/// seconds instead of hours and all memory.
inline constexpr std::int32_t kHighestElementCount = 100000;

/// The field of a record that a row speaks of; the other pointers are null. `Number` and so on are constant
/// where the record is.
template <typename Number, typename Text, typename Texts, typename Numbers>
struct FieldOfRow {
    Number* number = nullptr;
    Text* text = nullptr;
    Texts* texts = nullptr;
    Numbers* numbers = nullptr;
};
using FieldToRead = FieldOfRow<std::int32_t, std::wstring, TextList, NumberList>;
using FieldToWrite = FieldOfRow<const std::int32_t, const std::wstring, const TextList, const NumberList>;

/// The field of `record` that the row speaks of, as `Field`, which is one of the two above.
template <typename Field, typename Row, typename Record>
[[nodiscard]] Field FindField(const Row& row, Record& record) {
    switch (row.storedAs) {
        case StoredAs::kNumber:
            return {.number = &(record.*row.number)};
        case StoredAs::kText:
            return {.text = &(record.*row.text)};
        case StoredAs::kOldElement:
            return {.text = &(record.*row.text), .texts = &(record.*row.texts)};
        case StoredAs::kNumberList:
            return {.numbers = &(record.*row.numbers)};
        default:
            return {.texts = &(record.*row.texts)};
    }
}

/// Reads the values of records from the current key, in the order of their layout. A value that cannot be
/// read is reported and keeps what the record held; reading goes on.
class RecordReader {
  public:
    RecordReader(RegistryAccess& registry, ErrorReporter& reporter, toolkit::WindowHandle owner)
        : registry_(registry), reporter_(reporter), owner_(owner) {}

    template <typename Record>
    void Read(std::span<const StoredValue<Record>> layout, Record& record) {
        for (const StoredValue<Record>& row : layout) {
            ReadValue(row, FindField<FieldToRead>(row, record));
        }
    }

  private:
    void ReadValue(const ValueForm& form, const FieldToRead& field);
    void ReadCount(const ValueForm& form);
    void ReadElements(const ValueForm& form, TextList& list);

    RegistryAccess& registry_;
    ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
    std::int32_t count_ = 0;  ///< Of the list whose elements come next.
    bool isCountBelievable_ = true;
};

/// Writes the values of records into the current key, in the order of their layout. A value that cannot be
/// written is reported; writing goes on.
class RecordWriter {
  public:
    RecordWriter(RegistryAccess& registry, toolkit::WindowHandle owner)
        : registry_(registry), owner_(owner) {}

    template <typename Record>
    void Write(std::span<const StoredValue<Record>> layout, const Record& record) {
        for (const StoredValue<Record>& row : layout) {
            WriteValue(row, FindField<FieldToWrite>(row, record));
        }
    }

  private:
    void WriteValue(const ValueForm& form, const FieldToWrite& field);
    void WriteElements(const ValueForm& form, const TextList& list);

    RegistryAccess& registry_;
    toolkit::WindowHandle owner_;
};

}  // namespace corvane
