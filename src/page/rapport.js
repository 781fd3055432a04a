/**
 * rapport.js - the viewer as a whole: it draws the page from its state, follows
 * addresses, prints. `QuilvaneVue.afficher` may be called again at any time
 * with new data.
 */
"use strict";
(function (Q) {
    const el = Q.el;
    const LARGE = 64,
        ETROIT = 32;
    const FICHES_IMPRIMEES = 40;

    function enTeteDePage(vue) {
        const { textes, donnees } = vue;
        const langues = donnees ? donnees.langues : [];
        return el(
            "header.page",
            null,
            el("p.marque", null, "quilvane ", el("span", null, textes.titreDeLaPage)),
            langues.length > 1
                ? el(
                      "div.langues",
                      { role: "group", "aria-label": textes.langue },
                      langues.map((l) => {
                          const b = el(
                              "button",
                              {
                                  type: "button",
                                  lang: l,
                                  "aria-pressed": String(l === vue.langue),
                                  "data-langue": l,
                              },
                              Q.textes[l].nomDeLangue,
                          );
                          b.addEventListener("click", () => {
                              vue.langue = l;
                              dessiner(vue);
                              vue.conteneur.querySelector(`[data-langue=${l}]`).focus();
                          });
                          return b;
                      }),
                  )
                : null,
        );
    }

    function ouvrirLigne(vue, ligne, deplacer) {
        vue.ligne = ligne;
        if (!vue.panneau) return;
        Q.montrerEnregistrement(vue.panneau, ligne, { ...vue, largeur: vue.etroit.matches ? ETROIT : LARGE });
        vue.liste.marquer();
        if (deplacer) {
            vue.panneau.scrollTop = 0;
            const titre = vue.panneau.querySelector("h3");
            titre.focus({ preventScroll: true });
            if (!vue.aCote.matches || vue.panneau.getBoundingClientRect().top > innerHeight / 2)
                vue.panneau.scrollIntoView({ block: "start" });
        }
    }

    /** What goes to paper: the list, and every record of it when they are few, else the open one. */
    function imprimer(vue) {
        if (!vue.liste) return;
        vue.liste.imprimer();
        const lignes = vue.liste.lignes();
        vue.papier.replaceChildren();
        if (!lignes.length || lignes.length > FICHES_IMPRIMEES) return;
        vue.panneau.classList.add("ecran");
        for (const ligne of lignes) {
            const fiche = el("section.carte.fiche-imprimee");
            Q.montrerEnregistrement(fiche, ligne, { ...vue, largeur: LARGE });
            fiche.querySelector("h3").removeAttribute("id");
            vue.papier.append(fiche);
        }
    }

    function finirDImprimer(vue) {
        if (!vue.liste) return;
        vue.papier.replaceChildren();
        vue.panneau.classList.remove("ecran");
    }

    function ouvrirFiche(vue, adresse) {
        const { dialogue, catalogue, textes } = vue;
        dialogue
            .querySelector(".contenu")
            .replaceChildren(...Q.fiche(adresse, catalogue, textes).filter(Boolean));
        if (!dialogue.open) dialogue.showModal();
        const vise = dialogue.querySelector("tr.vise");
        dialogue.querySelector(".contenu").scrollTop = 0;
        dialogue.querySelector("h2").focus();
        if (vise) vise.scrollIntoView({ block: "center" });
    }

    /** Goes where an address points; false when it names nothing of ours. */
    function suivre(vue, ancre, deplacer) {
        let nom = ancre.replace(/^#/, "");
        try {
            nom = decodeURIComponent(nom);
        } catch {
            return false; // an address that somebody cut short
        }
        const [, numero, ligne] = /^(?:fichier-(\d+))?-?(?:ligne-(\d+))?$/.exec(nom) || [];
        if (nom && (numero || ligne)) {
            const rang = numero ? Number(numero) - 1 : vue.rang;
            if (!vue.fichiers[rang]) return false;
            if (vue.dialogue.open) vue.dialogue.close();
            if (rang !== vue.rang) choisirFichier(vue, rang);
            if (ligne && vue.fichier.parLigne.has(Number(ligne))) ouvrirLigne(vue, Number(ligne), deplacer);
            else if (deplacer && numero) vue.conteneur.querySelector("#titre-fichier")?.focus();
            return true;
        }
        if (nom === "constats" && vue.liste) {
            const ouverte = vue.liste.element.querySelector('tr[aria-current="true"] a') || vue.liste.element;
            ouverte.focus();
            ouverte.scrollIntoView({ block: "center" });
            return true;
        }
        const adresse = Q.adresseDeFiche(nom, vue.catalogue);
        if (adresse) ouvrirFiche(vue, adresse);
        return adresse !== null;
    }

    function choisirFichier(vue, rang) {
        vue.rang = rang;
        vue.filtre = { mots: "", numero: "", type: null, causes: false };
        vue.ligne = undefined;
        dessiner(vue);
    }

    /** Makes the search index while nothing else is to be done. */
    function indexerEnReserve(vue) {
        const { fichier, mots } = vue;
        const tranche = () => {
            if (vue.fin.signal.aborted || mots !== vue.mots) return;
            if (!Q.indexer(fichier, mots, fichier.index.length + 1000)) setTimeout(tranche);
        };
        setTimeout(tranche, 50);
    }

    function dialogueDeFiche(vue) {
        const fermer = el("button.bouton.fermer", { type: "button" }, vue.textes.fermer);
        const dialogue = el(
            "dialog#fiche",
            { "aria-label": vue.textes.catalogue },
            el("div.contenu"),
            el("p.pied", null, fermer),
        );
        fermer.addEventListener("click", () => dialogue.close());
        dialogue.addEventListener("click", (e) => {
            if (e.target === dialogue) dialogue.close();
        });
        dialogue.addEventListener("close", () => {
            history.replaceState(null, "", vue.ligne === undefined ? "#" : vue.ancre(vue.ligne));
        });
        return dialogue;
    }

    function message(vue, titre, sous) {
        vue.conteneur.replaceChildren(
            enTeteDePage(vue),
            el(
                "main",
                null,
                el(
                    "section#resume.arret",
                    { tabindex: "-1" },
                    Q.symbole("arret"),
                    el("div", null, el("h1#enonce", null, titre), el("p.sous", null, sous)),
                ),
            ),
        );
    }

    /** Draws everything anew from `vue`: data, language, file, filter, record. */
    function dessiner(vue) {
        const textes = (vue.textes = Q.textes[vue.langue]);
        document.documentElement.lang = vue.langue;
        document.title = `${textes.titreDeLaPage} – quilvane`;
        vue.panneau = vue.liste = null;
        if (!vue.donnees) return message(vue, textes.illisible, textes.illisibleSous);
        const { langue, liste } = vue.donnees.fichiers(vue.langue);
        vue.fichiers = liste;
        vue.langueDuRapport = langue === vue.langue ? null : langue;
        if (!liste.length) return message(vue, textes.aucunFichier, textes.aucunFichierSous);
        vue.fichier = liste[vue.rang];
        vue.catalogue = vue.donnees.catalogue(vue.langue);
        vue.fichier.index.length = 0;
        vue.mots = (c) => Q.motsDe(c, langue, vue.langue, vue.catalogue);
        vue.ancre = (l) => (liste.length > 1 ? `#fichier-${vue.rang + 1}-ligne-${l}` : `#ligne-${l}`);
        vue.ligneOuverte = () => vue.ligne;
        vue.surFiltre = () => Q.marquerBarres(vue);
        document.title = `${Q.enonce(vue.fichier, textes)[0]} – ${Q.visible(vue.fichier.source.nom)}`;
        vue.dialogue = dialogueDeFiche(vue);
        const plusieurs = liste.length > 1;
        const principal = el(
            "main",
            null,
            Q.resume(vue),
            plusieurs ? Q.listeDeFichiers(vue) : null,
            plusieurs ? Q.enTeteDeFichier(vue) : null,
            Q.arret(vue),
            Q.avertissements(vue),
        );
        const aListe = vue.fichier.constats.length > 0;
        if (aListe) principal.append(Q.vueDEnsemble(vue));
        vue.conteneur.replaceChildren(
            el(
                "nav.sauts",
                { "aria-label": textes.allerAuContenu },
                el("a", { href: "#resume" }, textes.allerAuContenu),
                aListe ? el("a", { href: "#constats" }, textes.allerALaListe) : null,
            ),
            enTeteDePage(vue),
            principal,
            vue.dialogue,
        );
        if (aListe) {
            vue.liste = Q.listeDeConstats(vue);
            vue.panneau = el("section#enregistrement.carte", { "aria-labelledby": "titre-enregistrement" });
            vue.papier = el("div.papier");
            principal.append(el("div.cote-a-cote", null, vue.liste.element, vue.panneau), vue.papier);
            ouvrirLigne(vue, vue.fichier.parLigne.has(vue.ligne) ? vue.ligne : vue.fichier.lignes[0], false);
            indexerEnReserve(vue);
        }
    }

    function ecouter(vue) {
        const option = { signal: vue.fin.signal };
        vue.conteneur.addEventListener(
            "click",
            (e) => {
                const lien = e.target.closest('a[href^="#"]');
                if (!lien || e.ctrlKey || e.metaKey || e.shiftKey) return;
                const ancre = lien.getAttribute("href");
                if (ancre === "#resume") {
                    e.preventDefault();
                    vue.conteneur.querySelector("#resume").focus();
                } else if (suivre(vue, ancre, true)) {
                    e.preventDefault();
                    if (ancre !== "#constats") history.pushState(null, "", ancre);
                }
            },
            option,
        );
        vue.conteneur.addEventListener(
            "keydown",
            (e) => {
                if (e.key === "Escape" && vue.panneau && vue.panneau.contains(e.target))
                    suivre(vue, "#constats", true);
            },
            option,
        );
        addEventListener(
            "popstate",
            () => {
                if (vue.fichiers) suivre(vue, location.hash, true);
            },
            option,
        );
        addEventListener("beforeprint", () => imprimer(vue), option);
        addEventListener("afterprint", () => finirDImprimer(vue), option);
        vue.etroit.addEventListener(
            "change",
            () => {
                if (vue.panneau) ouvrirLigne(vue, vue.ligne, false);
            },
            option,
        );
    }

    let courante = null;

    globalThis.QuilvaneVue = {
        /**
         * Shows a report in `conteneur` in place of what was there. `rapport` is
         * an object of the format quilvane-rapport/1, `catalogue` one of
         * quilvane-catalogue/1 or null; each may be a list with one object per
         * language. `langue` is "fr" or "en"; a language without any data falls
         * back to that of the report. One viewer is alive at a time.
         */
        afficher(conteneur, rapport, catalogue, langue) {
            const debut = performance.now();
            if (courante) courante.fin.abort();
            const donnees = Q.preparer(rapport, catalogue);
            const possibles = donnees ? donnees.langues : Object.keys(Q.textes);
            const vue = (courante = {
                conteneur,
                donnees,
                fin: new AbortController(),
                rang: 0,
                ligne: undefined,
                langue: possibles.includes(langue) ? langue : donnees ? donnees.langueDesMessages : "en",
                filtre: { mots: "", numero: "", type: null, causes: false },
                etroit: matchMedia("(max-width: 640px)"),
                aCote: matchMedia("(min-width: 1180px)"),
            });
            if (!Q.textes[vue.langue]) vue.langue = "en";
            conteneur.classList.add("quilvane");
            dessiner(vue);
            ecouter(vue);
            if (location.hash && vue.fichiers) suivre(vue, location.hash, true);
            performance.measure("quilvane:afficher", { start: debut });
        },
    };

    // A page that brings its data shows them at once.
    const embarque = (id) => {
        const source = document.getElementById(id);
        if (!source) return undefined;
        try {
            const debut = performance.now();
            const donnees = JSON.parse(source.textContent);
            performance.measure("quilvane:lire", { start: debut });
            return donnees;
        } catch {
            return null;
        } finally {
            source.remove();
        }
    };
    const rapport = embarque("quilvane-rapport");
    if (rapport !== undefined)
        QuilvaneVue.afficher(
            document.getElementById("vue"),
            rapport,
            embarque("quilvane-catalogue"),
            document.documentElement.lang,
        );
})((globalThis.Quilvane ??= {}));
