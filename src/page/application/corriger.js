/**
 * corriger.js - a form in which one record is corrected field by field. It is
 * made from the catalogue; while one types, the module judges the whole record
 * in its place in the file.
 */
"use strict";
(function (Q) {
    const el = Q.el;
    const REPOS = 120; // ms without a key before a record is judged
    const TYPE = [22, 25]; // the message type in the header
    const CORPS = [63, 230];
    const CHOIX = 400; // longest list that is offered while typing

    /** The fields of a record of some type: header, body, footer. */
    function champsDe(texte, rang, catalogue, mots) {
        const type = rang === 1 ? "FICH" : Q.colonnes(texte, TYPE).trimEnd();
        const corps = catalogue.tables.get(type);
        const de = (table, partie, titre) => ({ partie, titre, champs: catalogue.tables.get(table).champs });
        return [de("E", "E", mots.entete),
            corps && type !== "E" && type !== "F" ? de(type, "C", `${mots.corps} ${type} – ${corps.titre}`)
                : { partie: "C", titre: mots.corps, champs: [{ champ: null, colonnes: CORPS, libelle: mots.autresColonnes, regles: [] }] },
            de("F", "F", mots.pied)];
    }

    /** The values that a field's lists allow, when they are few and as wide as it. */
    function valeursDe(champ, catalogue) {
        const nom = champ.regles.map((r) => r.liste).find(Boolean);
        const liste = nom && catalogue.listes.get(nom);
        return liste && liste.valeurs.length <= CHOIX ? liste.valeurs : [];
    }

    function rangee(champ, partie, texte, contexte) {
        const { catalogue, mots, textes } = contexte;
        const id = `app-champ-${partie}-${champ.champ || "libre"}`;
        const [a, b] = champ.colonnes;
        const valeur = Q.visible(Q.colonnes(texte, champ.colonnes).replace(/[^\x20-\x7e]/g, "?").trimEnd());
        const choix = valeursDe(champ, catalogue);
        const entree = el("input", { id, type: "text", value: valeur, maxlength: b - a + 1, autocomplete: "off",
            spellcheck: "false", "aria-describedby": `${id}-verdict`, list: choix.length ? `${id}-valeurs` : null });
        entree.style.width = `calc(${b - a + 2}ch + ${choix.length ? 2.8 : 1.2}rem)`;
        const verdict = el("div.app-verdict", { id: `${id}-verdict` });
        const element = el("div.app-champ", { "data-champ": champ.champ || "" },
            el("label", { for: id }, Q.visible(champ.libelle || champ.champ), el("span.detail", null,
                [champ.champ, Q.plage(champ.colonnes), mots.largeur(b - a + 1)].filter(Boolean).join(" · "))),
            entree, choix.length ? el("datalist", { id: `${id}-valeurs` }, choix.map((v) => el("option", { value: v }))) : null, verdict);
        return { champ, partie, entree, verdict, element, montree: valeur, textes };
    }

    /**
     * Opens the form. `contexte` holds langue, textes, mots, catalogue, lignes (the file,
     * as `lireLignes` gives it), corrections, ligne, juger (a promise of the
     * findings of a record's text) and garder (takes the corrected text).
     */
    Q.corriger = function (contexte) {
        const { textes, mots, ligne, lignes, corrections, catalogue } = contexte;
        const recu = lignes.lignes[ligne - 1].texte.padEnd(Q.LARGEUR).slice(0, Q.LARGEUR);
        let texte = (corrections.get(ligne) ?? recu).padEnd(Q.LARGEUR).slice(0, Q.LARGEUR);
        let rangees = [], attente = 0, tour = 0;

        const bouton = (classe, nom, agir) => {
            const b = el(`button${classe}`, { type: "button" }, nom);
            b.addEventListener("click", agir);
            return b;
        };
        const figure = el("div.app-regle");
        const etat = el("p.app-etat", { role: "status" }, mots.verification);
        const generaux = el("ul.app-generaux");
        const champs = el("div.app-champs.app-seuls");
        const seuls = el("input#app-seuls", { type: "checkbox", checked: true });
        const garder = bouton(".app-principal.app-garder", mots.garder, () => { contexte.garder(texte); dialogue.close(); });
        const dialogue = el("dialog#app-correction", { "aria-labelledby": "app-titre-correction" },
            el("form.contenu", { method: "dialog" },
                el("h2#app-titre-correction", { tabindex: "-1" }, mots.corrigerTitre(ligne)),
                el("p.aide", null, mots.corrigerAide), figure, etat, generaux,
                el("label.case", { for: "app-seuls" }, seuls, " ", mots.seulsErreurs), champs),
            el("p.pied", null, bouton(".app-remettre", mots.remettre, () => { texte = recu; dessiner(); }), " ",
                bouton(".app-annuler", mots.annuler, () => dialogue.close()), " ", garder));

        /** Puts the fields into the form anew: another type has another body. */
        function dessiner() {
            const groupes = champsDe(texte, ligne, catalogue, mots);
            rangees = [];
            champs.replaceChildren(...groupes.map(({ partie, titre, champs: siens }) => {
                const lignesDuGroupe = siens.map((c) => rangee(c, partie, texte, contexte));
                rangees.push(...lignesDuGroupe);
                return el("fieldset", null, el("legend", null, Q.visible(titre)), lignesDuGroupe.map((r) => r.element));
            }));
            champs.dataset.type = Q.colonnes(texte, TYPE);
            juger();
        }

        function saisir(r) {
            // A field left as it was shown keeps its bytes, also those that cannot be typed.
            texte = r.entree.value === r.montree ? Q.poser(texte, r.champ.colonnes, Q.colonnes(recu, r.champ.colonnes))
                : Q.poser(texte, r.champ.colonnes, r.entree.value.replace(/[^\x20-\x7e]/g, "?"));
            clearTimeout(attente);
            attente = setTimeout(juger, REPOS);
        }

        function remplacer(r, valeur) {
            r.entree.value = valeur;
            r.entree.focus();
            saisir(r);
        }

        function verdictDe(c, r) {
            const m = Q.motsDe(c, contexte.langue, contexte.langue, catalogue);
            return el("div", null, el("b", null, Q.visible(m.titre)), " ", Q.visible(m.message === m.titre ? "" : m.message),
                (c.proches || []).length ? el("span.app-proches", null, c.proches.map((v) => bouton(".discret", mots.mettre(v), () => remplacer(r, v)))) : null);
        }

        async function juger() {
            const mien = ++tour;
            const constats = await contexte.juger(texte);
            if (mien !== tour || !dialogue.isConnected) return;
            if (champs.dataset.type !== Q.colonnes(texte, TYPE) && !champs.contains(document.activeElement)) return dessiner();
            const restes = new Set(constats);
            for (const r of rangees) {
                const siens = constats.filter((c) => c.champ === r.champ.champ && c.partie === r.partie);
                siens.forEach((c) => restes.delete(c));
                r.element.classList.toggle("app-faux", siens.length > 0);
                if (siens.length) r.element.dataset.touche = "";
                if (siens.length) r.entree.setAttribute("aria-invalid", "true");
                else r.entree.removeAttribute("aria-invalid");
                r.verdict.replaceChildren(...(siens.length ? siens.map((c) => verdictDe(c, r))
                    : "touche" in r.element.dataset ? [el("span.app-bon", null, "✓ ", mots.bon)] : []));
            }
            generaux.replaceChildren(...[...restes].map((c) => el("li", null, verdictDe(c))));
            etat.textContent = constats.length ? mots.reste(constats.length) : mots.correct;
            etat.classList.toggle("app-bon", constats.length === 0);
            figure.replaceChildren(Q.regle(contexte.montrer(texte), constats, contexte.largeur(), textes));
        }

        champs.addEventListener("input", (e) => {
            const r = rangees.find((x) => x.entree === e.target);
            if (r) saisir(r);
        });
        // Another message type has other fields; they come when the type's field is left.
        champs.addEventListener("change", () => {
            if (champs.dataset.type !== Q.colonnes(texte, TYPE)) dessiner();
        });
        seuls.addEventListener("change", () => champs.classList.toggle("app-seuls", seuls.checked));
        dialogue.querySelector("form").addEventListener("submit", (e) => e.preventDefault());
        dialogue.addEventListener("close", () => { clearTimeout(attente); dialogue.remove(); contexte.fermer(); });
        document.body.append(dialogue);
        dessiner();
        dialogue.showModal();
        dialogue.querySelector("h2").focus();
        return dialogue;
    };
})((globalThis.Quilvane ??= {}));
