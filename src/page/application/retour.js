/**
 * retour.js - an error file that came back: which of the files at hand it
 * answers, and what its codes say.
 */
"use strict";
(function (Q) {
    const el = Q.el;

    /**
     * Looks for error files among the inputs. Each found is paired with the
     * first other input that it answers: { erreurs, origine, explication };
     * `origine` is null when none does. `releveDe` gives an input's report: a
     * file that has fewer records in error cannot be the one.
     */
    Q.chercherRetours = async function (entrees, moteur, langue, releveDe) {
        const retours = [];
        for (const erreurs of entrees) {
            const seul = await moteur.retour(erreurs, null, langue);
            if (!seul) continue;
            let trouve = { erreurs, origine: null, explication: seul };
            for (const origine of entrees) {
                if (origine === erreurs || releveDe(origine).refuses < seul.erreurs.length) continue;
                const explication = await moteur.retour(erreurs, origine, langue);
                if (!explication) continue;
                trouve = { erreurs, origine, explication };
                break;
            }
            retours.push(trouve);
        }
        return retours;
    };

    function ligneErre(e, mots) {
        return el("li", null,
            el("p", null, el("b", null, Q.donnee(`${e.type} ${e.genre} ${e.cle}`)), " ",
                el("span.detail", null, e.origine ? mots.ligneOrigine(e.origine) : mots.ligneErre(e.ligne))),
            el("ul", null, e.numeros.map((n) => el("li", null, el("a", { href: `#erreur-${n.numero}` }, n.code), " ", el("b", null, n.titre), " ",
                e.origine ? null : el("span.detail", null, n.remede)))));
    }

    /** What is said of an error file above the report. `choisir` takes the file that it answers. */
    Q.montrerRetour = function ({ erreurs, origine, explication, autre }, mots, choisir) {
        const n = explication.erreurs.length;
        const nom = Q.visible(erreurs.nom);
        const fichier = el("input.app-fichier", { type: "file", id: "app-origine" });
        fichier.addEventListener("change", () => { if (fichier.files[0]) choisir(fichier.files[0]); });
        return el("section.app-retour.carte", { "aria-label": mots.retour },
            el("h2", null, mots.retour),
            autre ? el("p.app-alerte", { role: "alert" }, mots.retourAutre(nom, Q.visible(autre.nom))) : null,
            el("p", null, origine ? mots.retourAvec(nom, Q.visible(origine.nom), n) : mots.retourSans(nom, n)),
            origine ? null : el("p", null, el("label.bouton", { for: "app-origine" }, mots.donnerOrigine), fichier),
            el("details", null, el("summary", null, mots.retourDetail),
                el("ul.app-erres", null, explication.erreurs.slice(0, 500).map((e) => ligneErre(e, mots)))));
    };
})((globalThis.Quilvane ??= {}));
