#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace toolkit {

/// The different texts met so far, numbered 0, 1, 2 and so on in the order in which they came: tells, among
/// tens of thousands as fast as among ten, whether a text is one of them and which. Letter case tells texts
/// apart.
///
/// It keeps views: the texts must stay where they are for as long as this is used.
class KnownTexts {
  public:
    /// `expectedCount` is how many different texts will arrive; more may, and cost some rearranging.
    explicit KnownTexts(std::size_t expectedCount = 0);

    /// Gives the text a number where it has none. Returns whether it is new.
    bool Add(std::wstring_view text);
    /// The number of the text; none where it was never added.
    [[nodiscard]] std::optional<std::size_t> NumberOf(std::wstring_view text) const;
    [[nodiscard]] bool Contains(std::wstring_view text) const { return NumberOf(text).has_value(); }

  private:
    /// The place of the text, or the free one where it belongs.
    [[nodiscard]] std::size_t PlaceOf(std::wstring_view text) const;
    void Arrange(std::size_t placeCount);

    std::vector<std::wstring_view> texts_;  ///< By number.
    std::vector<std::uint32_t> places_;     ///< By hash: a number and 1; 0, as in half of them, is free.
};

}  // namespace toolkit
