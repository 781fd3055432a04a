#include "messages/aiguillage.h"

#include <algorithm>
#include <array>

namespace quilvane {

namespace {

/** The types packed into numbers, so that a search reads no text. */
constexpr std::array<std::uint64_t, LEN_AIGUILLAGE> CLES = [] {
    std::array<std::uint64_t, LEN_AIGUILLAGE> cles{};
    for (std::size_t i = 0; i < cles.size(); ++i)
        cles[i] = tValAutorise::cle(tAiguillage[i].nomVSE);
    return cles;
}();
// They are shorter than eight characters: equal keys are equal texts.
static_assert(std::all_of(CLES.begin(), CLES.end(), [](std::uint64_t cle) { return cle >> 56 == 0; }));

}  // namespace

int aiguiller(const char* typeVSE) {
    const auto trouve = std::find(CLES.begin(), CLES.end(), tValAutorise::cle(typeVSE));
    return trouve != CLES.end() ? static_cast<int>(trouve - CLES.begin()) : ERR_AIGUILLAGE;
}

}  // namespace quilvane
