/**
 * Any bytes as a file, explained in all five formats and both languages; JSON
 * and JSON lines must parse. The first byte chooses the language and --tout.
 */
#include <rapidjson/document.h>

#include <cstring>

#include "cible.h"
#include "rapport/rendus.h"

using namespace quilvane;

namespace {

struct sMemoire {
    const std::uint8_t* octets;
    std::size_t taille;
};

std::size_t lire(void* source, unsigned char* bloc, std::size_t taille, bool&) {
    sMemoire& m = *static_cast<sMemoire*>(source);
    const std::size_t n = m.taille < taille ? m.taille : taille;
    if (n > 0) std::memcpy(bloc, m.octets, n);
    m.octets += n;
    m.taille -= n;
    return n;
}

void retenir(void* ou, std::string_view octets) { *static_cast<std::string*>(ou) += octets; }

/** The report on a file in one format. */
std::string rapporter(eFormat format, const sDemande& demande, sMemoire fichier) {
    std::string texte;
    sRapport r = {.format = format, .langue = demande.langue, .couleur = true, .sortie = {retenir, &texte}};
    lecteur source;
    source.remplir = lire;
    source.source = &fichier;
    commencerRapport(r);
    commencerFichier(r, "\xE9\"");
    const sResume resume = examiner(source, "\xE9\"", demande, renduDe(r));
    terminerFichier(r, resume);
    terminerRapport(r, {&resume, 1});
    return texte;
}

bool estJson(std::string_view texte) {
    rapidjson::Document d;
    d.Parse<rapidjson::kParseValidateEncodingFlag>(texte.data(), texte.size());
    return !d.HasParseError();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    if (taille == 0) return 0;
    const sDemande demande = {.langue = (octets[0] & 1) != 0 ? ANGLAIS : FRANCAIS,
                              .tout = (octets[0] & 2) != 0};
    const sMemoire fichier = {octets + 1, taille - 1};
    cible::verifier(estJson(rapporter(FORMAT_JSON, demande, fichier)), "the report is no JSON");
    const std::string lignes = rapporter(FORMAT_JSONL, demande, fichier);
    for (std::size_t debut = 0, fin; (fin = lignes.find('\n', debut)) != std::string::npos; debut = fin + 1)
        cible::verifier(estJson(std::string_view(lignes).substr(debut, fin - debut)), "a line is no JSON");
    for (const eFormat format : {FORMAT_TEXTE, FORMAT_CSV})
        cible::verifier(!rapporter(format, demande, fichier).empty(), "a report is empty");
    // The page around it takes longer than all the rest.
    if ((octets[0] & 0xF0U) == 0)
        cible::verifier(!rapporter(FORMAT_HTML, demande, fichier).empty(), "a report is empty");
    return 0;
}
