#include "catalogue/listes.h"

#include "checks/valautorise.h"

namespace quilvane {

namespace {

/** The texts of a list, an empty end row apart. */
int textesDe(const liste& l) {
    int n = 0;
    while (n < l.nombre() && l[n].valeur != nullptr)
        ++n;
    return n;
}

// clang-format off
#define LISTE(nom, ...) {#nom, &nom, nom.begin(), textesDe(nom), nom.colonnes, __VA_ARGS__}

const sListe LISTES[] = {
    // Header and footer.
    LISTE(tE5,
          {"codes de genre de transaction", "transaction kind codes"},
          {"Codes de trois caractères, comparés à l'identique.",
           "Codes of three characters, compared exactly."}),
    LISTE(tE6,
          {"codes de type de message", "message type codes"},
          {"Codes de quatre caractères : tous les types, quel que soit le genre de transaction.",
           "Codes of four characters: every type, whatever the transaction kind."}),
    LISTE(tE6CRE,
          {"types de message permis pour le genre CRE", "message types allowed for the kind CRE"},
          {"Codes de quatre caractères que le champ d'en-tête E6 peut porter quand E5 vaut « CRE ».",
           "Codes of four characters that header field E6 may hold when E5 is “CRE”."}),
    LISTE(tE6DEM,
          {"types de message permis pour le genre DEM", "message types allowed for the kind DEM"},
          {"Codes de quatre caractères que le champ d'en-tête E6 peut porter quand E5 vaut « DEM ».",
           "Codes of four characters that header field E6 may hold when E5 is “DEM”."}),
    LISTE(tE6INV,
          {"types de message permis pour le genre INV", "message types allowed for the kind INV"},
          {"Codes de quatre caractères que le champ d'en-tête E6 peut porter quand E5 vaut « INV ».",
           "Codes of four characters that header field E6 may hold when E5 is “INV”."}),
    LISTE(tE6MOD,
          {"types de message permis pour le genre MOD", "message types allowed for the kind MOD"},
          {"Codes de quatre caractères que le champ d'en-tête E6 peut porter quand E5 vaut « MOD ».",
           "Codes of four characters that header field E6 may hold when E5 is “MOD”."}),
    LISTE(tE6EDI,
          {"types de message permis pour le genre EDI", "message types allowed for the kind EDI"},
          {"Codes de quatre caractères que le champ d'en-tête E6 peut porter quand E5 vaut « EDI ».",
           "Codes of four characters that header field E6 may hold when E5 is “EDI”."}),
    LISTE(tE6INF,
          {"types de message permis pour le genre INF", "message types allowed for the kind INF"},
          {"Codes de quatre caractères que le champ d'en-tête E6 peut porter quand E5 vaut « INF ».",
           "Codes of four characters that header field E6 may hold when E5 is “INF”."}),
    LISTE(TEC,
          {"codes d'émetteur", "emitter codes"},
          {"Codes de huit colonnes que le champ d'en-tête E3 de l'enregistrement FICH peut porter : trois "
           "caractères, « IPG » ou « ARS », deux blancs.",
           "Codes of eight columns that header field E3 of the FICH record may hold: three characters, "
           "“IPG” or “ARS”, two blanks."}),
    LISTE(TDC,
          {"codes d'organisme départemental", "departmental body codes"},
          {"Codes de huit colonnes : les trois caractères d'un département, « IPG » et deux blancs.",
           "Codes of eight columns: the three characters of a department, “IPG” and two blanks."}),
    LISTE(versionVSE,
          {"version du format", "format version"},
          {"La version de trois chiffres que le champ de pied F3 de l'enregistrement FICH doit porter.",
           "The version of three digits that footer field F3 of the FICH record must hold."}),
    LISTE(BDN8,
          {"code de la base destinataire", "code of the destination database"},
          {"Le code de huit colonnes, blancs compris, que porte le champ d'en-tête E10 d'un message.",
           "The code of eight columns, blanks included, that header field E10 of a message holds."}),
    LISTE(BDN031,
          {"code du récepteur", "receiver code"},
          {"Le code de huit colonnes, blancs compris, que porte le champ d'en-tête E4 de l'enregistrement "
           "FICH.",
           "The code of eight columns, blanks included, that header field E4 of the FICH record holds."}),
    LISTE(TOUQ,
          {"codes 3 et 4", "codes 3 and 4"},
          {"Codes d'un caractère que le champ d'en-tête E12 de l'enregistrement FICH peut porter.",
           "Codes of one character that header field E12 of the FICH record may hold."}),
    LISTE(NOUU,
          {"codes N et U", "codes N and U"},
          {"Codes d'un caractère que le champ d'en-tête E13 de l'enregistrement FICH peut porter.",
           "Codes of one character that header field E13 of the FICH record may hold."}),
    // Blank and starred fields.
    LISTE(ET1,
          {"un astérisque", "one asterisk"},
          {"Un champ fait d'un seul astérisque.", "A field made of a single asterisk."}),
    LISTE(ET4,
          {"quatre astérisques", "four asterisks"},
          {"Un champ fait de quatre astérisques.", "A field made of four asterisks."}),
    LISTE(ET12,
          {"douze astérisques", "twelve asterisks"},
          {"Un champ fait de douze astérisques.", "A field made of twelve asterisks."}),
    LISTE(deuxBlancs,
          {"deux blancs", "two blanks"},
          {"Un champ de deux colonnes laissé en blanc.", "A field of two columns left blank."}),
    LISTE(quatreBlancs,
          {"quatre blancs", "four blanks"},
          {"Un champ de quatre colonnes laissé en blanc.", "A field of four columns left blank."}),
    LISTE(cinqBlancs,
          {"cinq blancs", "five blanks"},
          {"Un champ de cinq colonnes laissé en blanc.", "A field of five columns left blank."}),
    LISTE(HuitBlancs,
          {"huit blancs", "eight blanks"},
          {"Un champ de huit colonnes laissé en blanc.", "A field of eight columns left blank."}),
    LISTE(DouzeBlancs,
          {"douze blancs", "twelve blanks"},
          {"Un champ de douze colonnes laissé en blanc.", "A field of twelve columns left blank."}),
    LISTE(quatorzeBlancs,
          {"quatorze blancs", "fourteen blanks"},
          {"Un champ de quatorze colonnes laissé en blanc.", "A field of fourteen columns left blank."}),
    LISTE(vingtBlancs,
          {"vingt blancs", "twenty blanks"},
          {"Un champ de vingt colonnes laissé en blanc.", "A field of twenty columns left blank."}),
    LISTE(trenteBlancs,
          {"trente blancs", "thirty blanks"},
          {"Un champ de trente colonnes laissé en blanc.", "A field of thirty columns left blank."}),
    LISTE(soixanteBlancs,
          {"soixante blancs", "sixty blanks"},
          {"Un champ de soixante colonnes laissé en blanc.", "A field of sixty columns left blank."}),
    LISTE(HuitBlancsFal,
          {"huit blancs ou huit astérisques", "eight blanks or eight asterisks"},
          {"Un champ de huit colonnes laissé en blanc ou couvert d'astérisques.",
           "A field of eight columns left blank or covered with asterisks."}),
    // Short codes.
    LISTE(FR,
          {"code pays FR", "country code FR"},
          {"Le code de deux lettres de la France.", "The two-letter code of France."}),
    LISTE(UN,
          {"valeur 1", "value 1"},
          {"Le seul caractère « 1 ».", "The character “1” alone."}),
    LISTE(SEX,
          {"codes de sexe", "sex codes"},
          {"Codes d'un chiffre, comparés à l'identique.", "Codes of one digit, compared exactly."}),
    LISTE(BOOL,
          {"valeurs 0 et 1", "values 0 and 1"},
          {"Le caractère « 0 » ou le caractère « 1 ».", "The character “0” or the character “1”."}),
    LISTE(BOOLFal,
          {"blanc, astérisque, 0 ou 1", "blank, asterisk, 0 or 1"},
          {"Un caractère : un blanc, un astérisque, « 0 » ou « 1 ».",
           "One character: a blank, an asterisk, “0” or “1”."}),
    LISTE(ZERO,
          {"valeur 0", "value 0"},
          {"Le seul caractère « 0 ».", "The character “0” alone."}),
    LISTE(NB,
          {"« NB » suivi de 28 blancs", "“NB” followed by 28 blanks"},
          {"Le texte « NB » dans un champ de trente colonnes, le reste en blanc.",
           "The text “NB” in a field of thirty columns, the rest blank."}),
    // Reference dates.
    LISTE(P5,
          {"date de référence P5", "reference date P5"},
          {"Un jour, écrit JJMMAAAA, à partir duquel des vérifications changent d'exigence.",
           "A day, written DDMMYYYY, from which some checks ask for something else."}),
    LISTE(P6,
          {"date de référence P6", "reference date P6"},
          {"Un jour, écrit JJMMAAAA, à partir duquel des vérifications changent d'exigence.",
           "A day, written DDMMYYYY, from which some checks ask for something else."}),
    LISTE(P7,
          {"date de référence P7", "reference date P7"},
          {"Un jour, écrit JJMMAAAA, à partir duquel des vérifications changent d'exigence.",
           "A day, written DDMMYYYY, from which some checks ask for something else."}),
    LISTE(P8,
          {"date de référence P8", "reference date P8"},
          {"Un jour, écrit JJMMAAAA, à partir duquel des vérifications changent d'exigence.",
           "A day, written DDMMYYYY, from which some checks ask for something else."}),
    LISTE(P17,
          {"date de référence P17", "reference date P17"},
          {"Un jour, écrit JJMMAAAA, à partir duquel des vérifications changent d'exigence.",
           "A day, written DDMMYYYY, from which some checks ask for something else."}),
    // Productions, tags, identifiers and orders.
    LISTE(PROD,
          {"codes de production d'une activité", "production codes of an activity"},
          {"Codes d'un caractère, comparés à l'identique.", "Codes of one character, compared exactly."}),
    LISTE(PROD_E,
          {"codes de production d'un site", "production codes of a site"},
          {"Codes d'un caractère, comparés à l'identique.", "Codes of one character, compared exactly."}),
    LISTE(PROD_EV,
          {"codes de production d'un site de code V", "production codes of a site of code V"},
          {"Codes d'un caractère que le champ C5 d'ERTI peut porter quand C4 vaut « V ».",
           "Codes of one character that field C5 of ERTI may hold when C4 is “V”."}),
    LISTE(FIL_V,
          {"code unique OEUF", "single code OEUF"},
          {"Le code de quatre caractères que le champ C9 d'ERTI porte quand C5 vaut « M ».",
           "The code of four characters that field C9 of ERTI holds when C5 is “M”."}),
    LISTE(ELV_V,
          {"codes 0 à 3 suivis de trois blancs", "codes 0 to 3 followed by three blanks"},
          {"Codes de quatre colonnes que le champ C10 d'ERTI peut porter quand C5 vaut « M ».",
           "Codes of four columns that field C10 of ERTI may hold when C5 is “M”."}),
    LISTE(TEMOIN,
          {"codes D et E", "codes D and E"},
          {"Codes d'un caractère que le champ C12 de DETE peut porter.",
           "Codes of one character that field C12 of DETE may hold."}),
    LISTE(TYP_IDENT,
          {"genres d'identifiant D et E", "kinds of identifier D and E"},
          {"Codes d'un caractère que le champ C4 d'ASSO peut porter.",
           "Codes of one character that field C4 of ASSO may hold."}),
    LISTE(TYP_NUMERO,
          {"types de numéro d'un identifiant", "types of number of an identifier"},
          {"Codes de cinq colonnes que le champ C5 d'ASSO peut porter, « CEM » étant suivi de deux blancs.",
           "Codes of five columns that field C5 of ASSO may hold, “CEM” being followed by two blanks."}),
    LISTE(DEROUL_MARC,
          {"codes A, D, E et S", "codes A, D, E and S"},
          {"Codes d'un caractère que le champ C10 de JALO peut porter.",
           "Codes of one character that field C10 of JALO may hold."}),
    LISTE(UTIL_BOUC,
          {"codes 0 à 5", "codes 0 to 5"},
          {"Codes d'un chiffre, comparés à l'identique.", "Codes of one digit, compared exactly."}),
    LISTE(C2_MODEL,
          {"codes Z, C et O", "codes Z, C and O"},
          {"Codes d'un caractère : le deuxième d'un modèle de boucle ovin ou caprin, et le champ C6 "
           "d'IMOC.",
           "Codes of one character: the second of an ovine or caprine tag model, and field C6 of IMOC."}),
    LISTE(C3_MODEL,
          {"troisièmes caractères d'un modèle ovin ou caprin",
           "third characters of an ovine or caprine model"},
          {"Codes d'un caractère, comparés à l'identique.", "Codes of one character, compared exactly."}),
    LISTE(C2_MODEL_BV,
          {"deuxième caractère d'un modèle bovin", "second character of a cattle model"},
          {"Le seul caractère admis à cette place du modèle de boucle.",
           "The only character accepted at that place of the tag model."}),
    LISTE(C3_MODEL_BV,
          {"troisièmes caractères d'un modèle bovin", "third characters of a cattle model"},
          {"Codes d'un caractère, comparés à l'identique.", "Codes of one character, compared exactly."}),
    LISTE(FAB_REP,
          {"premiers caractères d'un modèle de boucle", "first characters of a tag model"},
          {"Codes d'un caractère, comparés à l'identique.", "Codes of one character, compared exactly."}),
    LISTE(TYP_COM,
          {"types de commande de boucles", "types of tag order"},
          {"Codes de deux caractères que le champ C9 de PICO peut porter.",
           "Codes of two characters that field C9 of PICO may hold."}),
    LISTE(CAT_RECEN,
          {"catégories de recensement", "census categories"},
          {"Codes de six caractères que le champ C5 de RACO peut porter.",
           "Codes of six characters that field C5 of RACO may hold."}),
    LISTE(TTE,
          {"codes de deux chiffres du champ C11 d'EXP1", "two-digit codes of field C11 of EXP1"},
          {"Codes de deux chiffres, comparés à l'identique.", "Codes of two digits, compared exactly."}),
    LISTE(TCEP,
          {"codes 00 à 09", "codes 00 to 09"},
          {"Codes de deux chiffres que le champ C6 de PASS peut porter.",
           "Codes of two digits that field C6 of PASS may hold."}),
    // Movement causes.
    LISTE(TCME,
          {"causes d'entrée et fin de leur validité", "causes of entry and the end of their validity"},
          {"Paires : la lettre d'une cause, puis le dernier jour où elle est valable, écrit JJMMAAAA, ou « "
           "TOUJOURS ».",
           "Pairs: the letter of a cause, then the last day on which it is valid, written DDMMYYYY, or "
           "“TOUJOURS” (always)."}),
    LISTE(TCMS,
          {"causes de sortie et fin de leur validité", "causes of exit and the end of their validity"},
          {"Paires : la lettre d'une cause, puis le dernier jour où elle est valable, écrit JJMMAAAA, ou « "
           "TOUJOURS ».",
           "Pairs: the letter of a cause, then the last day on which it is valid, written DDMMYYYY, or "
           "“TOUJOURS” (always)."}),
    // Departments.
    LISTE(TD,
          {"codes de département à deux chiffres", "two-digit department codes"},
          {"Codes de deux chiffres de 01 à 95, et 97 et 98, comparés aux deux premiers chiffres d'un "
           "numéro.",
           "Codes of two digits from 01 to 95, and 97 and 98, compared with the first two digits of a "
           "number."}),
    LISTE(TDD,
          {"codes de département à trois caractères", "three-character department codes"},
          {"Codes de trois caractères, de « 001 » à « 095 » sauf « 020 », puis « 02A », « 02B », l'outre-mer "
           "et « 098 ».",
           "Codes of three characters, from “001” to “095” except “020”, then “02A”, “02B”, overseas and "
           "“098”."}),
    // Countries.
    LISTE(TECH,
          {"codes des pays d'échange", "codes of the exchange countries"},
          {"Codes de deux lettres : l'Union européenne (« EL », jamais « GR »), « UK », « XI » et « CH ».",
           "Codes of two letters: the European Union (“EL”, never “GR”), “UK”, “XI” and “CH”."}),
    LISTE(TP,
          {"codes de tous les pays", "codes of all countries"},
          {"Codes ISO 3166-1 de deux lettres, avec « EL » au lieu de « GR », « UK » en plus de « GB », et "
           "« XI ».",
           "ISO 3166-1 codes of two letters, with “EL” instead of “GR”, “UK” beside “GB”, and “XI”."}),
    LISTE(TCPNOCEE,
          {"codes des pays hors Union européenne", "codes of the countries outside the European Union"},
          {"Codes de deux lettres, comparés à l'identique.", "Codes of two letters, compared exactly."}),
    // Cattle breeds.
    LISTE(TR,
          {"codes de race bovine", "cattle breed codes"},
          {"Codes de deux chiffres, comparés à l'identique.", "Codes of two digits, compared exactly."}),
    LISTE(TRG,
          {"codes de race bovine du type ECBO", "cattle breed codes of type ECBO"},
          {"Codes de deux chiffres, comparés à l'identique.", "Codes of two digits, compared exactly."}),
    // Legal forms.
    LISTE(TRSCRE,
          {"formes juridiques admises en création", "legal forms accepted on creation"},
          {"Abréviations de quatre colonnes, blancs et points compris.",
           "Abbreviations of four columns, blanks and stops included."}),
    LISTE(TRSMOD,
          {"formes juridiques admises en modification", "legal forms accepted on modification"},
          {"Abréviations de quatre colonnes, blancs et points compris : celles de la création et cinq de "
           "plus.",
           "Abbreviations of four columns, blanks and stops included: those of the creation and five more."}),
    // Numbers given to departmental bodies.
    LISTE(NEV,
          {"séries attribuées aux organismes départementaux", "series given to departmental bodies"},
          {"Paires : les six premiers caractères d'un organisme départemental, puis ses séries de deux "
           "lettres, séparées par des virgules.",
           "Pairs: the first six characters of a departmental body, then its series of two letters, "
           "separated by commas."}),
    LISTE(IND_M,
          {"plages de numéros ovins et caprins par organisme", "ovine and caprine number ranges by body"},
          {"Lignes de trois : les six premiers caractères d'un organisme départemental, puis le plus petit "
           "et le plus grand numéro de sa plage, de six chiffres.",
           "Rows of three: the first six characters of a departmental body, then the lowest and the "
           "highest number of its range, of six digits."}),
    LISTE(TEDC,
          {"émetteurs et organismes qui vont ensemble", "emitters and bodies that belong together"},
          {"Paires de codes de huit colonnes : un émetteur, puis un organisme pour lequel il peut émettre.",
           "Pairs of codes of eight columns: an emitter, then a body for which it may send."}),
};

#undef LISTE
// clang-format on

}  // namespace

constinit const std::span<const sListe> listes(LISTES);

const sListe* listeEnMots(const liste* valeurs) {
    for (const sListe& l : listes)
        if (l.valeurs == valeurs) return &l;
    return nullptr;
}

const sListe* listeNommee(std::string_view nom) {
    for (const sListe& l : listes)
        if (l.nom == nom) return &l;
    return nullptr;
}

}  // namespace quilvane
