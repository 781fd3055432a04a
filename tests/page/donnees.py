"""Reports and catalogues for the tests of the page, in the formats quilvane-rapport/1 and quilvane-catalogue/1.

Everything is made from a fixed seed: the same data at every run. Texts are
those of a plausible report, not the program's own.
"""
import random

PREFIXE = "11089ARS  031BDN  {genre}{type}1078IPG  EMETTEURBDN     00000000013N"
FIN = "15032024102030025        *"

# What a finding is made of: field, slot, columns, number, check, list, what
# the field is called, title, message, remedy (French, English), values.
FAUTES = [
    (
        "C2",
        2,
        (65, 76),
        67,
        "fConform10",
        "TD",
        ("Numéro national de l’animal", "National number of the animal"),
        ("Numéro d’animal mal formé", "Animal number not well formed"),
        (
            "« {v} » ne commence pas par un département connu suivi de huit chiffres.",
            "“{v}” does not begin with a known department followed by eight digits.",
        ),
        (
            "Écrivez le département sur deux chiffres, puis huit chiffres, puis deux espaces.",
            "Write the department in two digits, then eight digits, then two blanks.",
        ),
        ["ZZ12345678  ", "7812340000  "],
        ["78", "87"],
    ),
    (
        "C4",
        4,
        (79, 79),
        3,
        "fVerifValAut",
        "SEX",
        ("Sexe", "Sex"),
        ("Sexe inconnu", "Unknown sex"),
        ("« {v} » n’est pas un code de sexe.", "“{v}” is no code of a sex."),
        ("Écrivez 1 pour un mâle ou 2 pour une femelle.", "Write 1 for a male or 2 for a female."),
        ["3", "X"],
        ["1", "2"],
    ),
    (
        "C6",
        6,
        (82, 89),
        5,
        "fDATEC",
        None,
        ("Date de naissance", "Date of birth"),
        ("Date de naissance incorrecte", "Date of birth not correct"),
        ("« {v} » n’est pas une date du calendrier.", "“{v}” is no date of the calendar."),
        (
            "Écrivez la date sous la forme JJMMAAAA, par exemple 01022024.",
            "Write the date as DDMMYYYY, for example 01022024.",
        ),
        ["31022024", "  082023"],
        None,
    ),
    (
        "C10",
        10,
        (105, 106),
        6,
        "fVerifValAut",
        "TP",
        ("Pays de la mère", "Country of the dam"),
        ("Pays de la mère inconnu", "Unknown country of the dam"),
        ("« {v} » n’est pas un pays de la liste.", "“{v}” is no country of the list."),
        ("Écrivez le code du pays sur deux lettres.", "Write the country’s code in two letters."),
        ["ZZ", "F1"],
        ["FR", "FI"],
    ),
    (
        "C11",
        11,
        (107, 118),
        67,
        "fConform10FR",
        "TD",
        ("Numéro de la mère", "Number of the dam"),
        ("Numéro d’animal mal formé", "Animal number not well formed"),
        (
            "« {v} » ne peut pas être vérifié avec le pays « ZZ ».",
            "“{v}” cannot be checked with the country “ZZ”.",
        ),
        ("Corrigez d’abord le pays de la mère.", "Mend the country of the dam first."),
        ["7800000012  "],
        None,
    ),
    (
        "C17",
        17,
        (139, 150),
        68,
        "fConform8",
        "TD",
        ("Numéro de l’exploitation", "Number of the holding"),
        ("Numéro d’exploitation mal formé", "Holding number not well formed"),
        (
            "« {v} » n’est pas formé d’un département suivi de six chiffres et de quatre espaces.",
            "“{v}” is not made of a department followed by six digits and four blanks.",
        ),
        (
            "Écrivez le département, puis six chiffres, puis quatre espaces.",
            "Write the department, then six digits, then four blanks.",
        ),
        ["00123456    ", "            ", "781234560000"],
        ["01", "02"],
    ),
    (
        "C24",
        18,
        (159, 159),
        83,
        "fVerifValAut",
        "BOOL",
        ("Indicateur", "Flag"),
        ("Indicateur non valable", "Flag not valid"),
        ("« {v} » n’est ni 0 ni 1.", "“{v}” is neither 0 nor 1."),
        ("Écrivez 0 pour non ou 1 pour oui.", "Write 0 for no or 1 for yes."),
        ["2", " "],
        ["0", "1"],
    ),
]
TYPES = [
    ("NAIS", "naissance", "birth"),
    ("NVMN", "naissance abrégée", "birth, short form"),
    ("ENTR", "entrée", "entry on a holding"),
    ("SORT", "sortie", "exit from a holding"),
    ("ABAT", "abattage", "slaughter notice"),
    ("IMPO", "importation", "import"),
]


