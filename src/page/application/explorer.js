/**
 * explorer.js - the catalogue as a part of the page: a list of entries that can
 * be searched, and the entry chosen. Entries have the addresses of catalogue.js.
 */
"use strict";
(function (Q) {
    const el = Q.el;

    /** Every entry: address, what the list shows, what searching reads. */
    function entrees(catalogue) {
        const valeurs = (m) => [...m.values()];
        const cherche = (...textes) => Q.plat(textes.flat(3).filter(Boolean).join(" "));
        return {
            types: valeurs(catalogue.tables).map((t) => ({ ancre: t.table, nom: t.table, titre: t.titre,
                cherche: cherche(t.table, t.titre, t.champs.map((c) => [c.champ, `${t.table}-${c.champ}`, c.libelle])) })),
            erreurs: valeurs(catalogue.erreurs).map((e) => ({ ancre: `erreur-${e.numero}`, nom: String(e.numero), titre: e.titre,
                cherche: cherche(e.numero, e.code, e.titre, e.sens, e.remede, e.ou) })),
            fatals: valeurs(catalogue.fatals).map((f) => ({ ancre: `fatal-${f.code}`, nom: f.code, titre: f.titre,
                cherche: cherche(f.code, f.titre, f.sens, f.remede) })),
            listes: valeurs(catalogue.listes).map((l) => ({ ancre: `liste-${l.nom}`, nom: l.nom, titre: l.titre,
                cherche: cherche(l.nom, l.titre, l.contenu, l.valeurs) })),
        };
    }

    /** Examples of a type: each can be checked or saved. */
    function exemples(type, contexte) {
        const { mots, exemples: tous, verifier, enregistrer } = contexte;
        const siens = tous.filter((e) => e.type === type);
        if (!siens.length) return null;
        const bouton = (classe, texte, nom, agir) => {
            const b = el(`button.${classe}`, { type: "button", "aria-label": nom }, texte);
            b.addEventListener("click", agir);
            return b;
        };
        return el("section.app-exemples", { "aria-label": mots.aBlanc },
            el("h3", null, mots.aBlanc), el("p.aide", null, mots.aBlancAide),
            el("ul", null, siens.map((e) => el("li", null,
                bouton("app-verifier-exemple", mots.voirExemple(e.genre), mots.verifierExemple(type, e.genre), () => verifier(e)), " ",
                bouton("discret", "↓", mots.enregistrerExemple(type, e.genre), () => enregistrer(e))))));
    }

    /**
     * Fills `conteneur`. `contexte` holds catalogue, exemples, textes (the
     * viewer's), mots (the page's), verifier and enregistrer (take an example).
     * Returns `ouvrir(ancre)`,
     * which shows an entry and says whether there is one.
     */
    Q.explorer = function (conteneur, contexte) {
        const { catalogue, textes, mots } = contexte;
        const groupes = Object.entries(entrees(catalogue));
        const recherche = el("input#app-recherche", { type: "search", autocomplete: "off", spellcheck: "false", placeholder: mots.chercherIndice });
        const compte = el("p#app-compte.detail", { role: "status" });
        const liste = el("nav.app-entrees", { "aria-label": mots.catalogue });
        const fiche = el("section#app-fiche.carte", { "aria-label": mots.catalogue, tabindex: "-1" }, el("p.aide", null, mots.choisirFiche));
        let ouverte = null;

        function lister() {
            const cherches = Q.plat(recherche.value).split(/\s+/).filter(Boolean);
            let n = 0;
            liste.replaceChildren(...groupes.map(([groupe, toutes]) => {
                const trouvees = toutes.filter((e) => cherches.every((m) => e.cherche.includes(m)));
                n += trouvees.length;
                if (!trouvees.length) return "";
                return el("details", { open: cherches.length > 0 || groupe === "types", "data-groupe": groupe },
                    el("summary", null, el("b", null, mots[groupe]), " ", el("span.detail", null, String(trouvees.length))),
                    el("ul", null, trouvees.map((e) => el("li", null,
                        el("a", { href: `#${e.ancre}`, "aria-current": ouverte === e.ancre ? "true" : null },
                            el("b", null, e.nom), " ", Q.visible(e.titre))))));
            }));
            compte.textContent = mots.trouve(n);
        }

        recherche.addEventListener("input", lister);
        conteneur.replaceChildren(
            el("div.app-catalogue", null,
                el("div.app-choix", null, el("h1", null, mots.catalogue),
                    el("label", { for: "app-recherche" }, mots.chercher, recherche), compte, liste),
                fiche));
        lister();

        return function ouvrir(ancre) {
            const adresse = Q.adresseDeFiche(ancre, catalogue);
            if (!adresse) return false;
            ouverte = adresse.genre === "table" ? adresse.nom : ancre;
            fiche.replaceChildren(...Q.fiche(adresse, catalogue, textes).filter(Boolean));
            const plus = adresse.genre === "table" ? exemples(adresse.nom, contexte) : null;
            if (plus) fiche.querySelector("h2").after(plus);
            for (const a of liste.querySelectorAll("a")) {
                const elle = a.getAttribute("href") === `#${ouverte}`;
                if (elle) a.setAttribute("aria-current", "true");
                else a.removeAttribute("aria-current");
                if (elle) a.closest("details").open = true;
            }
            const titre = fiche.querySelector("h2");
            titre.focus({ preventScroll: true });
            (fiche.querySelector("tr.vise") || fiche).scrollIntoView({ block: fiche.querySelector("tr.vise") ? "center" : "start" });
            return true;
        };
    };
})((globalThis.Quilvane ??= {}));
