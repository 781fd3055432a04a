/**
 * rapport.js - the viewer: what the file's fate is in one statement, a summary,
 * what is to be mended and where. `QuilvaneVue.afficher` may be called again at
 * any time with new data.
 */
"use strict";
(function (Q) {
    const el = Q.el;
    const ACCEPTE = 0, ARRETE = 1;
    const FORME = ["accepte", "arret", "corriger"];
    const BARRES = 8, AVERTISSEMENTS = 5;
    const LARGE = 64, ETROIT = 32;
    const FICHES_IMPRIMEES = 40;

    // ------------------------------------------------ statement and summary

    function enonce(fichier, textes) {
        const f = fichier.source;
        if (f.statut === ACCEPTE) return [textes.accepteTitre, textes.accepteSous(f.enregistrements)];
        if (f.statut === ARRETE) return [textes.fatalTitre, textes.fatalSous];
        return [textes.aCorrigerTitre(f.refuses), textes.aCorrigerSous(f.refuses, f.enregistrements)];
    }

    function enonceDeTous(fichiers, textes) {
        const restants = fichiers.filter((f) => f.source.statut !== ACCEPTE);
        if (!restants.length) return [textes.plusieursAcceptes(fichiers.length), ""];
        return [textes.plusieursTitre(restants.length, fichiers.length),
            textes.plusieursSous(fichiers.reduce((n, f) => n + (f.source.refuses || 0), 0))];
    }

    function gravite(fichiers) {
        const statuts = fichiers.map((f) => f.source.statut);
        return [1, 2, 0].find((s) => statuts.includes(s)) ?? ACCEPTE;
    }

    function phrases(vue, fichier) {
        const { textes } = vue;
        const f = fichier.source;
        const suite = [];
        if (f.statut === 2) {
            suite.push(el("p", null, textes.phraseNombres(f.acceptes, f.refuses), " ", textes.phrasePoints(fichier.constats.length, fichier.decoulent)));
            const premier = fichier.parNumero[0];
            if (premier && premier.n > 1)
                suite.push(el("p", null, textes.phraseFrequent(premier.n), " ", el("q", null, Q.visible(vue.mots(premier.exemple).titre)), ", ",
                    textes.phrasePremiereLigne, " ", el("a", { href: vue.ancre(premier.exemple.ligne) }, textes.ligneMinuscule(premier.exemple.ligne)), "."));
        }
        if (f.resultat && f.resultat.phrase) suite.push(el("p", { lang: vue.langueDuRapport }, Q.visible(f.resultat.phrase)));
        return suite;
    }

    function resume(vue) {
        const { textes, fichiers, fichier } = vue;
        const plusieurs = fichiers.length > 1;
        const forme = FORME[plusieurs ? gravite(fichiers) : fichier.source.statut];
        const [titre, sous] = plusieurs ? enonceDeTous(fichiers, textes) : enonce(fichier, textes);
        return el(`section#resume.${forme}`, { "aria-labelledby": "enonce", tabindex: "-1" },
            Q.symbole(forme),
            el("div", null,
                plusieurs ? null : el("p.nom", null, Q.donnee(fichier.source.nom)),
                el("h1#enonce", null, titre), sous ? el("p.sous", null, sous) : null,
                plusieurs ? null : el("div.phrases", null, phrases(vue, fichier))));
    }

    function listeDeFichiers(vue) {
        const { textes, fichiers } = vue;
        return el("section#fichiers.carte", { "aria-labelledby": "titre-fichiers" },
            el("h2#titre-fichiers", null, textes.fichiers),
            el("div.defile", null, el("table.fichiers", null,
                el("thead", null, el("tr", null, [textes.fichier, textes.etat, textes.lus, textes.refuses].map((t, i) =>
                    el(i > 1 ? "th.nombre" : "th", { scope: "col" }, t)))),
                el("tbody", null, fichiers.map((f, i) => el("tr", { "aria-current": i === vue.rang ? "true" : null },
                    el("th", { scope: "row" }, el("a", { href: `#fichier-${i + 1}` }, Q.donnee(f.source.nom))),
                    el(`td.${FORME[f.source.statut]}`, null, Q.symbole(FORME[f.source.statut]), " ", textes.etats[f.source.statut]),
                    el("td.nombre", null, textes.nombre(f.source.enregistrements || 0)),
                    el("td.nombre", null, textes.nombre(f.source.refuses || 0))))))));
    }

    function enTeteDeFichier(vue) {
        const { textes, fichier } = vue;
        const [titre, sous] = enonce(fichier, textes);
        const forme = FORME[fichier.source.statut];
        return el(`section#fichier.carte.${forme}`, { "aria-labelledby": "titre-fichier", tabindex: "-1" },
            el("h2#titre-fichier", { tabindex: "-1" }, Q.symbole(forme), " ", Q.donnee(fichier.source.nom)),
            el("p", null, el("b", null, titre), fichier.source.statut === ACCEPTE || fichier.source.statut === ARRETE ? ". " : " ", sous),
            el("div.phrases", null, phrases(vue, fichier)));
    }

    // ------------------------------------- fatal condition and warnings

    function arret(vue) {
        const { textes, catalogue, fichier } = vue;
        const f = fichier.source.fatal;
        if (!f) return null;
        return el("section#arret.carte.arret", { "aria-labelledby": "titre-arret" },
            el("h2#titre-arret", null, textes.ceQuiArrete),
            el("h3", null, Q.visible(f.titre || f.message)),
            el("p.detail", null, [f.ligne ? textes.ligne(f.ligne) : null, f.code].filter(Boolean).map(Q.visible).join(" · ")),
            f.titre ? el("p", null, Q.visible(f.message)) : null,
            f.remede ? el("p.remede", null, el("b", null, `${textes.commentFaire} `), Q.visible(f.remede)) : null,
            catalogue && catalogue.fatals.has(f.code) ? el("p.liens", null, el("a", { href: `#fatal-${f.code}` }, textes.voirFatal(f.code))) : null);
    }

    function avertissements(vue) {
        const { textes, fichier } = vue;
        const tous = fichier.source.avertissements || [];
        if (!tous.length) return null;
        const ligne = (a) => el("li", { "data-code": a.code }, el("b", null, `${textes.ligneColonne(a.ligne, a.colonne)} `), Q.visible(a.message));
        return el("section#avertissements.carte", { "aria-labelledby": "titre-avertissements" },
            el("h2#titre-avertissements", null, textes.avertissements(tous.length)),
            el("ul.avertissements", null, tous.slice(0, AVERTISSEMENTS).map(ligne)),
            tous.length > AVERTISSEMENTS ? el("details", null,
                el("summary", null, textes.autresAvertissements(tous.length - AVERTISSEMENTS)),
                el("ul.avertissements", null, tous.slice(AVERTISSEMENTS).map(ligne))) : null);
    }

    // ------------------------------------------------------------------ bars

    /** A list of bars; each is a button that filters by its value, or lets go of it. */
    function barres(vue, titre, id, comptes, nom, champ) {
        const { textes, filtre } = vue;
        const plusGrand = Math.max(...comptes.map((c) => c.n));
        const bouton = (c) => {
            const barre = el("span.barre", { "aria-hidden": "true" }, el("span"));
            barre.firstChild.style.width = `${Math.max(1, (100 * c.n) / plusGrand)}%`;
            const b = el("button.compte", { type: "button", "aria-pressed": "false", "data-cle": c.cle },
                el("span.nom", null, nom(c)), " ", el("span.n", null, textes.nombre(c.n)), barre);
            b.addEventListener("click", () => {
                const valeur = champ === "numero" ? String(c.cle) : c.cle;
                filtre[champ] = filtre[champ] === valeur ? (champ === "numero" ? "" : null) : valeur;
                vue.liste.filtrer();
            });
            return el("li", null, b);
        };
        const liste = el("ul.barres", null, comptes.slice(0, BARRES).map(bouton));
        const reste = comptes.slice(BARRES);
        return el(`div#${id}`, null, el("h3", null, titre), liste,
            reste.length ? el("details", null, el("summary", null, textes.voirToutesBarres(reste.length)),
                el("ul.barres", null, reste.map(bouton))) : null);
    }

    function vueDEnsemble(vue) {
        const { textes, fichier } = vue;
        return el("section#ensemble.carte", { "aria-labelledby": "titre-ensemble" },
            el("h2#titre-ensemble", null, textes.vueDEnsemble),
            el("div.colonnes-barres", null,
                barres(vue, textes.parNumero, "barres-numero", fichier.parNumero,
                    (c) => [el("span.numero", null, String(c.cle)), " ", Q.visible(vue.mots(c.exemple).titre)], "numero"),
                barres(vue, textes.parType, "barres-type", fichier.parType,
                    (c) => {
                        const table = vue.catalogue && vue.catalogue.tables.get(c.cle);
                        return [el("b", null, Q.donnee(c.cle) || textes.sansType), table && table.titre ? ` ${Q.visible(table.titre)}` : null];
                    }, "type")));
    }

    /** Shows on the bars by which of them the list is filtered. */
    function marquerBarres(vue) {
        const marquer = (id, valeur) => vue.conteneur.querySelectorAll(`#${id} button.compte`).forEach((b) =>
            b.setAttribute("aria-pressed", String(valeur !== null && b.dataset.cle === valeur)));
        marquer("barres-numero", vue.filtre.numero === "" ? null : vue.filtre.numero);
        marquer("barres-type", vue.filtre.type);
    }

    // ------------------------------------------------- the page and its ways

    function enTeteDePage(vue) {
        const { textes, donnees } = vue;
        const langues = donnees ? donnees.langues : [];
        return el("header.page", null,
            el("p.marque", null, "quilvane ", el("span", null, textes.titreDeLaPage)),
            langues.length > 1 ? el("div.langues", { role: "group", "aria-label": textes.langue }, langues.map((l) => {
                const b = el("button", { type: "button", lang: l, "aria-pressed": String(l === vue.langue), "data-langue": l }, Q.textes[l].nomDeLangue);
                b.addEventListener("click", () => { vue.langue = l; dessiner(vue); vue.conteneur.querySelector(`[data-langue=${l}]`).focus(); });
                return b;
            })) : null);
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
            if (!vue.aCote.matches || vue.panneau.getBoundingClientRect().top > innerHeight / 2) vue.panneau.scrollIntoView({ block: "start" });
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
        dialogue.querySelector(".contenu").replaceChildren(...Q.fiche(adresse, catalogue, textes).filter(Boolean));
        if (!dialogue.open) dialogue.showModal();
        const vise = dialogue.querySelector("tr.vise");
        dialogue.querySelector(".contenu").scrollTop = 0;
        dialogue.querySelector("h2").focus();
        if (vise) vise.scrollIntoView({ block: "center" });
    }

    /** Goes where an address points; false when it names nothing of ours. */
    function suivre(vue, ancre, deplacer) {
        const nom = decodeURIComponent(ancre.replace(/^#/, ""));
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
        const dialogue = el("dialog#fiche", { "aria-label": vue.textes.catalogue }, el("div.contenu"), el("p.pied", null, fermer));
        fermer.addEventListener("click", () => dialogue.close());
        dialogue.addEventListener("click", (e) => { if (e.target === dialogue) dialogue.close(); });
        dialogue.addEventListener("close", () => {
            history.replaceState(null, "", vue.ligne === undefined ? "#" : vue.ancre(vue.ligne));
        });
        return dialogue;
    }

    function message(vue, titre, sous) {
        vue.conteneur.replaceChildren(enTeteDePage(vue), el("main", null,
            el("section#resume.arret", { tabindex: "-1" }, Q.symbole("arret"), el("div", null, el("h1#enonce", null, titre), el("p.sous", null, sous)))));
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
        vue.surFiltre = () => marquerBarres(vue);
        document.title = `${enonce(vue.fichier, textes)[0]} – ${Q.visible(vue.fichier.source.nom)}`;
        vue.dialogue = dialogueDeFiche(vue);
        const plusieurs = liste.length > 1;
        const principal = el("main", null, resume(vue), plusieurs ? listeDeFichiers(vue) : null, plusieurs ? enTeteDeFichier(vue) : null,
            arret(vue), avertissements(vue));
        const aListe = vue.fichier.constats.length > 0;
        if (aListe) principal.append(vueDEnsemble(vue));
        vue.conteneur.replaceChildren(
            el("nav.sauts", { "aria-label": textes.allerAuContenu }, el("a", { href: "#resume" }, textes.allerAuContenu),
                aListe ? el("a", { href: "#constats" }, textes.allerALaListe) : null),
            enTeteDePage(vue), principal, vue.dialogue);
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
        vue.conteneur.addEventListener("click", (e) => {
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
        }, option);
        vue.conteneur.addEventListener("keydown", (e) => {
            if (e.key === "Escape" && vue.panneau && vue.panneau.contains(e.target)) suivre(vue, "#constats", true);
        }, option);
        addEventListener("popstate", () => { if (vue.fichiers) suivre(vue, location.hash, true); }, option);
        addEventListener("beforeprint", () => imprimer(vue), option);
        addEventListener("afterprint", () => finirDImprimer(vue), option);
        vue.etroit.addEventListener("change", () => { if (vue.panneau) ouvrirLigne(vue, vue.ligne, false); }, option);
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
                conteneur, donnees, fin: new AbortController(), rang: 0, ligne: undefined,
                langue: possibles.includes(langue) ? langue : donnees ? donnees.langueDesMessages : "en",
                filtre: { mots: "", numero: "", type: null, causes: false },
                etroit: matchMedia("(max-width: 640px)"), aCote: matchMedia("(min-width: 1180px)"),
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
        QuilvaneVue.afficher(document.getElementById("vue"), rapport, embarque("quilvane-catalogue"), document.documentElement.lang);
})((globalThis.Quilvane ??= {}));
