/**
 * textes.js - every word of the viewer that does not come with the data, in
 * French and in English. A text with a count is a function of that count.
 */
"use strict";
(function (Q) {
    const pluriel = (n, un, plusieurs) => (n > 1 ? plusieurs : un);
    const plural = (n, one, many) => (n === 1 ? one : many);
    const nfr = (n) => n.toLocaleString("fr-FR");
    const nen = (n) => n.toLocaleString("en-GB");

    const fr = {
        nomDeLangue: "Français",
        titreDeLaPage: "Rapport de vérification",
        langue: "Langue",
        allerAuContenu: "Aller au résultat",
        allerALaListe: "Aller aux points à corriger",
        nombre: nfr,

        // The statement
        accepteTitre: "Ce fichier serait accepté",
        accepteSous: (n) =>
            `${nfr(n)} ${pluriel(n, "enregistrement lu", "enregistrements lus")}, rien à corriger.`,
        aCorrigerTitre: (n) =>
            `${nfr(n)} ${pluriel(n, "enregistrement à corriger", "enregistrements à corriger")}`,
        aCorrigerSous: (n, total) =>
            `sur ${nfr(total)} ${pluriel(total, "lu", "lus")}. Une fois ${pluriel(n, "cet enregistrement corrigé", "ces enregistrements corrigés")}, le fichier pourra être présenté de nouveau.`,
        fatalTitre: "Ce fichier ne peut pas être traité tel quel",
        fatalSous: "Un point concerne le fichier entier ; il est expliqué ci-dessous.",
        plusieursAcceptes: (n) => `Les ${nfr(n)} fichiers seraient acceptés`,
        plusieursTitre: (n, total) =>
            `${nfr(n)} ${pluriel(n, "fichier", "fichiers")} sur ${nfr(total)} ${pluriel(n, "demande", "demandent")} une correction`,
        plusieursSous: (enr) =>
            enr
                ? `${nfr(enr)} ${pluriel(enr, "enregistrement à corriger", "enregistrements à corriger")} en tout.`
                : "Aucun enregistrement à corriger ; voyez ci-dessous ce qui concerne chaque fichier.",
        aucunFichier: "Aucun fichier dans ce rapport",
        aucunFichierSous: "Le rapport ne contient le résultat d’aucun fichier.",
        illisible: "Ce rapport ne peut pas être lu",
        illisibleSous:
            "Les données ont une forme que cette page ne connaît pas. Créez le rapport de nouveau avec le même programme.",

        // The summary
        phraseNombres: (a, r) =>
            `${a ? `${nfr(a)} ${pluriel(a, "enregistrement est correct", "enregistrements sont corrects")}` : "Aucun enregistrement n’est correct"}, ${nfr(r)} ${pluriel(r, "est", "sont")} à corriger.`,
        phrasePoints: (n, m) =>
            `${pluriel(n, "Un point est signalé", `${nfr(n)} points sont signalés`)}${m ? ` ; ${pluriel(m, "un d’eux découle", `${nfr(m)} d’entre eux découlent`)} sans doute d’un autre et ${pluriel(m, "disparaîtra", "disparaîtront")} avec lui` : ""}.`,
        phraseFrequent: (n) => `Le plus fréquent, ${nfr(n)} fois :`,
        phrasePremiereLigne: "d’abord à la",
        finDeLigne: {
            LF: "Les lignes finissent par LF (Unix).",
            CRLF: "Les lignes finissent par CR LF (Windows).",
            CR: "Les lignes finissent par CR seul.",
        },

        // Files, fatal condition, warnings
        fichiers: "Fichiers",
        fichier: "Fichier",
        etat: "Résultat",
        etats: ["accepté", "non traitable", "à corriger"],
        lus: "Enregistrements lus",
        refuses: "À corriger",
        ceQuiArrete: "Ce qui empêche le traitement",
        avertissements: (n) => pluriel(n, "À savoir sur ce fichier", `À savoir sur ce fichier (${nfr(n)})`),
        autresAvertissements: (n) =>
            `Voir ${pluriel(n, "l’autre remarque", `les ${nfr(n)} autres remarques`)}`,
        commentFaire: "Comment faire",
        ligne: (n) => `Ligne ${n}`,
        ligneMinuscule: (n) => `ligne ${n}`,
        ligneColonne: (l, c) => (c ? `Ligne ${l}, colonne ${c}` : `Ligne ${l}`),

        // Bars
        vueDEnsemble: "Vue d’ensemble",
        parNumero: "Par point à corriger",
        parType: "Par type de message",
        voirToutesBarres: (n) => `Voir les ${nfr(n)} autres`,
        fois: (n) => `${nfr(n)} fois`,
        sansType: "type inconnu",

        // The list
        points: "Points à corriger",
        pointsAide: "Choisissez une ligne pour voir l’enregistrement et ce qu’il faut y changer.",
        chercher: "Chercher",
        chercherIndice: "ligne, valeur, champ, mot…",
        numero: "Numéro",
        type: "Type",
        tous: "Tous",
        causesSeules: "Premières causes seulement",
        effacer: "Tout afficher",
        compte: (n, total, enr) =>
            n === total
                ? `${nfr(n)} ${pluriel(n, "point", "points")} dans ${nfr(enr)} ${pluriel(enr, "enregistrement", "enregistrements")}`
                : `${nfr(n)} ${pluriel(n, "point", "points")} sur ${nfr(total)}, dans ${nfr(enr)} ${pluriel(enr, "enregistrement", "enregistrements")}`,
        aucunResultat: "Rien ne correspond à cette recherche. Essayez un mot de moins.",
        colLigne: "Ligne",
        colEnregistrement: "Enregistrement",
        colChamp: "Champ et valeur reçue",
        colPoint: "Ce qu’il faut corriger",
        afficherPlus: (n, reste) => `Afficher ${nfr(n)} de plus (${nfr(reste)} ne sont pas affichés)`,
        chercheTout: "La recherche ci-dessus porte sur tous les points, affichés ou non.",
        imprime: (n, total) =>
            `Imprimé : ${nfr(n)} points sur ${nfr(total)}. Pour imprimer les autres, réduisez la liste avec la recherche.`,
        voirLigne: (l, titre) => `Ligne ${l} : ${titre}`,

        // The record
        enregistrement: "Enregistrement",
        rang: (i, n) => `${nfr(i)} sur ${nfr(n)} à corriger`,
        precedent: "Précédent",
        suivant: "Suivant",
        retourListe: "Retour à la liste",
        genre: "genre",
        cle: "clé",
        numeroDansFichier: (n) => `enregistrement nº ${nfr(n)} du fichier`,
        regle: "L’enregistrement, colonne par colonne",
        regleResume: (zones) =>
            `Enregistrement au-dessus de sa règle de colonnes. Colonnes à corriger : ${zones}.`,
        regleSansColonne:
            "Enregistrement au-dessus de sa règle de colonnes. Aucune colonne précise n’est en cause.",
        legende:
            "En-tête 1 à 62 · corps 63 à 230 · fin 231 à 256. Les colonnes à corriger sont soulignées et portent le numéro de l’explication.",
        legendeOctet: "Un point d’interrogation encadré tient la place d’un caractère non autorisé.",
        texteAbsent: "Le texte de cet enregistrement n’est pas dans ce rapport.",
        omis: (n) => `${nfr(n)} ${pluriel(n, "autre n’est pas montré", "autres ne sont pas montrés")}.`,
        tropLong: (n) => `… et ${nfr(n)} caractères de plus.`,
        explications: "Ce qu’il faut corriger ici",
        valeurRecue: "Valeur reçue",
        vide: (n) => (n ? `vide (${nfr(n)} ${pluriel(n, "espace", "espaces")})` : "vide"),
        colonnes: (a, b) => (a === b ? `colonne ${a}` : `colonnes ${a} à ${b}`),
        valeursProches: "Valeurs proches admises",
        dependance: "Vérifié avec",
        decoule: "Découle sans doute de",
        decouleAide: "corrigez-le d’abord",
        derriere: "Trouvé après le dixième point de l’enregistrement ; le traitement s’arrête à dix.",
        voirChamp: (t) => `Ce que ${t} doit contenir`,
        voirErreur: (n) => `Le numéro ${n} en détail`,
        voirFatal: (code) => `Le code ${code} en détail`,
        fiche: (t) => `Fiche ${t}`,
        parties: { E: "en-tête", C: "corps", F: "fin" },

        // The catalogue
        catalogue: "Catalogue",
        fermer: "Fermer",
        champsDe: "Champs",
        champ: "Champ",
        libelle: "Contenu",
        colColonnes: "Colonnes",
        exigences: "Ce qui est vérifié",
        rienVerifie: "Rien n’est vérifié.",
        genresVerifies: "vérifié pour",
        genresInterdits: "non permis pour",
        liste: "Valeurs admises",
        sens: "Ce que cela veut dire",
        ou: "Où il apparaît",
        ficheAbsente: "Le catalogue ne contient pas d’entrée de ce nom.",
        cleDe: "Clé",
    };

    const en = {
        nomDeLangue: "English",
        titreDeLaPage: "Check report",
        langue: "Language",
        allerAuContenu: "Skip to the result",
        allerALaListe: "Skip to the points to mend",
        nombre: nen,

        accepteTitre: "This file would be accepted",
        accepteSous: (n) => `${nen(n)} ${plural(n, "record", "records")} read, nothing to mend.`,
        aCorrigerTitre: (n) => `${nen(n)} ${plural(n, "record to mend", "records to mend")}`,
        aCorrigerSous: (n, total) =>
            `out of ${nen(total)} read. Once ${plural(n, "it is", "they are")} mended, the file can be sent again.`,
        fatalTitre: "This file cannot be processed as it is",
        fatalSous: "One thing concerns the whole file; it is explained below.",
        plusieursAcceptes: (n) => `All ${nen(n)} files would be accepted`,
        plusieursTitre: (n, total) =>
            `${nen(n)} of ${nen(total)} files ${plural(n, "needs", "need")} mending`,
        plusieursSous: (enr) =>
            enr
                ? `${nen(enr)} ${plural(enr, "record", "records")} to mend in all.`
                : "No record to mend; see below what concerns each file.",
        aucunFichier: "No file in this report",
        aucunFichierSous: "The report holds no file’s result.",
        illisible: "This report cannot be read",
        illisibleSous:
            "The data has a form that this page does not know. Make the report again with the same program.",

        phraseNombres: (a, r) =>
            `${a ? `${nen(a)} ${plural(a, "record is", "records are")} correct` : "No record is correct yet"}, ${nen(r)} ${plural(r, "is", "are")} to be mended.`,
        phrasePoints: (n, m) =>
            `${plural(n, "One point is", `${nen(n)} points are`)} reported${m ? `; ${plural(m, "one of them probably follows", `${nen(m)} of them probably follow`)} from another and will go away with it` : ""}.`,
        phraseFrequent: (n) => `Most frequent, ${plural(n, "once", `${nen(n)} times`)}:`,
        phrasePremiereLigne: "first at",
        finDeLigne: {
            LF: "Lines end in LF (Unix).",
            CRLF: "Lines end in CR LF (Windows).",
            CR: "Lines end in CR alone.",
        },

        fichiers: "Files",
        fichier: "File",
        etat: "Result",
        etats: ["accepted", "cannot be processed", "to mend"],
        lus: "Records read",
        refuses: "To mend",
        ceQuiArrete: "What keeps the file from being processed",
        avertissements: (n) =>
            plural(n, "Good to know about this file", `Good to know about this file (${nen(n)})`),
        autresAvertissements: (n) => `Show ${plural(n, "the other remark", `the ${nen(n)} other remarks`)}`,
        commentFaire: "What to do",
        ligne: (n) => `Line ${n}`,
        ligneMinuscule: (n) => `line ${n}`,
        ligneColonne: (l, c) => (c ? `Line ${l}, column ${c}` : `Line ${l}`),

        vueDEnsemble: "Overview",
        parNumero: "By point to mend",
        parType: "By message type",
        voirToutesBarres: (n) => `Show the ${nen(n)} others`,
        fois: (n) => plural(n, "once", `${nen(n)} times`),
        sansType: "unknown type",

        points: "Points to mend",
        pointsAide: "Choose a line to see the record and what to change in it.",
        chercher: "Search",
        chercherIndice: "line, value, field, word…",
        numero: "Number",
        type: "Type",
        tous: "All",
        causesSeules: "First causes only",
        effacer: "Show everything",
        compte: (n, total, enr) =>
            n === total
                ? `${nen(n)} ${plural(n, "point", "points")} in ${nen(enr)} ${plural(enr, "record", "records")}`
                : `${nen(n)} of ${nen(total)} points, in ${nen(enr)} ${plural(enr, "record", "records")}`,
        aucunResultat: "Nothing matches this search. Try one word less.",
        colLigne: "Line",
        colEnregistrement: "Record",
        colChamp: "Field and value received",
        colPoint: "What to mend",
        afficherPlus: (n, reste) => `Show ${nen(n)} more (${nen(reste)} are not shown)`,
        chercheTout: "The search above looks through all points, shown or not.",
        imprime: (n, total) =>
            `Printed: ${nen(n)} of ${nen(total)} points. To print the others, narrow the list with the search.`,
        voirLigne: (l, titre) => `Line ${l}: ${titre}`,

        enregistrement: "Record",
        rang: (i, n) => `${nen(i)} of ${nen(n)} to mend`,
        precedent: "Previous",
        suivant: "Next",
        retourListe: "Back to the list",
        genre: "kind",
        cle: "key",
        numeroDansFichier: (n) => `record no. ${nen(n)} of the file`,
        regle: "The record, column by column",
        regleResume: (zones) => `Record over its column ruler. Columns to mend: ${zones}.`,
        regleSansColonne: "Record over its column ruler. No particular column is concerned.",
        legende:
            "Header 1 to 62 · body 63 to 230 · footer 231 to 256. Columns to mend are underlined and carry the number of their explanation.",
        legendeOctet: "A boxed question mark stands for a character that is not allowed.",
        texteAbsent: "The text of this record is not in this report.",
        omis: (n) => `${nen(n)} ${plural(n, "other is", "others are")} not shown.`,
        tropLong: (n) => `… and ${nen(n)} more characters.`,
        explications: "What to mend here",
        valeurRecue: "Value received",
        vide: (n) => (n ? `empty (${nen(n)} ${plural(n, "space", "spaces")})` : "empty"),
        colonnes: (a, b) => (a === b ? `column ${a}` : `columns ${a} to ${b}`),
        valeursProches: "Near values that are allowed",
        dependance: "Checked with",
        decoule: "Probably follows from",
        decouleAide: "mend that one first",
        derriere: "Found behind the tenth point of the record; processing stops at ten.",
        voirChamp: (t) => `What ${t} must hold`,
        voirErreur: (n) => `Number ${n} in detail`,
        voirFatal: (code) => `Code ${code} in detail`,
        fiche: (t) => `${t} entry`,
        parties: { E: "header", C: "body", F: "footer" },

        catalogue: "Catalogue",
        fermer: "Close",
        champsDe: "Fields",
        champ: "Field",
        libelle: "Content",
        colColonnes: "Columns",
        exigences: "What is checked",
        rienVerifie: "Nothing is checked.",
        genresVerifies: "checked for",
        genresInterdits: "not allowed for",
        liste: "Allowed values",
        sens: "What it means",
        ou: "Where it arises",
        ficheAbsente: "The catalogue has no entry of this name.",
        cleDe: "Key",
    };

    Q.textes = { fr, en };
})((globalThis.Quilvane ??= {}));