def enregistrement(type_, genre, places=()):
    """A record of 256 columns with texts put at columns (from 1)."""
    corps = "FR7812345678    11001022024LUNE           FR7800000012  10              10FR78123456            0010022024"
    texte = list((PREFIXE.format(genre=genre, type=type_) + corps).ljust(230) + FIN)
    for colonne, valeur in places:
        texte[colonne - 1 : colonne - 1 + len(valeur)] = valeur
    return "".join(texte)


def constat(langue, faute, ligne, type_, genre, hasard=None, decoule=None):
    """One finding; its value is the first of the fault's unless `hasard` chooses."""
    (
        champ,
        fente,
        colonnes,
        numero,
        verification,
        liste,
        libelle,
        titre,
        message,
        remede,
        valeurs,
        proches,
    ) = faute
    i = 0 if langue == "fr" else 1
    valeur = hasard.choice(valeurs) if hasard else valeurs[0]
    r = {
        "ligne": ligne,
        "colonne": colonnes[0],
        "enregistrement": ligne,
        "type": type_,
        "genre": genre,
        "cle": f"78{12340000 + ligne}  ",
        "partie": "C",
        "champ": champ,
        "libelle": libelle[i],
        "fente": fente,
        "colonnes": list(colonnes),
        "valeur": valeur,
        "numero": numero,
        "code": f"I{numero:03}1",
        "origine": "table",
        "verification": verification,
        "liste": liste,
        "dependance": {"champ": "C10", "valeur": "ZZ"} if champ == "C11" else None,
        "decoule_de": decoule,
        "titre": titre[i],
        "message": message[i].format(v=valeur),
        "remede": remede[i],
    }
    if proches:
        r["proches"] = proches
    return r


def fichier(nom, statut, constats=(), enregistrements=3, textes=None, langue="fr", **autres):
    """One file of a report."""
    refuses = len({c["ligne"] for c in constats})
    phrase = {
        0: (
            "quilvane publierait les enregistrements acceptés et finirait avec le statut 0.",
            "quilvane would publish the accepted records and end with status 0.",
        ),
        1: (
            "quilvane ne publierait rien et finirait avec le statut 1.",
            "quilvane would publish nothing and end with status 1.",
        ),
        2: (
            "quilvane publierait un fichier d’erreurs et finirait avec le statut 2.",
            "quilvane would publish an error file and end with status 2.",
        ),
    }[statut]
    r = {
        "nom": nom,
        "statut": statut,
        "fin_de_ligne": "LF",
        "fatal": None,
        "enregistrements": enregistrements,
        "acceptes": 0 if statut == 1 else enregistrements - refuses,
        "refuses": refuses,
        "constats": list(constats),
        "avertissements": [],
        "resultat": {
            "statut": statut,
            "fichier": {0: "accepte", 1: None, 2: "erreurs"}[statut],
            "phrase": phrase[langue == "en"],
        },
        "textes": textes or {},
    }
    r.update(autres)
    return r


def rapport(fichiers, langue="fr"):
    return {"format": "quilvane-rapport/1", "langue": langue, "fichiers": list(fichiers)}


