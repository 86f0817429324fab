#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "store/registry/registry_access.h"
#include "store/registry/registry_layout.h"
#include "toolkit/system/window_handle.h"

namespace corvane::store {

/// A count read from the registry is anybody's number. Up to this many elements are read one by one, as the
/// count says; a higher one is reported as invalid data. Then the elements that stand there up to this many
/// are read, without the missing ones behind the last, so that a damaged count loses no text, and costs
/// seconds instead of hours and all memory.
inline constexpr std::int32_t kHighestElementCount = 100000;

/// Reads the values of records from the current key, in the order of their layout. A value that cannot be
/// read is reported and keeps what the record held; reading goes on.
class RecordReader {
  public:
    RecordReader(RegistryAccess& registry, reporting::ErrorReporter& reporter, toolkit::WindowHandle owner)
        : registry_(registry), reporter_(reporter), owner_(owner) {}

    template <typename Record>
    void Read(std::span<const StoredValue<Record>> layout, Record& record) {
        const Record fresh;
        for (const StoredValue<Record>& row : layout) {
            std::visit([&](const auto& kind) { ReadValue(row, kind, fresh, record); }, row.kind);
        }
    }

  private:
    // A failure has been reported, and reading goes on.
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredNumber<Record>& number, const Record& fresh,
                   Record& record) {
        static_cast<void>(
            registry_.ReadInt(row.name, record.*number.field, owner_, row.loadFlags, fresh.*number.field));
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredText<Record>& text, const Record& fresh,
                   Record& record) {
        static_cast<void>(
            registry_.ReadString(row.name, record.*text.field, owner_, row.loadFlags, fresh.*text.field));
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredTextList<Record>& list,
                   const Record& /*fresh*/, Record& record) {
        static_cast<void>(registry_.ReadStringList(row.name, record.*list.field, owner_));
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredTextArray<Record>& array,
                   const Record& /*fresh*/, Record& record) {
        static_cast<void>(registry_.ReadStringArray(row.name, record.*array.field, owner_));
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredNumberList<Record>& list,
                   const Record& /*fresh*/, Record& record) {
        static_cast<void>(registry_.ReadIntList(row.name, record.*list.field, owner_));
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredCount<Record>& /*count*/,
                   const Record& /*fresh*/, Record& /*record*/) {
        ReadCount(row.name, row.loadFlags);
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredElements<Record>& elements,
                   const Record& /*fresh*/, Record& record) {
        ReadElements(row.name, row.loadFlags, record.*elements.field);
    }
    template <typename Record>
    void ReadValue(const StoredValue<Record>& row, const StoredOldElement<Record>& old, const Record& fresh,
                   Record& record) {
        if (count_ == 0) {
            std::wstring& text = record.*old.field;
            static_cast<void>(registry_.ReadString(row.name, text, owner_, row.loadFlags, fresh.*old.field));
            (record.*old.list).push_back(text);
        }
    }

    void ReadCount(std::wstring_view name, std::uint32_t flags);
    void ReadElements(std::wstring_view prefix, std::uint32_t flags, TextList& list);

    RegistryAccess& registry_;
    reporting::ErrorReporter& reporter_;
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
            std::visit([&](const auto& kind) { WriteValue(row, kind, record); }, row.kind);
        }
    }

  private:
    // A failure has been reported, and writing goes on.
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredNumber<Record>& number,
                    const Record& record) {
        static_cast<void>(registry_.WriteInt(row.name, record.*number.field, owner_, row.saveFlags));
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredText<Record>& text, const Record& record) {
        static_cast<void>(registry_.WriteString(row.name, record.*text.field, owner_, row.saveFlags));
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredTextList<Record>& list,
                    const Record& record) {
        static_cast<void>(registry_.WriteStringList(row.name, record.*list.field, owner_));
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredTextArray<Record>& array,
                    const Record& record) {
        static_cast<void>(registry_.WriteStringArray(row.name, record.*array.field, owner_));
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredNumberList<Record>& list,
                    const Record& record) {
        static_cast<void>(registry_.WriteIntList(row.name, record.*list.field, owner_));
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredCount<Record>& count, const Record& record) {
        static_cast<void>(registry_.WriteInt(
            row.name, static_cast<std::int32_t>((record.*count.field).size()), owner_, row.saveFlags));
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& row, const StoredElements<Record>& elements,
                    const Record& record) {
        WriteElements(row.name, row.saveFlags, record.*elements.field);
    }
    template <typename Record>
    void WriteValue(const StoredValue<Record>& /*row*/, const StoredOldElement<Record>& /*old*/,
                    const Record& /*record*/) {}

    void WriteElements(std::wstring_view prefix, std::uint32_t flags, const TextList& list);

    RegistryAccess& registry_;
    toolkit::WindowHandle owner_;
};

}  // namespace corvane::store
