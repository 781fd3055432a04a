/**
 * regle.js - a record over its column ruler: pieces of 64 (or 32) columns, the
 * wrong columns underlined, and below them the number of their explanation.
 */
"use strict";
(function (Q) {
    const FIN_ENTETE = 62,
        FIN_CORPS = 230;
    const LARGEUR_MONTREE = 1024;

    /** The number over every tenth column, and the marks of the ruler. */
    function echelle(debut, largeur) {
        const nombres = Array(largeur).fill(" ");
        let marques = "";
        for (let i = 0; i < largeur; i++) {
            const colonne = debut + i;
            marques += colonne % 10 === 0 ? "|" : colonne % 5 === 0 ? ":" : "·";
            const texte = String(colonne);
            if (colonne % 10 === 0 && i >= texte.length - 1)
                [...texte].forEach((c, k) => {
                    nombres[i - texte.length + 1 + k] = c;
                });
        }
        return [nombres.join(""), marques];
    }

    /**
     * Each distinct range of columns with the numbers (from 1) of its findings,
     * laid on the first line below the record where it covers no other.
     */
    function etages(constats) {
        const plages = [];
        constats.forEach((c, i) => {
            if (!c.colonnes) return;
            const [a, b] = c.colonnes;
            const deja = plages.find((p) => p.a === a && p.b === b);
            if (deja) deja.numeros.push(i + 1);
            else plages.push({ a, b, numeros: [i + 1] });
        });
        const lignes = [];
        for (const p of plages) {
            let ligne = lignes.find((l) => l.every((q) => p.a > q.b || p.b < q.a));
            if (!ligne) lignes.push((ligne = []));
            ligne.push(p);
        }
        return lignes;
    }

    /** "1,3^^^^" as wide as its columns; the label is cut rather than the width. */
    function marque(plage) {
        const largeur = plage.b - plage.a + 1;
        const nom = plage.numeros.join(",");
        const court =
            nom.length <= largeur
                ? nom
                : String(plage.numeros[0]).length <= largeur
                  ? String(plage.numeros[0])
                  : "";
        return court + "^".repeat(largeur - court.length);
    }

    /** Which of the marks of one line falls into a piece. */
    function ligneDeMarques(plages, debut, largeur) {
        const cases = Array(largeur).fill(" ");
        for (const p of plages)
            [...marque(p)].forEach((c, k) => {
                const i = p.a + k - debut;
                if (i >= 0 && i < largeur) cases[i] = c;
            });
        return cases.join("").trimEnd();
    }

    const zone = (colonne) => (colonne <= FIN_ENTETE ? "entete" : colonne <= FIN_CORPS ? "corps" : "fin");

    /** The record's columns of one piece, equal neighbours in one element. */
    function ligneDeTexte(cellules, debut, largeur, fautives) {
        const morceaux = [];
        for (let i = 0; i < largeur && debut + i <= cellules.length; i++) {
            const colonne = debut + i;
            const cellule = cellules[colonne - 1];
            const octet = cellule.length > 2;
            const faux = fautives.get(colonne);
            const dernier = morceaux[morceaux.length - 1];
            if (
                dernier &&
                !octet &&
                !dernier.octet &&
                dernier.faux === faux &&
                dernier.zone === zone(colonne)
            )
                dernier.texte += cellule;
            else
                morceaux.push({
                    texte: octet ? "?" : cellule,
                    octet: octet ? cellule : null,
                    faux,
                    zone: zone(colonne),
                    colonne,
                });
        }
        return morceaux.map((m) =>
            Q.el(
                `${m.faux ? "mark" : "span"}.${m.zone}${m.octet ? ".octet" : ""}`,
                { title: m.octet, "data-colonne": m.colonne },
                Q.visible(m.texte),
            ),
        );
    }

    /** The columns that findings point at, each with the findings that do. */
    function colonnesFautives(constats) {
        const colonnes = new Map();
        constats.forEach((c, rang) => {
            if (!c.colonnes) return;
            for (let i = Math.max(1, c.colonnes[0]); i <= Math.min(c.colonnes[1], LARGEUR_MONTREE); i++)
                colonnes.set(i, `${colonnes.get(i) || ""} ${rang + 1}`);
        });
        return colonnes;
    }

    /**
     * The figure of a record. `texte` is escaped as in the report, `constats`
     * its findings in the order of their explanations, `largeur` the columns of
     * a piece.
     */
    Q.regle = function (texte, constats, largeur, textes) {
        const cellules = Q.cellules(texte);
        const montrees = cellules.slice(0, LARGEUR_MONTREE);
        const fautives = colonnesFautives(constats);
        const niveaux = etages(constats);
        const fin = Math.min(Math.max(montrees.length, ...fautives.keys()), LARGEUR_MONTREE);
        const pieces = [];
        for (let debut = 1; debut <= fin; debut += largeur) {
            const long = Math.min(largeur, fin - debut + 1);
            const [nombres, marques] = echelle(debut, long);
            const lignes = niveaux.map((n) => ligneDeMarques(n, debut, long)).filter((l) => l.trim() !== "");
            pieces.push(
                Q.el(
                    lignes.length ? "div.piece.touchee" : "div.piece",
                    null,
                    Q.el("span.echelle", { "aria-hidden": "true" }, `${nombres}\n${marques}\n`),
                    Q.el("span.texte", null, ligneDeTexte(montrees, debut, long, fautives)),
                    "\n",
                    Q.el("span.marques", { "aria-hidden": "true" }, lignes.join("\n")),
                ),
            );
        }
        const zones = [...new Set(constats.filter((c) => c.colonnes).map((c) => Q.plage(c.colonnes)))].join(
            ", ",
        );
        return Q.el(
            "figure.regle",
            { "aria-label": zones ? textes.regleResume(zones) : textes.regleSansColonne },
            Q.el("div.pieces", { dir: "ltr" }, pieces),
            cellules.length > montrees.length
                ? Q.el("p.note", null, textes.tropLong(cellules.length - montrees.length))
                : null,
            Q.el(
                "figcaption",
                null,
                textes.legende,
                cellules.some((c) => c.length > 2) ? ` ${textes.legendeOctet}` : "",
            ),
        );
    };
})((globalThis.Quilvane ??= {}));