def petit(langue="fr"):
    """Three records, two of them refused: 2 and 3 findings, one of which follows from another."""
    fautes = {f[0]: f for f in FAUTES}
    constats = [
        constat(langue, fautes["C2"], 2, "NAIS", "CRE"),
        constat(langue, fautes["C4"], 2, "NAIS", "CRE"),
        constat(langue, fautes["C10"], 3, "NAIS", "MOD"),
        constat(langue, fautes["C11"], 3, "NAIS", "MOD", decoule=2),
        constat(langue, fautes["C17"], 3, "NAIS", "MOD"),
    ]
    textes = {
        "2": enregistrement("NAIS", "CRE", [(65, "ZZ12345678  "), (79, "3")]),
        "3": enregistrement("NAIS", "MOD", [(105, "ZZ7800000012  "), (139, "00123456    ")]).replace(
            "LUNE", "LUN\\xC9"
        ),
    }
    return rapport([fichier("lot.vse", 2, constats, 3, textes, langue)], langue)


def accepte(langue="fr"):
    return rapport([fichier("lot_correct.vse", 0, (), 4, langue=langue)], langue)


def fatal(langue="fr", nom="lot_windows.vse"):
    f = {
        "code": "IG008",
        "ligne": 12,
        "titre": "Fins de ligne mélangées",
        "message": "La ligne 12 finit par CR LF, les lignes 1 à 11 par LF.",
        "remede": "Enregistrez le fichier avec une seule forme de fin de ligne.",
    }
    return rapport([fichier(nom, 1, (), 12, langue=langue, fin_de_ligne=None, fatal=f)], langue)


def avertissements(n=7):
    return [
        {
            "ligne": 1,
            "colonne": 1,
            "code": "bom",
            "message": "Le fichier commence par une marque d’ordre des octets (BOM), qui décale les colonnes.",
        },
        {
            "ligne": 4,
            "colonne": 0,
            "code": "sans_fin",
            "message": "La dernière ligne n’a pas de fin de ligne : cet enregistrement n’est pas lu.",
        },
        *(
            {
                "ligne": 5 + i,
                "colonne": 97,
                "code": "utf8",
                "message": "Une lettre accentuée écrite sur deux octets décale la suite d’une colonne.",
            }
            for i in range(n - 2)
        ),
    ]


def plusieurs(langue="fr"):
    premier = petit(langue)["fichiers"][0]
    return rapport(
        [
            premier,
            fichier("depot/janvier.vse", 0, (), 120, langue=langue),
            fatal(langue)["fichiers"][0],
            {**petit(langue)["fichiers"][0], "nom": "fevrier.vse", "avertissements": avertissements()},
        ],
        langue,
    )


HOSTILE = [
    "<script>document.title='volé'</script>",
    "</script><img src=x onerror=alert(1)>",
    "<!-- --><b>gras</b>",
    "\u202edroite à gauche\u202c",
    "&amp;&lt;",
    "long " * 2000,
]


def hostile():
    """Values that would be markup, turn the reading direction, or fill the screen."""
    constats = []
    for i, v in enumerate(HOSTILE):
        c = constat("fr", FAUTES[0], i + 2, "NAIS", "CRE")
        constats.append(
            {
                **c,
                "valeur": v,
                "message": f"« {v} » n’est pas admis.",
                "cle": v,
                "libelle": v,
                "titre": v[:200],
                "remede": v,
                "genre": "<b>",
                "proches": [v],
            }
        )
    textes = {str(i + 2): v.ljust(256) for i, v in enumerate(HOSTILE)}
    return rapport(
        [
            fichier(
                "<script>nom</script>\u202eesv.vse",
                2,
                constats,
                7,
                textes,
                avertissements=[{"ligne": 1, "colonne": 1, "code": "bom", "message": HOSTILE[1]}],
            )
        ]
    )


