/**
 * donnees.js - the report and the catalogue made ready for the screen: counts,
 * the order of records, the index that searching reads, the words of a finding
 * in the language of the reader.
 */
"use strict";
(function (Q) {
    /** One object or a list of objects, one per language. */
    const liste = (x) => (Array.isArray(x) ? x : x ? [x] : []);

    /** The catalogue of a language, by name; null when there is none. */
    function preparerCatalogue(catalogue) {
        if (!catalogue) return null;
        const par = (entrees, cle) => new Map((entrees || []).map((e) => [String(e[cle]), e]));
        return {
            langue: catalogue.langue,
            tables: par(catalogue.tables, "table"),
            erreurs: par(catalogue.erreurs, "numero"),
            fatals: par(catalogue.fatals, "code"),
            listes: par(catalogue.listes, "nom"),
        };
    }

    /** The table of the catalogue in which a finding's field stands. */
    Q.tableDe = (constat) =>
        constat.partie === "E" || constat.partie === "F" ? constat.partie : constat.type;

    function champDuCatalogue(catalogue, constat) {
        const table = catalogue && constat.champ && catalogue.tables.get(Q.tableDe(constat));
        return (table && table.champs.find((c) => c.champ === constat.champ)) || null;
    }

    /** What bars and lists need to know of one file. */
    function preparerFichier(fichier) {
        const constats = fichier.constats || [];
        const parNumero = new Map();
        const parType = new Map();
        const parLigne = new Map();
        let decoulent = 0;
        constats.forEach((c, i) => {
            const n = parNumero.get(c.numero) || { cle: c.numero, exemple: c, n: 0 };
            n.n++;
            parNumero.set(c.numero, n);
            const t = parType.get(c.type) || { cle: c.type, exemple: c, n: 0 };
            t.n++;
            parType.set(c.type, t);
            const l = parLigne.get(c.ligne);
            if (l) l.push(i);
            else parLigne.set(c.ligne, [i]);
            if (Number.isInteger(c.decoule_de)) decoulent++;
        });
        const tri = (m) => [...m.values()].sort((a, b) => b.n - a.n);
        return {
            // Any status this viewer does not know is one it cannot call accepted.
            source: { ...fichier, statut: [0, 1, 2].includes(fichier.statut) ? fichier.statut : 1 },
            constats,
            parLigne,
            decoulent,
            lignes: [...parLigne.keys()],
            parNumero: tri(parNumero),
            parType: tri(parType),
            index: [],
        };
    }

    /**
     * The whole report. `rapport` and `catalogue` are one object or a list, one
     * per language. Returns null when it is no report this viewer knows.
     */
    Q.preparer = function (rapport, catalogue) {
        const rapports = liste(rapport).filter(
            (r) => r && r.format === "quilvane-rapport/1" && Array.isArray(r.fichiers),
        );
        if (!rapports.length) return null;
        const catalogues = liste(catalogue).filter((c) => c && c.format === "quilvane-catalogue/1");
        const langues = Object.keys(Q.textes).filter((l) =>
            [...rapports, ...catalogues].some((x) => x.langue === l),
        );
        const prets = new Map();
        return {
            /** Languages in which the reader can be served: those of the reports and of the catalogues. */
            langues,
            langueDesMessages: rapports[0].langue,
            catalogue: (langue) => {
                if (!prets.has(langue))
                    prets.set(
                        langue,
                        preparerCatalogue(catalogues.find((c) => c.langue === langue) || catalogues[0]),
                    );
                return prets.get(langue);
            },
            fichiers: (langue) => {
                const cle = `fichiers ${langue}`;
                if (!prets.has(cle)) {
                    const choisi = rapports.find((r) => r.langue === langue) || rapports[0];
                    if (!prets.has(choisi)) prets.set(choisi, choisi.fichiers.map(preparerFichier));
                    prets.set(cle, { langue: choisi.langue, liste: prets.get(choisi) });
                }
                return prets.get(cle);
            },
        };
    };

    /**
     * The words of a finding for a reader: its own ones, or the catalogue's
     * title, remedy and label when the finding has none (a long report leaves
     * them out) or when the report is in another language. The row's sentence
     * with its values exists in the report's language only.
     */
    Q.motsDe = function (constat, langueDuRapport, langue, catalogue) {
        const autre = langue !== langueDuRapport;
        const propres = {
            titre: constat.titre || "",
            remede: constat.remede || "",
            libelle: constat.libelle || "",
            message: constat.message || "",
            langue: autre ? langueDuRapport : null,
        };
        if (!catalogue || (autre && catalogue.langue !== langue)) return propres;
        if (!autre && propres.titre && propres.remede && propres.libelle) return propres;
        const erreur = catalogue.erreurs.get(String(constat.numero)) || {};
        const champ = champDuCatalogue(catalogue, constat) || {};
        const choisir = (propre, du) => (autre ? du || propre : propre || du || "");
        return {
            ...propres,
            titre: choisir(propres.titre, erreur.titre),
            remede: choisir(propres.remede, erreur.remede),
            libelle: choisir(propres.libelle, champ.libelle),
        };
    };

    const texteCherche = (c, m) =>
        Q.plat(
            `${c.ligne} ${c.type} ${c.genre} ${c.cle} ${c.champ || ""} ${m.libelle} ${c.valeur} ${c.numero} ${c.code} ${m.titre} ${m.message}`,
        );

    /** Makes the index up to `jusque`, in the words of the reader; it is made in slices while the reader reads. */
    Q.indexer = function (fichier, mots, jusque = fichier.constats.length) {
        for (let i = fichier.index.length; i < jusque && i < fichier.constats.length; i++)
            fichier.index.push(texteCherche(fichier.constats[i], mots(fichier.constats[i])));
        return fichier.index.length === fichier.constats.length;
    };

    /**
     * The findings that a filter lets through, as indices. `filtre` holds
     * `mots` (all must occur), `numero`, `type` (texts, "" for all) and
     * `causes` (leave out what follows from another).
     */
    Q.filtrer = function (fichier, filtre, motsDuConstat) {
        const mots = Q.plat(filtre.mots).split(/\s+/).filter(Boolean);
        if (mots.length) Q.indexer(fichier, motsDuConstat);
        const trouves = [];
        for (let i = 0; i < fichier.constats.length; i++) {
            const c = fichier.constats[i];
            if (filtre.numero !== "" && String(c.numero) !== filtre.numero) continue;
            if (filtre.type !== null && c.type !== filtre.type) continue;
            if (filtre.causes && Number.isInteger(c.decoule_de)) continue;
            if (mots.length && !mots.every((m) => fichier.index[i].includes(m))) continue;
            trouves.push(i);
        }
        return trouves;
    };
})((globalThis.Quilvane ??= {}));
