/**
 * resume.js - what stands above the list: the statement, its sentences, the
 * files, what stops a file, what is good to know about it, the bars.
 *
 * `vue` is the state that rapport.js keeps: textes, catalogue, fichiers,
 * fichier, rang (of the file), filtre, liste, mots, ancre, conteneur.
 */
"use strict";
(function (Q) {
    const el = Q.el;
    const ACCEPTE = 0,
        ARRETE = 1,
        A_CORRIGER = 2;
    const FORME = ["accepte", "arret", "corriger"];
    const BARRES = 8,
        AVERTISSEMENTS = 5;

    // ------------------------------------------------ statement and summary

    function enonce(fichier, textes) {
        const f = fichier.source;
        if (f.statut === ACCEPTE) return [textes.accepteTitre, textes.accepteSous(f.enregistrements)];
        if (f.statut === ARRETE) return [textes.fatalTitre, textes.fatalSous];
        return [textes.aCorrigerTitre(f.refuses), textes.aCorrigerSous(f.refuses, f.enregistrements)];
    }

    function enonceDeTous(fichiers, textes) {
        const restants = fichiers.filter((f) => f.source.statut !== ACCEPTE);
        if (!restants.length) return [textes.plusieursAcceptes(fichiers.length), ""];
        return [
            textes.plusieursTitre(restants.length, fichiers.length),
            textes.plusieursSous(fichiers.reduce((n, f) => n + (f.source.refuses || 0), 0)),
        ];
    }

    function gravite(fichiers) {
        const statuts = fichiers.map((f) => f.source.statut);
        return [ARRETE, A_CORRIGER, ACCEPTE].find((s) => statuts.includes(s)) ?? ACCEPTE;
    }

    function phrases(vue, fichier) {
        const { textes } = vue;
        const f = fichier.source;
        const suite = [];
        if (f.statut === A_CORRIGER) {
            suite.push(
                el(
                    "p",
                    null,
                    textes.phraseNombres(f.acceptes, f.refuses),
                    " ",
                    textes.phrasePoints(fichier.constats.length, fichier.decoulent),
                ),
            );
            const premier = fichier.parNumero[0];
            if (premier && premier.n > 1)
                suite.push(
                    el(
                        "p",
                        null,
                        textes.phraseFrequent(premier.n),
                        " ",
                        el("q", null, Q.visible(vue.mots(premier.exemple).titre)),
                        ", ",
                        textes.phrasePremiereLigne,
                        " ",
                        el(
                            "a",
                            { href: vue.ancre(premier.exemple.ligne) },
                            textes.ligneMinuscule(premier.exemple.ligne),
                        ),
                        ".",
                    ),
                );
        }
        if (f.resultat && f.resultat.phrase)
            suite.push(el("p", { lang: vue.langueDuRapport }, Q.visible(f.resultat.phrase)));
        return suite;
    }

    function resume(vue) {
        const { textes, fichiers, fichier } = vue;
        const plusieurs = fichiers.length > 1;
        const forme = FORME[plusieurs ? gravite(fichiers) : fichier.source.statut];
        const [titre, sous] = plusieurs ? enonceDeTous(fichiers, textes) : enonce(fichier, textes);
        return el(
            `section#resume.${forme}`,
            { "aria-labelledby": "enonce", tabindex: "-1" },
            Q.symbole(forme),
            el(
                "div",
                null,
                plusieurs ? null : el("p.nom", null, Q.donnee(fichier.source.nom)),
                el("h1#enonce", null, titre),
                sous ? el("p.sous", null, sous) : null,
                plusieurs ? null : el("div.phrases", null, phrases(vue, fichier)),
            ),
        );
    }

    function listeDeFichiers(vue) {
        const { textes, fichiers } = vue;
        return el(
            "section#fichiers.carte",
            { "aria-labelledby": "titre-fichiers" },
            el("h2#titre-fichiers", null, textes.fichiers),
            el(
                "div.defile",
                null,
                el(
                    "table.fichiers",
                    null,
                    el(
                        "thead",
                        null,
                        el(
                            "tr",
                            null,
                            [textes.fichier, textes.etat, textes.lus, textes.refuses].map((t, i) =>
                                el(i > 1 ? "th.nombre" : "th", { scope: "col" }, t),
                            ),
                        ),
                    ),
                    el(
                        "tbody",
                        null,
                        fichiers.map((f, i) =>
                            el(
                                "tr",
                                { "aria-current": i === vue.rang ? "true" : null },
                                el(
                                    "th",
                                    { scope: "row" },
                                    el("a", { href: `#fichier-${i + 1}` }, Q.donnee(f.source.nom)),
                                ),
                                el(
                                    `td.${FORME[f.source.statut]}`,
                                    null,
                                    Q.symbole(FORME[f.source.statut]),
                                    " ",
                                    textes.etats[f.source.statut],
                                ),
                                el("td.nombre", null, textes.nombre(f.source.enregistrements || 0)),
                                el("td.nombre", null, textes.nombre(f.source.refuses || 0)),
                            ),
                        ),
                    ),
                ),
            ),
        );
    }

    function enTeteDeFichier(vue) {
        const { textes, fichier } = vue;
        const [titre, sous] = enonce(fichier, textes);
        const forme = FORME[fichier.source.statut];
        return el(
            `section#fichier.carte.${forme}`,
            { "aria-labelledby": "titre-fichier", tabindex: "-1" },
            el("h2#titre-fichier", { tabindex: "-1" }, Q.symbole(forme), " ", Q.donnee(fichier.source.nom)),
            el(
                "p",
                null,
                el("b", null, titre),
                fichier.source.statut === ACCEPTE || fichier.source.statut === ARRETE ? ". " : " ",
                sous,
            ),
            el("div.phrases", null, phrases(vue, fichier)),
        );
    }

    // ------------------------------------- fatal condition and warnings

    function arret(vue) {
        const { textes, catalogue, fichier } = vue;
        const f = fichier.source.fatal;
        if (!f) return null;
        return el(
            "section#arret.carte.arret",
            { "aria-labelledby": "titre-arret" },
            el("h2#titre-arret", null, textes.ceQuiArrete),
            el("h3", null, Q.visible(f.titre || f.message)),
            el(
                "p.detail",
                null,
                [f.ligne ? textes.ligne(f.ligne) : null, f.code].filter(Boolean).map(Q.visible).join(" · "),
            ),
            f.titre ? el("p", null, Q.visible(f.message)) : null,
            f.remede
                ? el("p.remede", null, el("b", null, `${textes.commentFaire} `), Q.visible(f.remede))
                : null,
            catalogue && catalogue.fatals.has(f.code)
                ? el("p.liens", null, el("a", { href: `#fatal-${f.code}` }, textes.voirFatal(f.code)))
                : null,
        );
    }

    function avertissements(vue) {
        const { textes, fichier } = vue;
        const tous = fichier.source.avertissements || [];
        if (!tous.length) return null;
        const ligne = (a) =>
            el(
                "li",
                { "data-code": a.code },
                el("b", null, `${textes.ligneColonne(a.ligne, a.colonne)} `),
                Q.visible(a.message),
            );
        return el(
            "section#avertissements.carte",
            { "aria-labelledby": "titre-avertissements" },
            el("h2#titre-avertissements", null, textes.avertissements(tous.length)),
            el("ul.avertissements", null, tous.slice(0, AVERTISSEMENTS).map(ligne)),
            tous.length > AVERTISSEMENTS
                ? Q.reste(
                      textes.autresAvertissements(tous.length - AVERTISSEMENTS),
                      "avertissements",
                      tous.slice(AVERTISSEMENTS),
                      ligne,
                      textes,
                  )
                : null,
        );
    }

    // ------------------------------------------------------------------ bars

    /** A list of bars; each is a button that filters by its value, or lets go of it. */
    function barres(vue, titre, id, comptes, nom, champ) {
        const { textes, filtre } = vue;
        const plusGrand = Math.max(...comptes.map((c) => c.n));
        const bouton = (c) => {
            const valeur = champ === "numero" ? String(c.cle) : c.cle;
            const barre = el("span.barre", { "aria-hidden": "true" }, el("span"));
            barre.firstChild.style.width = `${Math.max(1, (100 * c.n) / plusGrand)}%`;
            const b = el(
                "button.compte",
                { type: "button", "aria-pressed": String(filtre[champ] === valeur), "data-cle": c.cle },
                el("span.nom", null, nom(c)),
                " ",
                el("span.n", null, textes.nombre(c.n)),
                barre,
            );
            b.addEventListener("click", () => {
                filtre[champ] = filtre[champ] === valeur ? (champ === "numero" ? "" : null) : valeur;
                vue.liste.filtrer();
            });
            return el("li", null, b);
        };
        const liste = el("ul.barres", null, comptes.slice(0, BARRES).map(bouton));
        const reste = comptes.slice(BARRES);
        return el(
            `div#${id}`,
            null,
            el("h3", null, titre),
            liste,
            reste.length
                ? Q.reste(textes.voirToutesBarres(reste.length), "barres", reste, bouton, textes)
                : null,
        );
    }

    function vueDEnsemble(vue) {
        const { textes, fichier } = vue;
        return el(
            "section#ensemble.carte",
            { "aria-labelledby": "titre-ensemble" },
            el("h2#titre-ensemble", null, textes.vueDEnsemble),
            el(
                "div.colonnes-barres",
                null,
                barres(
                    vue,
                    textes.parNumero,
                    "barres-numero",
                    fichier.parNumero,
                    (c) => [
                        el("span.numero", null, String(c.cle)),
                        " ",
                        Q.visible(vue.mots(c.exemple).titre),
                    ],
                    "numero",
                ),
                barres(
                    vue,
                    textes.parType,
                    "barres-type",
                    fichier.parType,
                    (c) => {
                        const table = vue.catalogue && vue.catalogue.tables.get(c.cle);
                        return [
                            el("b", null, Q.donnee(c.cle) || textes.sansType),
                            table && table.titre ? ` ${Q.visible(table.titre)}` : null,
                        ];
                    },
                    "type",
                ),
            ),
        );
    }

    /** Shows on the bars by which of them the list is filtered. */
    function marquerBarres(vue) {
        const marquer = (id, valeur) =>
            vue.conteneur
                .querySelectorAll(`#${id} button.compte`)
                .forEach((b) =>
                    b.setAttribute("aria-pressed", String(valeur !== null && b.dataset.cle === valeur)),
                );
        marquer("barres-numero", vue.filtre.numero === "" ? null : vue.filtre.numero);
        marquer("barres-type", vue.filtre.type);
    }

    Object.assign(Q, {
        enonce,
        resume,
        listeDeFichiers,
        enTeteDeFichier,
        arret,
        avertissements,
        vueDEnsemble,
        marquerBarres,
    });
})((globalThis.Quilvane ??= {}));
