#include "rules/latin1.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using quilvane::texteLatin1;

namespace {

constexpr texteLatin1 ACCENTS("à É ç ê ÿ");
constexpr texteLatin1 BORNES("\u0080\u009F\u00A0\u00BF\u00C0\u00FF");
constexpr texteLatin1 ASCII("\a\n ~\x7F %s");
constexpr texteLatin1 VIDE("");

}  // namespace

TEST(Latin1, UnOctetParCaractere) {
    EXPECT_EQ(std::string(ACCENTS), "\xE0 \xC9 \xE7 \xEA \xFF");
    EXPECT_EQ(std::string(BORNES), "\x80\x9F\xA0\xBF\xC0\xFF");
}

TEST(Latin1, LAsciiResteCeQuIlEst) {
    EXPECT_EQ(std::string(ASCII), "\a\n ~\x7F %s");
    EXPECT_EQ(std::string(VIDE), "");
}

TEST(Latin1, LesOctetsGagnesSontNuls) {
    // Nine characters, five of them on two bytes in the source.
    static_assert(sizeof ACCENTS.octets == 9 + 5 + 1);
    for (std::size_t i = 9; i < sizeof ACCENTS.octets; ++i)
        EXPECT_EQ(ACCENTS.octets[i], '\0') << i;
}

TEST(Latin1, FaitALaCompilation) {
    static_assert(static_cast<unsigned char>(ACCENTS.octets[0]) == 0xE0);
    static_assert(std::is_convertible_v<const texteLatin1<4>&, const char*>);
    EXPECT_EQ(static_cast<const char*>(ACCENTS), ACCENTS.octets);
}
