#include "messages/aiguillage.h"

#include <algorithm>
#include <array>

#include "messages/messages.h"

namespace quilvane {

// clang-format off
constexpr sAiguillage tAiguillage[LEN_AIGUILLAGE] = {
    //type   table    rows     code          country number
    {"ABAT", tAbat,   &lAbat,  ABAT,         CINC,   CINC},
    {"ACTI", tActi,   &lActi,  ACTI,         C1,     C2},
    {"ASSO", tAsso,   &lAsso,  ASSO,         C1,     C2},
    {"DETE", tDete,   &lDete,  DETE,         C1,     C2},
    {"DETI", tDeti,   &lDeti,  DETI,         C1,     C2},
    {"ECBO", tEcbo,   &lEcbo,  ECBO,         CINC,   CINC},
    {"ECHA", tEcha,   &lEcha,  ECHA,         C18,    C19},
    {"EGET", tEget,   &lEget,  EGET,         CINC,   CINC},
    {"ENTR", tEntr,   &lEntr,  ENTR,         C6,     C7},
    {"ERRE", tErre,   &lErre,  ERRE,         CINC,   CINC},
    {"ERTI", tErti,   &lErti,  ERTI,         CINC,   CINC},
    {"EXP1", tExp1,   &lExp1,  EXP1,         C1,     C2},
    {"EXP2", tExp2,   &lExp2,  EXP2,         C1,     C2},
    {"GROC", tGroc,   &lGroc,  GROC,         C4,     C5},
    {"IMOC", tImoc,   &lImoc,  IMOC,         C4,     C5},
    {"IMPO", tImpo,   &lImpo,  IMPO,         C18,    C19},
    {"INFO", tInfo,   &lInfo,  INFO,         CINC,   CINC},
    {"JALO", tJalo,   &lJalo,  JALO,         C4,     C5},
    {"NAIS", tNais,   &lNais,  NAIS,         C16,    C17},
    {"NUMA", tNuma,   &lNuma,  NUMA,         C1,     C2},
    {"NVMN", tNvmn,   &lNvmn,  NVMN,         C16,    C17},
    {"PASS", tPass,   &lPass,  PASS,         C4,     C5},
    {"PICO", tPico,   &lPico,  PICO,         C1,     C2},
    {"RACO", tRaco,   &lRaco,  RACO,         C1,     C2},
    {"RATA", tRata,   &lRata,  RATA,         CINC,   CINC},
    {"REBO", tRebo,   &lRebo,  REBO,         C5,     C6},
    {"SORT", tSort,   &lSort,  SORT,         C6,     C7},
    {"ZZZZ", nullptr, nullptr, CODE_INCONNU, CINC,   CINC},
};
// clang-format on
static_assert(tAiguillage[ERR_AIGUILLAGE].code == CODE_INCONNU && ERR_AIGUILLAGE == LEN_AIGUILLAGE - 1);

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
