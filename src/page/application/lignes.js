/**
 * lignes.js - a file as lines, one character per byte, and a corrected copy of
 * it. The original is never changed.
 */
"use strict";
(function (Q) {
    const LF = 10, CR = 13, CTRL_Z = 26;
    const COMPTE = "C3"; // the field of the FICH record that announces the count
    Q.LARGEUR = 256;

    /** Bytes as a text of one character each. */
    function enTexte(octets) {
        const morceaux = [];
        for (let i = 0; i < octets.length; i += 8192) morceaux.push(String.fromCharCode(...octets.subarray(i, i + 8192)));
        return morceaux.join("");
    }

    /** A text of one character per byte as bytes. */
    Q.enOctets = (texte) => Uint8Array.from(texte, (c) => c.charCodeAt(0));

    /**
     * The lines of a file up to its end or a Ctrl-Z: { texte, fin }, where `fin`
     * is the line end as it stands. What follows the last line end is in `reste`.
     */
    Q.lireLignes = async function (blob) {
        const octets = new Uint8Array(await blob.arrayBuffer());
        const lignes = [];
        let debut = 0, i = 0;
        for (; i < octets.length && octets[i] !== CTRL_Z; i++) {
            if (octets[i] !== LF && octets[i] !== CR) continue;
            const apres = octets[i] === CR && octets[i + 1] === LF ? i + 2 : i + 1;
            lignes.push({ texte: enTexte(octets.subarray(debut, i)), fin: enTexte(octets.subarray(i, apres)) });
            debut = apres;
            i = apres - 1;
        }
        return { lignes, reste: octets.slice(debut) };
    };

    /** A text in columns `a` to `b`, from 1. */
    Q.colonnes = (texte, [a, b]) => texte.padEnd(Q.LARGEUR).slice(a - 1, b);

    /** The record with a value in columns `a` to `b`. */
    Q.poser = function (texte, [a, b], valeur) {
        const large = texte.padEnd(Q.LARGEUR);
        return large.slice(0, a - 1) + valeur.padEnd(b - a + 1).slice(0, b - a + 1) + large.slice(b);
    };

    /** The FICH record announcing `messages` records. */
    Q.compter = function (fich, messages, catalogue) {
        const { colonnes } = catalogue.tables.get("FICH").champs.find((c) => c.champ === COMPTE);
        return Q.poser(fich, colonnes, String(messages).padStart(colonnes[1] - colonnes[0] + 1, "0"));
    };

    /** A new file: the corrections (line number to text) put in, the FICH record's count put right. */
    Q.fichierCorrige = function ({ lignes, reste }, corrections, catalogue) {
        const parties = lignes.map((l, i) => {
            const texte = corrections.get(i + 1) ?? l.texte;
            return (i === 0 ? Q.compter(texte, lignes.length - 1, catalogue) : texte) + l.fin;
        });
        return new Blob([Q.enOctets(parties.join("")), reste]);
    };

    /**
     * A small file in which a record stands as it does in the whole one: behind
     * the FICH record and the two records before it, before the one after it.
     * `rang` is the record's line there.
     */
    Q.extrait = function ({ lignes }, ligne, texte, corrections, catalogue) {
        const lire = (n) => (n === ligne ? texte : corrections.get(n) ?? lignes[n - 1].texte);
        const fin = lignes[ligne - 1].fin;
        const voisins = [ligne - 2, ligne - 1, ligne, ligne + 1].filter((n) => n > 1 && n <= lignes.length && lignes[n - 1].fin === fin);
        const fich = Q.compter(lire(1), voisins.length, catalogue);
        return { blob: new Blob([Q.enOctets([fich, ...voisins.map(lire)].map((t) => t + fin).join(""))]),
            rang: ligne === 1 ? 1 : voisins.indexOf(ligne) + 2 };
    };
})((globalThis.Quilvane ??= {}));
