/**
 * catalogue.js - one entry of the catalogue in a dialog: a message type with
 * its fields, an error number, a list. `#NAIS`, `#NAIS-C17`, `#erreur-68`,
 * `#fatal-IG008`, `#liste-TD` name them.
 */
"use strict";
(function (Q) {
    const el = Q.el;

    /** What an entry's address names, or null when it is none of the catalogue. */
    Q.adresseDeFiche = function (ancre, catalogue) {
        if (!catalogue) return null;
        const [, genre, nom] = /^(erreur|fatal|liste)-(.+)$/.exec(ancre) || [];
        if (genre) return { genre, nom };
        const [, table, champ] = /^([^-]+)(?:-([A-Z][0-9]+))?$/.exec(ancre) || [];
        return catalogue.tables.has(table) ? { genre: "table", nom: table, champ } : null;
    };

    /** Where a finding's field is explained: "#NAIS-C17", or null. */
    Q.ancreDuChamp = function (constat, catalogue) {
        const table = catalogue && catalogue.tables.get(Q.tableDe(constat));
        if (!table) return null;
        return constat.champ ? `#${table.table}-${constat.champ}` : `#${table.table}`;
    };

    function genresDe(regle, textes) {
        const par = (etat) => Object.keys(regle.genres || {}).filter((g) => regle.genres[g] === etat);
        const verifies = par("verifie"),
            interdits = par("interdit");
        const morceaux = [];
        if (verifies.length) morceaux.push(`${textes.genresVerifies} ${verifies.join(", ")}`);
        if (interdits.length) morceaux.push(`${textes.genresInterdits} ${interdits.join(", ")}`);
        return morceaux.join(" · ");
    }

    function phraseDeRegle(regle, catalogue, textes) {
        return el(
            "li",
            null,
            Q.visible(regle.phrase),
            " ",
            el(
                "span.detail",
                null,
                genresDe(regle, textes),
                regle.numero
                    ? [
                          " · ",
                          el("a", { href: `#erreur-${regle.numero}` }, `${textes.numero} ${regle.numero}`),
                      ]
                    : null,
                regle.liste && catalogue.listes.has(regle.liste)
                    ? [" · ", el("a", { href: `#liste-${regle.liste}` }, `${textes.liste} (${regle.liste})`)]
                    : null,
            ),
        );
    }

    function ficheDeTable(table, champ, catalogue, textes) {
        const cle = table.cle ? [table.cle.pays, table.cle.numero].filter(Boolean).join(" + ") : "";
        const lignes = table.champs.map((c) =>
            el(
                "tr",
                { id: `fiche-${c.champ}`, class: c.champ === champ ? "vise" : null },
                el("th", { scope: "row" }, c.champ, el("span.colonnes", null, Q.plage(c.colonnes))),
                el("td", null, Q.visible(c.libelle)),
                el(
                    "td",
                    null,
                    (c.regles || []).length
                        ? el(
                              "ul",
                              null,
                              c.regles.map((r) => phraseDeRegle(r, catalogue, textes)),
                          )
                        : el("span.detail", null, textes.rienVerifie),
                ),
            ),
        );
        return [
            el(
                "h2",
                { tabindex: "-1" },
                table.table,
                " ",
                el("span.sous", null, Q.visible(table.titre || "")),
            ),
            el(
                "p.detail",
                null,
                [(table.genres || []).join(", "), cle ? `${textes.cleDe} : ${cle}` : ""]
                    .filter(Boolean)
                    .join(" · "),
            ),
            el(
                "div.defile",
                null,
                el(
                    "table.fiche",
                    null,
                    el(
                        "thead",
                        null,
                        el(
                            "tr",
                            null,
                            el("th", { scope: "col" }, textes.champ),
                            el("th", { scope: "col" }, textes.libelle),
                            el("th", { scope: "col" }, textes.exigences),
                        ),
                    ),
                    el("tbody", null, lignes),
                ),
            ),
        ];
    }

    function ficheDErreur(titre, erreur, textes) {
        return [
            el("h2", { tabindex: "-1" }, titre, " ", el("span.sous", null, Q.visible(erreur.titre))),
            erreur.sens ? [el("h3", null, textes.sens), el("p", null, Q.visible(erreur.sens))] : null,
            erreur.remede
                ? [el("h3", null, textes.commentFaire), el("p", null, Q.visible(erreur.remede))]
                : null,
            (erreur.ou || []).length
                ? [
                      el("h3", null, textes.ou),
                      el(
                          "ul.etiquettes",
                          null,
                          erreur.ou.map((o) =>
                              el("li", null, el("a", { href: `#${o.replace(" ", "-")}` }, Q.visible(o))),
                          ),
                      ),
                  ]
                : null,
        ].flat();
    }

    function ficheDeListe(liste) {
        return [
            el("h2", { tabindex: "-1" }, liste.nom, " ", el("span.sous", null, Q.visible(liste.titre || ""))),
            el("p", null, Q.visible(liste.contenu || "")),
            el(
                "ul.etiquettes.valeurs",
                null,
                (liste.valeurs || []).map((v) => el("li", null, el("code", null, Q.visible(v)))),
            ),
        ];
    }

    /** What the dialog shows for an address. */
    Q.fiche = function (adresse, catalogue, textes) {
        const { genre, nom, champ } = adresse;
        if (genre === "table") return ficheDeTable(catalogue.tables.get(nom), champ, catalogue, textes);
        if (genre === "liste" && catalogue.listes.has(nom)) return ficheDeListe(catalogue.listes.get(nom));
        const entree =
            genre === "erreur"
                ? catalogue.erreurs.get(nom)
                : genre === "fatal"
                  ? catalogue.fatals.get(nom)
                  : null;
        if (entree) return ficheDErreur(genre === "erreur" ? `${textes.numero} ${nom}` : nom, entree, textes);
        return [el("h2", { tabindex: "-1" }, textes.catalogue), el("p", null, textes.ficheAbsente)];
    };
})((globalThis.Quilvane ??= {}));
