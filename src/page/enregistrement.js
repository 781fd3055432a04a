/**
 * enregistrement.js - one refused record: its ruler, and beside it what is
 * wrong with each field and how to mend it.
 */
"use strict";
(function (Q) {
    const el = Q.el;

    /** The findings of a line, first causes first. */
    Q.constatsDeLigne = function (fichier, ligne) {
        const indices = fichier.parLigne.get(ligne) || [];
        const suite = (i) => (Number.isInteger(fichier.constats[i].decoule_de) ? 1 : 0);
        return [...indices].sort((a, b) => suite(a) - suite(b) || a - b);
    };

    const nomDuChamp = (constat, mots) =>
        mots.libelle
            ? Q.visible(Q.abrege(mots.libelle, 120))
            : constat.champ
              ? constat.champ
              : Q.visible(constat.type);

    function details(constat, contexte) {
        const { textes, fichier, mots, rangs } = contexte;
        const lignes = [];
        const ajouter = (terme, contenu) =>
            lignes.push(el("div", null, el("dt", null, terme), el("dd", null, contenu)));
        if (constat.valeur !== null && constat.valeur !== undefined && constat.champ)
            ajouter(textes.valeurRecue, Q.valeur(constat.valeur, textes, 400));
        if ((constat.proches || []).length)
            ajouter(
                textes.valeursProches,
                el(
                    "ul.etiquettes",
                    null,
                    constat.proches.map((p) => el("li", null, el("code", null, Q.visible(p)))),
                ),
            );
        if (constat.dependance)
            ajouter(textes.dependance, [
                Q.visible(constat.dependance.champ),
                " ",
                Q.valeur(constat.dependance.valeur, textes, 100),
            ]);
        if (Number.isInteger(constat.decoule_de)) {
            const cause = fichier.constats[constat.decoule_de];
            if (cause) {
                const rang = rangs.get(constat.decoule_de);
                ajouter(textes.decoule, [
                    rang ? `${rang}. ` : `${textes.ligneMinuscule(cause.ligne)} : `,
                    nomDuChamp(cause, mots(cause)),
                    el("span.detail", null, ` (${textes.decouleAide})`),
                ]);
            }
        }
        return lignes.length ? el("dl", null, lignes) : null;
    }

    function explication(indice, rang, contexte) {
        const { textes, catalogue, fichier, mots } = contexte;
        const constat = fichier.constats[indice];
        const m = mots(constat);
        const champ = Q.ancreDuChamp(constat, catalogue);
        const connue = catalogue && catalogue.erreurs.has(String(constat.numero));
        const nomDeFiche = constat.champ ? `${Q.tableDe(constat)} ${constat.champ}` : constat.type;
        return el(
            "li.explication",
            {
                "data-indice": indice,
                "data-numero": constat.numero,
                "data-champ": constat.champ || "",
                class: Number.isInteger(constat.decoule_de) ? "explication suite" : "explication",
            },
            el("div.rang", { "aria-hidden": "true" }, String(rang)),
            el(
                "div.corps",
                null,
                el("h4", null, nomDuChamp(constat, m)),
                el(
                    "p.detail",
                    null,
                    [
                        constat.champ,
                        constat.colonnes ? textes.colonnes(...constat.colonnes) : null,
                        `${textes.numero.toLowerCase()} ${constat.numero}`,
                    ]
                        .filter(Boolean)
                        .join(" · "),
                ),
                el("p.titre", null, Q.visible(m.titre)),
                m.message && m.message !== m.titre ? el("p", { lang: m.langue }, Q.visible(m.message)) : null,
                details(constat, contexte),
                m.remede
                    ? el("p.remede", null, el("b", null, `${textes.commentFaire} `), Q.visible(m.remede))
                    : null,
                constat.derriere ? el("p.note", null, textes.derriere) : null,
                champ || connue
                    ? el(
                          "p.liens",
                          null,
                          champ
                              ? el("a.voir-champ", { href: champ }, textes.voirChamp(Q.visible(nomDeFiche)))
                              : null,
                          champ && connue ? " " : null,
                          connue
                              ? el(
                                    "a.voir-erreur",
                                    { href: `#erreur-${constat.numero}` },
                                    textes.voirErreur(constat.numero),
                                )
                              : null,
                      )
                    : null,
            ),
        );
    }

    /**
     * Fills the panel with the record of a line. `contexte` holds textes,
     * catalogue, fichier, mots (the words of a finding), ancre (the address of
     * a line) and largeur (the columns of a piece of the ruler).
     */
    Q.montrerEnregistrement = function (panneau, ligne, contexte) {
        const { textes, catalogue, fichier, ancre } = contexte;
        const indices = Q.constatsDeLigne(fichier, ligne);
        const constats = indices.map((i) => fichier.constats[i]);
        const premier = constats[0];
        const place = fichier.lignes.indexOf(ligne);
        const texte = (fichier.source.textes || {})[String(ligne)];
        const rangs = new Map(indices.map((i, k) => [i, k + 1]));
        const voisin = (l, mot, fleche) =>
            l === undefined
                ? el("span.bouton.eteint", { "aria-hidden": "true" }, fleche)
                : el(
                      "a.bouton",
                      { href: ancre(l), "aria-label": `${mot} (${textes.ligneMinuscule(l)})`, title: mot },
                      fleche,
                  );
        panneau.replaceChildren(
            el(
                "div.tete",
                null,
                el(
                    "div",
                    null,
                    el(
                        "h3#titre-enregistrement",
                        { tabindex: "-1" },
                        textes.ligne(ligne),
                        " ",
                        el(
                            "span.type",
                            null,
                            Q.donnee(premier.type),
                            premier.genre ? [" ", Q.donnee(premier.genre)] : null,
                        ),
                    ),
                    el(
                        "p.detail",
                        null,
                        (premier.cle || "").trim()
                            ? [
                                  `${textes.cle} `,
                                  el("code", null, Q.donnee(Q.abrege(premier.cle.trim(), 60))),
                                  " · ",
                              ]
                            : null,
                        premier.enregistrement ? textes.numeroDansFichier(premier.enregistrement) : null,
                    ),
                ),
                el(
                    "nav.voisins",
                    { "aria-label": textes.enregistrement },
                    voisin(fichier.lignes[place - 1], textes.precedent, "←"),
                    el("span.detail", null, textes.rang(place + 1, fichier.lignes.length)),
                    voisin(fichier.lignes[place + 1], textes.suivant, "→"),
                ),
            ),
            texte === undefined
                ? el("p.note", null, textes.texteAbsent)
                : Q.regle(texte, constats, contexte.largeur, textes),
            el(
                "ol.explications",
                { "aria-label": textes.explications },
                indices.map((i, k) => explication(i, k + 1, { ...contexte, rangs })),
            ),
            el(
                "p.liens.pied",
                null,
                catalogue && catalogue.tables.has(premier.type)
                    ? el("a.bouton.voir-type", { href: `#${premier.type}` }, textes.fiche(premier.type))
                    : null,
                " ",
                el("a.bouton.retour", { href: "#constats" }, textes.retourListe),
            ),
        );
        panneau.dataset.ligne = ligne;
    };
})((globalThis.Quilvane ??= {}));