def grand(refuses=10000, langue="fr"):
    """Many refused records, two or three findings in each."""
    hasard = random.Random(7)
    constats, textes = [], {}
    for ligne in range(2, refuses + 2):
        type_ = hasard.choices(TYPES, (40, 20, 15, 12, 8, 5))[0][0]
        genre = hasard.choice(("CRE", "MOD", "INV"))
        choisies = sorted(hasard.sample(range(len(FAUTES)), hasard.choice((2, 2, 3, 3, 3))))
        places, premier = [], len(constats)
        for k in choisies:
            c = constat(langue, FAUTES[k], ligne, type_, genre, hasard)
            if k == 4 and 3 in choisies:
                c["decoule_de"] = premier + choisies.index(3)
            places.append((c["colonne"], c["valeur"]))
            constats.append(c)
        textes[str(ligne)] = enregistrement(type_, genre, places)
    return rapport([fichier("campagne_2024.vse", 2, constats, refuses + 1, textes, langue)], langue)


def catalogue(langue="fr", complet=False):
    """A catalogue of the types used above; `complet` has as many types, fields and numbers as the real one."""
    i = 0 if langue == "fr" else 1
    champs = []
    for champ, fente, colonnes, numero, verification, liste, libelle, titre, _, remede, _, _ in FAUTES:
        champs.append(
            {
                "champ": champ,
                "fente": fente,
                "colonnes": list(colonnes),
                "libelle": libelle[i],
                "regles": [
                    {
                        "verification": verification,
                        "liste": liste,
                        "dependance": None,
                        "numero": numero,
                        "genres": {
                            "CRE": "verifie",
                            "DEM": "ignore",
                            "INV": "verifie",
                            "EDI": "interdit",
                            "MOD": "verifie",
                        },
                        "phrase": remede[i],
                    }
                ],
            }
        )
    champs.append(
        {
            "champ": "C27",
            "fente": 21,
            "colonnes": [169, 230],
            "libelle": ("Non utilisé", "Not used")[i],
            "regles": [],
        }
    )
    tables = [
        {
            "table": t,
            "titre": titres[i],
            "genres": ["CRE", "DEM", "INV", "EDI", "MOD"],
            "cle": {"pays": "C1", "numero": "C2"},
            "champs": champs,
        }
        for t, *titres in TYPES
    ]
    par_numero = {f[3]: f for f in FAUTES}
    erreurs = [
        {
            "numero": n,
            "code": f"I{n:03}1",
            "titre": f[7][i],
            "sens": ("Le champ n’a pas la forme attendue.", "The field does not have the expected form.")[i],
            "remede": f[9][i],
            "ou": [f"{t[0]} {f[0]}" for t in TYPES],
        }
        for n, f in sorted(par_numero.items())
    ]
    listes = [
        {
            "nom": "TD",
            "titre": ("Départements", "Departments")[i],
            "contenu": ("Les numéros de département admis.", "The allowed department numbers.")[i],
            "colonnes": 2,
            "valeurs": [f"{n:02}" for n in range(1, 96)],
        },
        {
            "nom": "SEX",
            "titre": ("Sexes", "Sexes")[i],
            "contenu": ("Codes de sexe.", "Codes of a sex.")[i],
            "colonnes": 1,
            "valeurs": ["1", "2"],
        },
    ]
    if complet:
        for k in range(24):
            tables.append(
                {
                    "table": f"T{k:02}X",
                    "titre": f"type {k}",
                    "genres": ["CRE", "INV", "MOD"],
                    "cle": None,
                    "champs": [
                        {**champs[j % 7], "champ": f"C{j + 1}", "regles": champs[j % 7]["regles"] * 3}
                        for j in range(27)
                    ],
                }
            )
        erreurs += [{**erreurs[0], "numero": n, "code": f"I{n}1"} for n in range(200, 350)]
        listes += [
            {**listes[0], "nom": f"L{k}", "valeurs": [f"{v:03}" for v in range(300)]} for k in range(120)
        ]
    return {
        "format": "quilvane-catalogue/1",
        "langue": langue,
        "tables": tables,
        "erreurs": erreurs,
        "fatals": [
            {
                "code": "IG008",
                "titre": ("Fins de ligne mélangées", "Mixed line ends")[i],
                "sens": ("Le fichier a deux formes de fin de ligne.", "The file has two forms of line end.")[
                    i
                ],
                "remede": ("Gardez une seule forme.", "Keep one form.")[i],
            }
        ],
        "listes": listes,
        "exemples": [],
    }
