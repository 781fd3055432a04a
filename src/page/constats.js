/**
 * constats.js - the list of findings: search, filter, and a table of which only
 * a part stands in the page, so that thousands of rows cost nothing.
 */
"use strict";
(function (Q) {
    const el = Q.el;
    const TRANCHE = 60;
    const IMPRIMES = 2000;
    const TYPES_A_CHOISIR = 100; // a file of anything has many that do not exist

    function ligneDeTableau(indice, contexte) {
        const { textes, fichier, mots, ancre } = contexte;
        const c = fichier.constats[indice];
        const m = mots(c);
        const suite = Number.isInteger(c.decoule_de);
        return el(
            "tr.constat",
            {
                role: "row",
                "data-ligne": c.ligne,
                "data-numero": c.numero,
                "data-champ": c.champ || "",
                "data-indice": indice,
                class: suite ? "constat suite" : "constat",
            },
            el(
                "td.c-ligne",
                { role: "cell" },
                el(
                    "a",
                    { href: ancre(c.ligne), "aria-label": textes.voirLigne(c.ligne, Q.visible(m.titre)) },
                    String(c.ligne),
                ),
            ),
            el(
                "td.c-type",
                { role: "cell" },
                el("b", null, Q.donnee(c.type)),
                " ",
                Q.donnee(c.genre),
                (c.cle || "").trim() ? el("span.cle", null, Q.donnee(Q.abrege(c.cle.trim(), 40))) : null,
            ),
            el(
                "td.c-champ",
                { role: "cell" },
                el("span.libelle", null, Q.visible(Q.abrege(m.libelle || c.champ || "–", 80))),
                " ",
                c.champ
                    ? el(
                          "span.detail",
                          null,
                          [c.champ, c.colonnes ? Q.plage(c.colonnes) : null].filter(Boolean).join(" · "),
                      )
                    : null,
                " ",
                c.champ ? el("span.recue", null, Q.valeur(c.valeur, textes, 60)) : null,
            ),
            el(
                "td.c-point",
                { role: "cell" },
                el(
                    "span.titre",
                    null,
                    suite ? el("span.fleche", { title: textes.decoule }, "↳ ") : null,
                    Q.visible(Q.abrege(m.titre, 120)),
                ),
                " ",
                el("span.numero", null, String(c.numero)),
                m.message && m.message !== m.titre
                    ? el("span.message", { lang: m.langue }, Q.visible(Q.abrege(m.message, 300)))
                    : null,
                m.remede ? el("span.remede", null, Q.visible(Q.abrege(m.remede, 400))) : null,
            ),
        );
    }

    const choix = (id, libelle, options) =>
        el(
            "label",
            { for: id },
            libelle,
            el(
                `select#${id}`,
                null,
                options.map(([valeur, texte]) => el("option", { value: valeur }, texte)),
            ),
        );

    /**
     * The section with search and table. `contexte` is that of
     * `montrerEnregistrement` plus `filtre`, which is kept up to date here, and
     * `surFiltre`, called after each filtering. Returns its element and the
     * means to filter, to mark the open record and to prepare for printing.
     */
    Q.listeDeConstats = function (contexte) {
        const { textes, fichier, filtre, mots } = contexte;
        let trouves = [];
        let montres = 0;

        const recherche = el("input#filtre", {
            type: "search",
            autocomplete: "off",
            spellcheck: "false",
            placeholder: textes.chercherIndice,
        });
        const numeros = choix("filtre-numero", textes.numero, [
            ["", textes.tous],
            ...fichier.parNumero.map((n) => [
                String(n.cle),
                `${n.cle} – ${Q.visible(mots(n.exemple).titre)}`,
            ]),
        ]);
        const types = choix("filtre-type", textes.type, [
            ["", textes.tous],
            ...fichier.parType
                .slice(0, TYPES_A_CHOISIR)
                .map((t, i) => [`t${i}`, Q.visible(t.cle || "") || textes.sansType]),
        ]);
        const causes = el("input#filtre-causes", { type: "checkbox" });
        const effacer = el("button.discret", { type: "button", hidden: true }, textes.effacer);
        const compte = el("p#compte", { role: "status", "aria-live": "polite" });
        const corps = el("tbody", { role: "rowgroup" });
        const tableau = el(
            "table.constats",
            { role: "table", "aria-label": textes.points },
            el(
                "thead",
                { role: "rowgroup" },
                el(
                    "tr",
                    { role: "row" },
                    [textes.colLigne, textes.colEnregistrement, textes.colChamp, textes.colPoint].map((t) =>
                        el("th", { scope: "col", role: "columnheader" }, t),
                    ),
                ),
            ),
            corps,
        );
        const plus = el("button.plus", { type: "button" });
        const note = el("p.note.pied", null, textes.chercheTout);
        const noteImprimee = el("p.note.imprime");
        const rien = el("p.rien", { hidden: true }, textes.aucunResultat);

        function remplir(jusque) {
            const fragment = document.createDocumentFragment();
            const fin = Math.min(jusque, trouves.length);
            for (; montres < fin; montres++) {
                const ligne = ligneDeTableau(trouves[montres], contexte);
                ligne.setAttribute("aria-rowindex", montres + 2);
                fragment.append(ligne);
            }
            corps.append(fragment);
            const reste = trouves.length - montres;
            plus.hidden = note.hidden = reste === 0;
            plus.textContent = textes.afficherPlus(Math.min(TRANCHE * 2, reste), reste);
            marquer();
        }

        function marquer() {
            const ouverte = contexte.ligneOuverte();
            for (const tr of corps.children) {
                if (Number(tr.dataset.ligne) === ouverte) tr.setAttribute("aria-current", "true");
                else tr.removeAttribute("aria-current");
            }
        }

        function filtrer() {
            const debut = performance.now();
            trouves = Q.filtrer(fichier, filtre, mots);
            montres = 0;
            corps.replaceChildren();
            remplir(TRANCHE);
            tableau.hidden = trouves.length === 0;
            tableau.setAttribute("aria-rowcount", trouves.length + 1);
            rien.hidden = trouves.length > 0;
            effacer.hidden =
                filtre.mots === "" && filtre.numero === "" && filtre.type === null && !filtre.causes;
            compte.textContent = textes.compte(
                trouves.length,
                fichier.constats.length,
                new Set(trouves.map((i) => fichier.constats[i].ligne)).size,
            );
            contexte.surFiltre();
            performance.measure("quilvane:filtrer", { start: debut });
        }

        /** Puts the state of the filter into its controls. */
        function poser() {
            recherche.value = filtre.mots;
            numeros.lastChild.value = filtre.numero;
            types.lastChild.value =
                filtre.type === null ? "" : `t${fichier.parType.findIndex((t) => t.cle === filtre.type)}`;
            causes.checked = filtre.causes;
        }

        recherche.addEventListener("input", () => {
            filtre.mots = recherche.value;
            filtrer();
        });
        numeros.lastChild.addEventListener("change", (e) => {
            filtre.numero = e.target.value;
            filtrer();
        });
        types.lastChild.addEventListener("change", (e) => {
            filtre.type = e.target.value === "" ? null : fichier.parType[Number(e.target.value.slice(1))].cle;
            filtrer();
        });
        causes.addEventListener("change", () => {
            filtre.causes = causes.checked;
            filtrer();
        });
        effacer.addEventListener("click", () => {
            Object.assign(filtre, { mots: "", numero: "", type: null, causes: false });
            poser();
            filtrer();
            recherche.focus();
        });
        plus.addEventListener("click", () => {
            const suivante = montres;
            remplir(montres + TRANCHE * 2);
            const lien = corps.children[suivante] && corps.children[suivante].querySelector("a");
            if (lien) lien.focus();
        });
        corps.addEventListener("click", (e) => {
            if (e.target.closest("a") || String(getSelection()) !== "") return;
            const tr = e.target.closest("tr.constat");
            if (tr) tr.querySelector("a").click();
        });
        corps.addEventListener("keydown", (e) => {
            const tr = e.target.closest("tr.constat");
            if (!tr || e.altKey || e.ctrlKey || e.metaKey) return;
            const but = {
                ArrowDown: tr.nextElementSibling,
                ArrowUp: tr.previousElementSibling,
                Home: corps.firstElementChild,
                End: corps.lastElementChild,
            }[e.key];
            if (!but) return;
            e.preventDefault();
            but.querySelector("a").focus();
        });

        const element = el(
            "section#constats",
            { "aria-labelledby": "titre-constats", tabindex: "-1" },
            el("h2#titre-constats", null, textes.points),
            el("p.aide", null, textes.pointsAide),
            el(
                "form.filtres",
                { role: "search", "aria-label": textes.chercher },
                el("label.large", { for: "filtre" }, textes.chercher, recherche),
                numeros,
                fichier.parType.length > 1 ? types : null,
                fichier.decoulent
                    ? el("label.case", { for: "filtre-causes" }, causes, " ", textes.causesSeules)
                    : null,
            ),
            el("div.barre-compte", null, compte, effacer),
            tableau,
            rien,
            plus,
            note,
            noteImprimee,
        );
        element.querySelector("form").addEventListener("submit", (e) => e.preventDefault());
        poser();
        filtrer();

        return {
            element,
            marquer,
            filtrer: () => {
                poser();
                filtrer();
            },
            /** The lines of the records that the filter lets through. */
            lignes: () => [...new Set(trouves.map((i) => fichier.constats[i].ligne))],
            /** Puts as many rows into the page as are printed, and says how many those are. */
            imprimer: () => {
                remplir(IMPRIMES);
                noteImprimee.textContent =
                    montres < trouves.length ? textes.imprime(montres, trouves.length) : "";
            },
        };
    };
})((globalThis.Quilvane ??= {}));
