#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

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

/// Reads the values of records from the current key, in the order of their layout. A value that cannot be
/// read is reported and keeps what the record held; reading goes on.
class RecordReader {
  public:
    RecordReader(RegistryAccess& registry, ErrorReporter& reporter, toolkit::WindowHandle owner)
        : registry_(registry), reporter_(reporter), owner_(owner) {}

    template <typename Record>
    void Read(std::span<const StoredValue<Record>> layout, Record& record) {
        for (const StoredValue<Record>& row : layout) {
            ReadValue(row, record);
        }
    }

  private:
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, Record& record) {
        switch (row.storedAs) {
            case StoredAs::kNumber:
                ReadNumber(row.name, record.*row.number, row.loadFlags, row.defaultNumber);
                break;
            case StoredAs::kText:
                ReadText(row.name, record.*row.text, row.loadFlags, row.defaultText);
                break;
            case StoredAs::kTextList:
                static_cast<void>(registry_.ReadStringList(row.name, record.*row.texts, owner_));
                break;
            case StoredAs::kTextArray:
                static_cast<void>(registry_.ReadStringArray(row.name, record.*row.texts, owner_));
                break;
            case StoredAs::kNumberList:
                static_cast<void>(registry_.ReadIntList(row.name, record.*row.numbers, owner_));
                break;
            case StoredAs::kCount:
                ReadCount(row.name, row.loadFlags);
                break;
            case StoredAs::kElements:
                ReadElements(row.name, record.*row.texts, row.loadFlags);
                break;
            case StoredAs::kOldElement:
                if (count_ == 0) {
                    ReadText(row.name, record.*row.text, row.loadFlags, row.defaultText);
                    (record.*row.texts).push_back(record.*row.text);
                }
                break;
        }
    }

    void ReadNumber(std::wstring_view name, std::int32_t& number, std::uint32_t flags,
                    std::int32_t defaultNumber);
    void ReadText(std::wstring_view name, std::wstring& text, std::uint32_t flags,
                  std::wstring_view defaultText);
    void ReadCount(std::wstring_view name, std::uint32_t flags);
    void ReadElements(std::wstring_view prefix, TextList& list, std::uint32_t flags);

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
            WriteValue(row, record);
        }
    }

  private:
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const Record& record) {
        switch (row.storedAs) {
            case StoredAs::kNumber:
                static_cast<void>(registry_.WriteInt(row.name, record.*row.number, owner_, row.saveFlags));
                break;
            case StoredAs::kText:
                static_cast<void>(registry_.WriteString(row.name, record.*row.text, owner_, row.saveFlags));
                break;
            case StoredAs::kTextList:
                static_cast<void>(registry_.WriteStringList(row.name, record.*row.texts, owner_));
                break;
            case StoredAs::kTextArray:
                static_cast<void>(registry_.WriteStringArray(row.name, record.*row.texts, owner_));
                break;
            case StoredAs::kNumberList:
                static_cast<void>(registry_.WriteIntList(row.name, record.*row.numbers, owner_));
                break;
            case StoredAs::kCount:
                WriteCount(row.name, record.*row.texts, row.saveFlags);
                break;
            case StoredAs::kElements:
                WriteElements(row.name, record.*row.texts, row.saveFlags);
                break;
            case StoredAs::kOldElement:
                break;
        }
    }

    void WriteCount(std::wstring_view name, const TextList& list, std::uint32_t flags);
    void WriteElements(std::wstring_view prefix, const TextList& list, std::uint32_t flags);

    RegistryAccess& registry_;
    toolkit::WindowHandle owner_;
};

}  // namespace corvane
