#include "toolkit/known_texts.h"

#include <bit>
#include <functional>

namespace toolkit {

namespace {

constexpr std::size_t kFewestPlaces = 16;

}  // namespace

KnownTexts::KnownTexts(std::size_t expectedCount) {
    texts_.reserve(expectedCount);
    Arrange(std::bit_ceil(2 * expectedCount + kFewestPlaces));
}

bool KnownTexts::Add(std::wstring_view text) {
    std::size_t place = PlaceOf(text);
    if (places_[place] != 0) {
        return false;
    }
    if (2 * texts_.size() >= places_.size()) {
        Arrange(2 * places_.size());
        place = PlaceOf(text);
    }
    texts_.push_back(text);
    places_[place] = static_cast<std::uint32_t>(texts_.size());
    return true;
}

std::optional<std::size_t> KnownTexts::NumberOf(std::wstring_view text) const {
    const std::uint32_t numberAndOne = places_[PlaceOf(text)];
    return numberAndOne == 0 ? std::nullopt : std::optional<std::size_t>(numberAndOne - 1);
}

std::size_t KnownTexts::PlaceOf(std::wstring_view text) const {
    // There is a power of two of places, so that the mask makes a place of any hash and of the end the start.
    const std::size_t mask = places_.size() - 1;
    std::size_t place = std::hash<std::wstring_view>()(text) & mask;
    while (places_[place] != 0 && texts_[places_[place] - 1] != text) {
        place = (place + 1) & mask;
    }
    return place;
}

void KnownTexts::Arrange(std::size_t placeCount) {
    places_.assign(placeCount, 0);
    for (std::size_t number = 0; number < texts_.size(); ++number) {
        places_[PlaceOf(texts_[number])] = static_cast<std::uint32_t>(number + 1);
    }
}

}  // namespace toolkit
