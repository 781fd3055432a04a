// bench/valider.py in Node, with ajv, which makes a function of a schema. The
// same schema, the same files, the same limits.
//
//   valider.js FILE ACCEPTED REFUSED
'use strict';
const fs = require('fs');
const path = require('path');
const Ajv = require('ajv');

const schema = JSON.parse(fs.readFileSync(path.join(__dirname, 'acti.schema.json'), 'utf8'));

function existe(jour, mois, annee) {
    return annee >= 1900 && mois >= 1 && mois <= 12 && jour >= 1 && jour <= new Date(annee, mois, 0).getDate();
}

function jour(t) {
    return /^[0-9]{8}$/.test(t) && existe(+t.slice(0, 2), +t.slice(2, 4), +t.slice(4));
}

// The day, or day and month, may be blank: they then count as the first.
function jourIncomplet(t) {
    return jour(t.replace(/^ {4}/, '0101').replace(/^ {2}/, '01'));
}

const ajv = new Ajv({ allErrors: true, formats: { jour, jour_incomplet: jourIncomplet } });

// The fields of a record type with their columns, and what validates them.
function lecteur(nom) {
    const { properties, ...reste } = schema.definitions[nom];
    const champs = Object.entries(properties).filter(([, s]) => s.colonnes).map(([c, s]) => [c, s.colonnes[0] - 1, s.colonnes[1]]);
    return { champs, valider: ajv.compile({ properties, ...reste }) };
}

function main(recu, acceptes, refuses) {
    const lecteurs = [lecteur('FICH'), lecteur('ACTI')];
    const lignes = fs.readFileSync(recu, 'latin1').split('\n');
    lignes.pop();
    const oui = [];
    const non = [];
    lignes.forEach((ligne, n) => {
        const texte = ligne.replace(/\r$/, '');
        const { champs, valider } = lecteurs[n ? 1 : 0];
        const record = { ligne: texte };
        for (const [c, debut, fin] of champs) record[c] = texte.slice(debut, fin);
        if (valider(record)) oui.push(n ? texte.slice(0, 76) + '40' + texte.slice(78) : ligne);
        else non.push(`${n + 1}:${texte}`, ...valider.errors.map(e => `  ${e.dataPath.slice(1)}: ${e.message}`));
    });
    fs.writeFileSync(acceptes, oui.map(l => l + '\n').join(''), 'latin1');
    fs.writeFileSync(refuses, non.map(l => l + '\n').join(''), 'latin1');
    return non.length ? 2 : 0;
}

process.exit(main(...process.argv.slice(2)));
