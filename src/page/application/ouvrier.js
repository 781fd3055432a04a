/**
 * ouvrier.js - the worker: runs the WebAssembly module, gives it the bytes of
 * files as it asks for them and hands its output to the page in pieces. This
 * function's text is the worker's whole program; it can use nothing from
 * outside itself.
 */
"use strict";
(function (Q) {
    Q.ouvrier = function () {
        const BLOC = 4 << 20; // bytes read from a file at once
        const PAS = 1 << 20; // bytes between two words on progress
        const SORTIE = 0;
        let module = null;
        let memoire = null;
        let travail = null; // the request being served
        const lecteur = new FileReaderSync();

        const dire = (message, cedes) => postMessage({ id: travail.id, ...message }, cedes || []);

        // ------------------------------------------ what the module asks for

        function rembobiner(source) {
            travail.lectures[source] = { position: 0, bloc: null, debut: 0, dit: 0 };
        }

        /** Puts the next bytes of a file where the module wants them. */
        function lire(source, ou, taille) {
            const fichier = travail.fichiers[source];
            const l = travail.lectures[source];
            let lus = 0;
            try {
                while (lus < taille && l.position < fichier.size) {
                    if (!l.bloc || l.position >= l.debut + l.bloc.length) {
                        l.debut = l.position;
                        l.bloc = new Uint8Array(lecteur.readAsArrayBuffer(fichier.slice(l.position, l.position + BLOC)));
                    }
                    const reste = l.bloc.subarray(l.position - l.debut, l.position - l.debut + taille - lus);
                    new Uint8Array(memoire.buffer, ou + lus, reste.length).set(reste);
                    lus += reste.length;
                    l.position += reste.length;
                }
            } catch {
                return -1;
            }
            if (l.position - l.dit >= PAS) {
                l.dit = l.position;
                dire({ avance: l.position });
            }
            return lus;
        }

        function nommer(source, ou, place) {
            const nom = new TextEncoder().encode(travail.noms[source]).subarray(0, place);
            new Uint8Array(memoire.buffer, ou, nom.length).set(nom);
            return nom.length;
        }

        function ecrire(morceau, ou, taille) {
            const octets = new Uint8Array(memoire.buffer, ou, taille).slice();
            if (morceau === SORTIE) travail.sortie.push(octets);
            else dire({ morceau, octets }, [octets.buffer]);
        }

        // The clock shows local time, as the program's does. There are no files.
        const MAUVAIS_DESCRIPTEUR = 8;
        const systeme = {
            clock_time_get(_horloge, _precision, ou) {
                const local = Date.now() - new Date().getTimezoneOffset() * 60000;
                new DataView(memoire.buffer).setBigUint64(ou, BigInt(local) * 1000000n, true);
                return 0;
            },
            fd_close: () => MAUVAIS_DESCRIPTEUR,
            fd_seek: () => MAUVAIS_DESCRIPTEUR,
            fd_write: () => MAUVAIS_DESCRIPTEUR,
        };

        let compile = null;

        /** A module whose memory nothing has touched yet. */
        async function instancier() {
            const instance = await WebAssembly.instantiate(compile,
                { quilvane: { rembobiner, lire, nommer, ecrire }, wasi_snapshot_preview1: systeme });
            module = instance.exports;
            memoire = module.memory;
            module._initialize();
        }

        async function preparer(code) {
            compile = await WebAssembly.compile(code);
            await instancier();
        }

        // ------------------------------------------------------ the requests

        function servir(demande) {
            travail = { ...demande, lectures: [], sortie: [] };
            try {
                const statut = module[demande.fonction](...demande.arguments);
                const sortie = new Blob(travail.sortie);
                dire({ fin: true, statut, sortie });
            } catch (e) {
                pret = instancier(); // what a fault leaves behind serves no further request
                dire({ fin: true, faute: String(e) });
            }
        }

        // Requests that come while the module is being prepared wait for it.
        let pret = null;
        onmessage = (e) => {
            if (e.data.code) pret = preparer(e.data.code);
            else pret.then(() => servir(e.data), (faute) => postMessage({ id: e.data.id, fin: true, faute: String(faute) }));
        };
    };
})((globalThis.Quilvane ??= {}));
