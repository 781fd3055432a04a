/**
 * moteur.js - the page's side of the worker: asks for a report, a result file,
 * the catalogue, and puts the pieces together as they come. Each piece is small,
 * so that the page answers all the while.
 */
"use strict";
(function (Q) {
    const CONSTATS = 1, TEXTES = 2, AVERTISSEMENTS = 3, RESUME = 4;
    const LANGUES = { fr: 0, en: 1 };
    const FORMATS = { json: 1, csv: 3, html: 4 };

    /** The module's bytes from the page: gzip in base64. */
    async function deballer(element) {
        const texte = atob(element.textContent.trim());
        element.remove();
        const octets = Uint8Array.from(texte, (c) => c.charCodeAt(0));
        const flux = new Blob([octets]).stream().pipeThrough(new DecompressionStream("gzip"));
        return new Response(flux).arrayBuffer();
    }

    /** A file's report that grows as its pieces come. */
    function nouveauReleve() {
        const decodeur = new TextDecoder();
        const releve = { constats: [], avertissements: [], textes: {} };
        return {
            releve,
            prendre(morceau, octets) {
                const texte = decodeur.decode(octets);
                if (morceau === CONSTATS) for (const c of JSON.parse(`[${texte}]`)) releve.constats.push(c);
                else if (morceau === AVERTISSEMENTS) releve.avertissements.push(...JSON.parse(`[${texte}]`));
                else Object.assign(morceau === TEXTES ? releve.textes : releve, JSON.parse(`{${texte}}`));
            },
        };
    }

    /**
     * Starts the worker. `element` holds the packed module. Inputs are objects
     * with `nom` and `blob`. Every function returns a promise; `avancer`, when
     * given, is called with the bytes read so far.
     */
    Q.demarrerMoteur = function (element) {
        const adresse = URL.createObjectURL(new Blob([`"use strict";(${Q.ouvrier})();`], { type: "text/javascript" }));
        const ouvrier = new Worker(adresse);
        URL.revokeObjectURL(adresse);
        const attentes = new Map();
        let dernier = 0;

        const pret = deballer(element).then((code) => ouvrier.postMessage({ code }, [code]));

        ouvrier.onmessage = ({ data }) => {
            const attente = attentes.get(data.id);
            if (!attente) return;
            if (data.avance) attente.avancer?.(data.avance);
            else if (data.morceau) attente.prendre?.(data.morceau, data.octets);
            if (!data.fin) return;
            attentes.delete(data.id);
            if (data.faute) attente.refuser(new Error(data.faute));
            else attente.tenir(data);
        };

        async function demander(fonction, entrees, arguments_, plus = {}) {
            await pret;
            return new Promise((tenir, refuser) => {
                const id = ++dernier;
                attentes.set(id, { ...plus, tenir, refuser });
                ouvrier.postMessage({ id, fonction, arguments: arguments_,
                    fichiers: entrees.map((e) => e.blob), noms: entrees.map((e) => e.nom) });
            });
        }

        return {
            /** The object of one file as in quilvane-rapport/1, with the refused records' texts. */
            async examiner(entree, langue, avancer) {
                const r = nouveauReleve();
                await demander("examiner", [entree], [0, LANGUES[langue]], { prendre: r.prendre, avancer });
                return r.releve;
            },
            /** The report on several files as the guide writes it: "html", "json" or "csv". */
            rapport: async (entrees, langue, format) =>
                (await demander("rapport", entrees, [entrees.length, LANGUES[langue], FORMATS[format]])).sortie,
            /** What quilvane would publish, and its status. */
            publier: (entree) => demander("publier", [entree], [0]),
            catalogue: async (langue) => JSON.parse(await (await demander("catalogue", [], [LANGUES[langue]])).sortie.text()),
            /**
             * An error file, explained; with the file that it answers also that
             * file's report, of the records concerned only. Null when it is no
             * error file or answers another one.
             */
            async retour(erreurs, origine, langue) {
                const r = nouveauReleve();
                const { statut, sortie } = await demander("retour", origine ? [erreurs, origine] : [erreurs],
                    [0, origine ? 1 : -1, LANGUES[langue]], { prendre: r.prendre });
                return statut ? { ...JSON.parse(await sortie.text()), releve: origine ? r.releve : null } : null;
            },
        };
    };
})((globalThis.Quilvane ??= {}));
