/**
 * Whole input files through the program. The first byte chooses the console
 * mode, the rest is the file.
 */
#include "cible.h"

#include <algorithm>
#include <vector>

#include "driver/quilvane.h"

namespace {

/** The records of a published file; its line ends are all of one kind. */
std::vector<std::string> records(const std::string& emis) {
    std::vector<std::string> r;
    std::size_t debut = 0;
    for (std::size_t fin; (fin = emis.find('\n', debut)) != std::string::npos; debut = fin + 1) {
        std::string ligne = emis.substr(debut, fin - debut);
        if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
        r.push_back(ligne);
    }
    cible::verifier(debut == emis.size(), "a published file ends with a line end");
    return r;
}

/** Codes of an error record of 256 columns. */
int codes(const std::string& r) {
    int n = 0;
    while (n < 10 && r[static_cast<std::size_t>(111 + 5 * n)] == 'I')
        ++n;
    return n;
}

/** Whether the counts of a FICH record can be compared with the records of its
 *  file: its own columns are all there, and no line that ends in CR alone was
 *  counted without being processed. */
bool comptable(const std::string& contenu) {
    for (std::size_t i = 0; i < contenu.size(); ++i)
        if (contenu[i] == '\r' && (i + 1 == contenu.size() || contenu[i + 1] != '\n')) return false;
    const std::size_t premiere = contenu.find_first_of("\r\n\x1a");
    return premiere != std::string::npos && premiere >= 256 && contenu[premiere] != '\x1a' &&
           contenu.find('\0') == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cible::octets o{data, size};
    constexpr const char* OPTIONS[] = {"", "-i", "-d"};
    const char* const option = OPTIONS[o.un() % 3];
    const std::string contenu = o.tout();
    const cible::issue i = cible::executer(contenu, option);

    if (i.statut == quilvane::STATUT_VALIDE) {
        const std::vector<std::string> r = records(i.emis);
        for (std::size_t n = 1; n < r.size(); ++n)
            cible::verifier(r[n].size() == 256, "an accepted record has 256 columns");
        if (comptable(contenu))
            cible::verifier(std::stol(r[0].substr(112, 6)) == static_cast<long>(r.size()) - 1,
                            "the FICH count is that of the records");
    } else if (i.statut == quilvane::STATUT_ERREURS) {
        const std::vector<std::string> r = records(i.emis);
        for (std::size_t n = 1; n < r.size(); ++n) {
            cible::verifier(r[n].size() <= 256, "an error record has at most 256 columns");
            if (r[n].size() == 256) cible::verifier(codes(r[n]) >= 1, "an error record names an error");
        }
        // Records in error, the FICH record's own included.
        if (comptable(contenu))
            cible::verifier(std::stol(r[0].substr(94, 6)) == static_cast<long>(r.size()) - 1,
                            "the FICH count is that of the error records");
    }
    // The same input gives the same bytes whatever was processed before; the
    // clock may move on between the two runs, so stamps are left out.
    const cible::issue j = cible::executer(contenu, option);
    cible::verifier(i.statut == j.statut && i.publie == j.publie && i.emis.size() == j.emis.size(),
                    "runs do not depend on one another");
    return 0;
}
