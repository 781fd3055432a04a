/**
 * application.js - the browser page: takes files, has them checked, shows the
 * report in the viewer, saves what the reader wants to keep. Three views:
 * "accueil" (where files are dropped), "rapport" and "catalogue".
 */
"use strict";
(function (Q) {
    const el = Q.el;
    const LANGUES = ["fr", "en"];
    const EXEMPLE = ["NAIS", "CRE"];

    const etat = {
        langue: LANGUES.find((l) => (navigator.language || "").toLowerCase().startsWith(l)) || "en",
        vue: "accueil",
        entrees: [], // { nom, blob, releves (by language), corrections, lignes, corrige }
        retours: [],
        montres: [], // what the viewer shows: { entree, releve }
        autre: null, // a file that was offered for an error file and is not the one that it answers
    };
    const catalogues = new Map();
    let ouvrirFiche = null;
    const app = document.getElementById("app");
    const moteur = Q.demarrerMoteur(document.getElementById("quilvane-module"));
    Q.moteur = moteur; // for whoever wants to ask the module from the console
    const mots = () => Q.motsDeLaPage[etat.langue];

    const bouton = (nom, texte, agir, attributs) => {
        const b = el(nom, { type: "button", ...attributs }, texte);
        b.addEventListener("click", agir);
        return b;
    };

    // ------------------------------------------------------------ the frame

    const tete = el("header.app-tete.quilvane");
    const accueil = el("main#app-accueil.quilvane");
    const travail = el("section#app-travail.quilvane", { role: "status", hidden: true });
    const outils = el("section#app-outils.quilvane", { hidden: true });
    const vueRapport = el("div#vue", { hidden: true });
    const vueCatalogue = el("main#app-catalogue.quilvane", { hidden: true });
    const annonce = el("p.app-annonce", { role: "status" });

    function dessinerTete() {
        const m = mots();
        const lien = (ancre, nom, courant) => el("a.bouton", { href: ancre, "aria-current": courant ? "page" : null }, nom);
        tete.replaceChildren(
            el("p.marque", null, "quilvane"),
            el("nav", { "aria-label": m.navigation },
                lien("#verifier", m.verifier, etat.vue !== "catalogue"), " ", lien("#catalogue", m.catalogue, etat.vue === "catalogue")),
            el("div.langues", { role: "group", "aria-label": Q.textes[etat.langue].langue }, LANGUES.map((l) =>
                bouton("button", Q.textes[l].nomDeLangue, () => changerLangue(l), { lang: l, "aria-pressed": String(l === etat.langue), "data-app-langue": l }))));
    }

    function montrerVue(vue) {
        etat.vue = vue;
        accueil.hidden = vue !== "accueil";
        outils.hidden = vueRapport.hidden = vue !== "rapport";
        vueCatalogue.hidden = vue !== "catalogue";
        if (vue !== "rapport") document.title = `${vue === "catalogue" ? mots().catalogue : mots().verifier} – quilvane`;
        dessinerTete();
    }

    function dessinerAccueil() {
        const m = mots();
        const fichiers = el("input.app-fichier", { type: "file", id: "app-fichiers", multiple: true });
        fichiers.addEventListener("change", () => { verifier([...fichiers.files]); fichiers.value = ""; });
        accueil.replaceChildren(
            el("div.app-accroche", null, el("h1", null, m.accroche), el("p", null, m.accrocheSous)),
            el("div#app-depot", null,
                el("p.app-depot-titre", null, m.deposer), el("p.detail", null, m.ou),
                el("p", null, fichiers, el("label.bouton.app-principal", { for: "app-fichiers" }, m.choisir)),
                el("p.aide", null, m.rienNeSort)),
            el("p.app-essayer", null, el("b", null, m.essayer), " ",
                bouton("button#app-exemple-correct.discret", m.exempleCorrect, () => essayer(false)), " ",
                bouton("button#app-exemple-errone.discret", m.exempleErrone, () => essayer(true)), " ",
                el("a", { href: "#catalogue" }, m.voirCatalogue)));
    }

    // ------------------------------------------------------------- progress

    function montrerTravail(texte, part) {
        const barre = travail.querySelector("progress") || el("progress", { max: 1, "aria-label": texte });
        if (part === null) barre.removeAttribute("value");
        else barre.value = part;
        barre.setAttribute("aria-label", texte);
        if (!barre.isConnected) travail.replaceChildren(el("p"), barre);
        if (travail.firstChild.textContent !== texte) travail.firstChild.textContent = texte;
        travail.hidden = false;
    }

    function montrerFaute(titre, faute) {
        travail.replaceChildren(el("p.app-alerte", { role: "alert" }, el("b", null, titre), " ", Q.visible(faute)));
        travail.hidden = false;
    }

    // ---------------------------------------------------------------- files

    async function catalogueDe(langue) {
        if (!catalogues.has(langue)) {
            const json = await moteur.catalogue(langue);
            const vide = { format: "quilvane-rapport/1", langue, fichiers: [] };
            catalogues.set(langue, { json, pret: Q.preparer(vide, json).catalogue(langue) });
        }
        return catalogues.get(langue);
    }

    const nouvelleEntree = (fichier, corrige = false) =>
        ({ nom: fichier.name, blob: fichier, releves: {}, corrections: new Map(), lignes: null, corrige });

    /**
     * Has every input checked that is not yet, in the reader's language. False
     * when other files or another language were asked for meanwhile.
     */
    async function examiner() {
        const { langue, entrees } = etat;
        const depasse = () => langue !== etat.langue || entrees !== etat.entrees;
        for (const [i, entree] of entrees.entries()) {
            if (entree.releves[langue]) continue;
            const texte = mots().enCours(Q.visible(entree.nom), i + 1, entrees.length);
            montrerTravail(texte, entree.blob.size > 1 << 20 ? 0 : null);
            entree.releves[langue] = await moteur.examiner(entree, langue,
                (octets) => montrerTravail(texte, octets / entree.blob.size));
            if (depasse()) return false;
        }
        await catalogueDe(langue);
        const retours = await Q.chercherRetours(entrees, moteur, langue, (e) => e.releves[langue]);
        if (depasse()) return false;
        etat.retours = retours;
        travail.hidden = true;
        return true;
    }

    /** Checks files and shows their report. */
    async function verifier(fichiers) {
        if (!fichiers.length) return;
        performance.mark("quilvane:depot");
        etat.entrees = fichiers.map((f) => nouvelleEntree(f));
        etat.autre = null;
        await rapporter();
        performance.measure("quilvane:jusquAuRapport", "quilvane:depot");
    }

    /** Lets the page answer before what follows. */
    const souffler = () => new Promise((suite) => { setTimeout(suite); });

    async function rapporter() {
        try {
            if (!await examiner()) return;
            await souffler();
            history.replaceState(null, "", "#rapport");
            montrerRapport();
            await souffler();
            document.getElementById("resume")?.focus({ preventScroll: true });
            scrollTo(0, 0);
        } catch (e) {
            montrerFaute(mots().faute, e.message);
        }
    }

    async function essayer(errone) {
        const { json } = await catalogueDe(etat.langue);
        const [type, genre] = EXEMPLE;
        const { texte } = json.exemples.find((e) => e.type === type && e.genre === genre);
        const lignes = texte.split("\n");
        // A country that does not exist, and a date that no calendar has.
        if (errone) lignes[1] = `${lignes[1].slice(0, 62)}ZZ${lignes[1].slice(64, 85)}99${lignes[1].slice(87)}`;
        verifierTexte(lignes.join("\n"), errone ? "essai.vse" : `exemple_${type}_${genre}.vse`);
    }

    const enFichier = (texte, nom) => new File([Q.enOctets(texte)], nom);
    const verifierTexte = (texte, nom) => verifier([enFichier(texte, nom)]);

    // --------------------------------------------------------------- report

    /** What the viewer shows: every input, or for error files that came back the files that they answer. */
    function choisirMontres() {
        const { entrees, retours, langue } = etat;
        const trouves = retours.filter((r) => r.origine);
        const caches = new Set(trouves.map((r) => r.erreurs));
        return entrees.filter((e) => !caches.has(e)).map((entree) => {
            const retour = trouves.find((r) => r.origine === entree);
            return { entree, releve: retour ? retour.explication.releve : entree.releves[langue] };
        });
    }

    function montrerRapport() {
        const { langue } = etat;
        etat.montres = choisirMontres();
        montrerVue("rapport");
        dessinerOutils();
        QuilvaneVue.afficher(vueRapport, { format: "quilvane-rapport/1", langue, fichiers: etat.montres.map((x) => x.releve) },
            catalogues.get(langue).json, langue);
    }

    function enregistrer(blob, nom) {
        const adresse = URL.createObjectURL(blob);
        const lien = el("a", { href: adresse, download: nom });
        document.body.append(lien);
        lien.click();
        lien.remove();
        setTimeout(() => URL.revokeObjectURL(adresse), 60000);
        annonce.textContent = mots().pret(Q.visible(nom));
    }

    /** "lot.vse" with another word before its ending: "lot.corrige.vse". */
    const nomAvec = (nom, mot) => nom.replace(/(\.[^.]*)?$/, (fin) => `.${mot}${fin}`);
    const nomDeRapport = (format) => `${etat.montres.length === 1 ? etat.montres[0].entree.nom : "quilvane"}.${format}`;

    async function enregistrerRapport(format) {
        enregistrer(await moteur.rapport(etat.montres.map((x) => x.entree), etat.langue, format), nomDeRapport(format));
    }

    async function enregistrerResultat(entree, statut) {
        enregistrer((await moteur.publier(entree)).sortie, nomAvec(entree.nom, statut === 0 ? "accepte" : "erreurs"));
    }

    function boutonsDeResultat() {
        const m = mots();
        return etat.montres.filter(({ entree }) => [0, 2].includes(entree.releves[etat.langue].statut)).map(({ entree }) => {
            const { statut } = entree.releves[etat.langue];
            return bouton("button.app-resultat", statut === 0 ? m.resultatAccepte : m.resultatErreurs, () => enregistrerResultat(entree, statut),
                { title: `${statut === 0 ? m.resultatAccepte : m.resultatErreurs} ${m.resultatDe(entree.nom)}`, "data-nom": entree.nom });
        });
    }

    function barreDeCorrections(entree) {
        const m = mots();
        const n = entree.corrections.size;
        if (!n) return null;
        return el("div.app-corrections", null, el("p", null, el("b", null, m.gardees(n))),
            bouton("button#app-verifier-corrige.app-principal", m.verifierCorrige, () => verifierCorrige(entree)), " ",
            bouton("button#app-oublier", m.oublier, () => { entree.corrections.clear(); dessinerOutils(); }));
    }

    function dessinerOutils() {
        const m = mots();
        const resultats = boutonsDeResultat();
        outils.setAttribute("aria-label", m.actions);
        outils.replaceChildren(...[
            el("div.app-barre", null,
                bouton("button#app-autres.app-principal", m.autre, () => { location.hash = "#verifier"; }),
                el("div.app-groupe", { role: "group", "aria-label": m.telecharger },
                    el("span.detail", null, m.telecharger), [["html", m.rapportHtml], ["csv", m.rapportCsv], ["json", m.rapportJson]].map(([f, nom]) =>
                        bouton(`button#app-${f}`, nom, () => enregistrerRapport(f))), resultats.length === 1 ? resultats : null)),
            resultats.length > 1 ? el("details", null, el("summary", null, `${m.resultatAccepte} / ${m.resultatErreurs}`),
                el("ul.app-resultats", null, resultats.map((b) => el("li", null, b, " ", Q.visible(b.dataset.nom))))) : null,
            etat.montres.some(({ entree }) => entree.corrections.size)
                ? el("div.app-gardees", null, etat.montres.map(({ entree }) => barreDeCorrections(entree))) : null,
            etat.montres.filter(({ entree }) => entree.corrige).map(({ entree }) => el("div.app-corrections", null, el("p", null, m.estCorrige),
                bouton("button#app-enregistrer-corrige.app-principal", m.enregistrerCorrige, () => enregistrer(entree.blob, entree.nom)))),
            etat.retours.map((r) => Q.montrerRetour({ ...r, autre: etat.autre }, m, (fichier) => donnerOrigine(r, fichier))), annonce].flat().filter(Boolean));
    }

    /** The file that an error file answers, chosen behind it. */
    async function donnerOrigine(retour, fichier) {
        const explication = await moteur.retour(retour.erreurs, nouvelleEntree(fichier), etat.langue);
        etat.autre = explication ? null : { nom: fichier.name };
        if (!explication) return dessinerOutils();
        etat.entrees = [retour.erreurs, nouvelleEntree(fichier)];
        return rapporter();
    }

    // ----------------------------------------------------------- correcting

    async function ouvrirCorrection(entree, ligne) {
        const { langue } = etat;
        const { pret: catalogue } = await catalogueDe(langue);
        entree.lignes ??= await Q.lireLignes(entree.blob);
        Q.corriger({
            langue, textes: Q.textes[langue], mots: mots(), catalogue, lignes: entree.lignes, corrections: entree.corrections, ligne,
            largeur: () => (matchMedia("(max-width: 640px)").matches ? 32 : 64),
            montrer: (texte) => texte.replace(/[^\x20-\x7e]/g, (c) => `\\x${c.charCodeAt(0).toString(16).toUpperCase().padStart(2, "0")}`),
            async juger(texte) {
                const { blob, rang } = Q.extrait(entree.lignes, ligne, texte, entree.corrections, catalogue);
                const releve = await moteur.examiner({ nom: entree.nom, blob }, langue);
                return releve.constats.filter((c) => c.ligne === rang);
            },
            garder: (texte) => { entree.corrections.set(ligne, texte); dessinerOutils(); },
            fermer: () => document.querySelector(".app-corriger")?.focus(),
        });
    }

    async function verifierCorrige(entree) {
        const { pret } = await catalogueDe(etat.langue);
        entree.lignes ??= await Q.lireLignes(entree.blob);
        const blob = Q.fichierCorrige(entree.lignes, entree.corrections, pret);
        const suffixe = mots().suffixe;
        const nom = entree.corrige ? entree.nom : nomAvec(entree.nom, suffixe);
        etat.entrees = etat.entrees.map((e) => (e === entree ? nouvelleEntree(new File([blob], nom), true) : e));
        await rapporter();
    }

    // The viewer's panel gets a button of ours behind its own links.
    const montrerEnregistrement = Q.montrerEnregistrement;
    Q.montrerEnregistrement = function (panneau, ligne, contexte) {
        montrerEnregistrement(panneau, ligne, contexte);
        const montre = etat.montres.find((x) => x.releve.constats === contexte.fichier.constats);
        if (!montre || panneau.id !== "enregistrement") return;
        panneau.querySelector(".tete").after(el("p.app-agir", null,
            bouton("button.app-corriger.app-principal", mots().corriger, () => ouvrirCorrection(montre.entree, ligne))));
    };

    // ------------------------------------------------- catalogue and language

    async function montrerCatalogue(ancre) {
        const { langue } = etat;
        const { json, pret } = await catalogueDe(langue);
        if (!ouvrirFiche || ouvrirFiche.langue !== langue) {
            const nom = (e) => `exemple_${e.type}_${e.genre}.vse`;
            ouvrirFiche = Q.explorer(vueCatalogue, {
                catalogue: pret, exemples: json.exemples, textes: Q.textes[langue], mots: mots(),
                verifier: (e) => verifierTexte(e.texte, nom(e)), enregistrer: (e) => enregistrer(enFichier(e.texte, nom(e)), nom(e)),
            });
            ouvrirFiche.langue = langue;
        }
        montrerVue("catalogue");
        ouvrirFiche(ancre);
    }

    async function changerLangue(langue) {
        etat.langue = langue;
        document.documentElement.lang = langue;
        annonce.textContent = "";
        dessinerAccueil();
        await catalogueDe(langue);
        if (etat.vue === "catalogue") await montrerCatalogue(lire(location.hash));
        else if (etat.vue === "rapport") {
            if (!await examiner()) return;
            montrerRapport();
        } else montrerVue(etat.vue);
        tete.querySelector(`[data-app-langue=${langue}]`).focus();
    }

    // ------------------------------------------------------------ addresses

    function lire(ancre) {
        try {
            return decodeURIComponent(ancre.replace(/^#/, ""));
        } catch {
            return "";
        }
    }

    const estFiche = (nom) => {
        const catalogue = catalogues.get(etat.langue)?.pret;
        return Boolean(nom && catalogue && Q.adresseDeFiche(nom, catalogue));
    };

    /** Goes where an address points; true when the viewer has nothing to do with it. */
    function suivre(nom) {
        if (nom === "catalogue" || (estFiche(nom) && etat.vue !== "rapport")) return montrerCatalogue(nom), true;
        if (nom === "verifier" || (nom === "" && etat.vue === "catalogue")) return retournerVerifier(), true;
        if (nom !== "" && etat.montres.length) montrerVue("rapport");
        return etat.vue !== "rapport";
    }

    /** From the catalogue back to the report, if there is one; from there to the start. */
    function retournerVerifier() {
        if (etat.vue !== "catalogue" || !etat.montres.length) return montrerVue("accueil");
        montrerVue("rapport");
    }

    // Before the viewer's listener: what is not for it must not reach it.
    addEventListener("popstate", (e) => { if (suivre(lire(location.hash))) e.stopImmediatePropagation(); });

    // Files may be dropped anywhere.
    let survols = 0;
    const survoler = (oui) => document.body.classList.toggle("app-survol", oui);
    const porteFichiers = (e) => [...(e.dataTransfer?.types || [])].includes("Files");
    addEventListener("dragenter", (e) => { if (porteFichiers(e)) { survols++; survoler(true); } });
    addEventListener("dragleave", () => { survols = Math.max(0, survols - 1); survoler(survols > 0); });
    addEventListener("dragover", (e) => { if (porteFichiers(e)) e.preventDefault(); });
    addEventListener("drop", (e) => {
        if (!porteFichiers(e)) return;
        e.preventDefault();
        survols = 0;
        survoler(false);
        document.querySelector("dialog[open]")?.close();
        verifier([...e.dataTransfer.files]);
    });

    // ---------------------------------------------------------------- start

    /**
     * Has every example examined once, damaged: the browser then has the whole
     * module compiled, and the first report takes half the time.
     */
    async function chauffer() {
        const { json } = await catalogueDe(etat.langue);
        const fichiers = json.exemples.map((e) => e.texte.split("\n").slice(0, -1));
        const abime = (ligne) => `${ligne.slice(0, 64)}?${ligne.slice(65, 90)}  ${ligne.slice(92)}`;
        const lignes = fichiers.flatMap((f) => f.slice(1).flatMap((l) => [l, abime(l), abime(l)]));
        const texte = [fichiers[0][0], ...lignes, ""].join("\n");
        await moteur.examiner({ nom: "", blob: new Blob([Q.enOctets(texte)]) }, etat.langue);
    }

    document.documentElement.lang = etat.langue;
    app.replaceChildren(tete, travail, outils, accueil, vueRapport, vueCatalogue);
    dessinerAccueil();
    montrerVue("accueil");
    catalogueDe(etat.langue).then(() => {
        document.body.dataset.pret = "";
        const nom = lire(location.hash);
        if (nom === "catalogue" || estFiche(nom)) montrerCatalogue(nom);
        return chauffer();
    }).catch((e) => montrerFaute(mots().impossible, `${mots().impossibleSous} (${e.message})`));
})((globalThis.Quilvane ??= {}));
