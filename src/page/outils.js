/**
 * outils.js - small helpers of the viewer: elements, texts from outside,
 * values whose blanks are seen.
 */
"use strict";
(function (Q) {
    /**
     * Makes an element. `nom` is a tag with an optional #id and .classes
     * ("p#resume.grand"); attributes that are null or false are left out;
     * children are nodes, texts, or arrays of these (null is skipped). Texts
     * never become markup.
     */
    Q.el = function (nom, attributs, ...enfants) {
        const [, balise, id, classes] = /^([a-z0-9]+)(#[\w-]+)?((?:\.[\w-]+)*)$/.exec(nom);
        const e = document.createElement(balise);
        if (id) e.id = id.slice(1);
        if (classes) e.className = classes.slice(1).split(".").join(" ");
        for (const [cle, valeur] of Object.entries(attributs || {})) {
            if (valeur === null || valeur === undefined || valeur === false) continue;
            e.setAttribute(cle, valeur === true ? "" : valeur);
        }
        e.append(...enfants.flat(2).filter((n) => n !== null && n !== undefined && n !== ""));
        return e;
    };

    const LIGNES_DE_RESTE = 500;
    /**
     * A list of class `classe` that opens on demand and is filled only then.
     * `element` makes the entry of one of `donnees`; what is left out behind the
     * first five hundred is said in words.
     */
    Q.reste = function (sommaire, classe, donnees, element, textes) {
        const liste = Q.el(`ul.${classe}`);
        const details = Q.el("details", null, Q.el("summary", null, sommaire), liste);
        const remplir = () => {
            liste.append(...donnees.slice(0, LIGNES_DE_RESTE).map(element));
            const omis = donnees.length - LIGNES_DE_RESTE;
            if (omis > 0) details.append(Q.el("p.note", null, textes.omis(omis)));
        };
        details.addEventListener("toggle", remplir, { once: true });
        return details;
    };

    const FORMES = {
        accepte: "M5 12.5l4.5 4.5L19 7.5",
        corriger: "M12 6v7.5M12 17.2v.6",
        arret: "M7.5 7.5l9 9M16.5 7.5l-9 9",
    };
    /** A round symbol: "accepte", "corriger" or "arret". Its meaning is always also said in words. */
    Q.symbole = function (forme) {
        const ns = "http://www.w3.org/2000/svg";
        const svg = document.createElementNS(ns, "svg");
        const trait = document.createElementNS(ns, "path");
        svg.setAttribute("viewBox", "0 0 24 24");
        svg.setAttribute("class", `symbole ${forme}`);
        svg.setAttribute("aria-hidden", "true");
        trait.setAttribute("d", FORMES[forme]);
        svg.append(trait);
        return svg;
    };

    const INVISIBLES =
        /[\u0000-\u001f\u007f-\u009f\u00ad\u061c\u180e\u200b-\u200f\u2028-\u202e\u2060-\u206f\ufeff\ufff9-\ufffb]/g;
    /** A text from outside in which nothing is invisible and nothing turns the reading direction. */
    Q.visible = (texte) =>
        String(texte ?? "").replace(
            INVISIBLES,
            (c) => `\\u${c.charCodeAt(0).toString(16).toUpperCase().padStart(4, "0")}`,
        );

    /** At most `n` characters of a text, with an ellipsis when some are left out. */
    Q.abrege = (texte, n) => (texte.length > n ? `${texte.slice(0, n - 1)}…` : texte);

    /** Columns as in "65–76", or "79" for a single one. */
    Q.plage = ([a, b]) => (a === b ? String(a) : `${a}–${b}`);

    /** A text from outside, isolated from the direction of what surrounds it. */
    Q.donnee = (texte, classes) => Q.el(classes ? `bdi.${classes}` : "bdi", null, Q.visible(texte));

    /** A value as received: leading, trailing and repeated blanks are made visible. */
    Q.valeur = function (valeur, textes, limite = Infinity) {
        const v = Q.visible(valeur ?? "");
        if (/^ *$/.test(v)) return Q.el("span.vide", null, textes.vide(v.length));
        const morceaux = Q.abrege(v, limite)
            .split(/(^ +| +$| {2,})/)
            .map((m) => (/^ +$/.test(m) ? Q.el("span.blancs", null, m) : m));
        return Q.el("code.valeur", { dir: "ltr" }, morceaux);
    };

    /** The cells of an escaped record: each is one column, a character or `\xHH`. */
    Q.cellules = (texte) => String(texte).match(/\\x[0-9A-Fa-f]{2}|[^]/gu) || [];

    /** A text for comparing: lower case, without accents. */
    Q.plat = (texte) => {
        const t = texte.toLowerCase();
        return /^[\x20-\x7e]*$/.test(t) ? t : t.normalize("NFD").replace(/[\u0300-\u036f]/g, "");
    };
})((globalThis.Quilvane ??= {}));
