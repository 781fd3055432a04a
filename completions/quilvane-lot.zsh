#compdef quilvane-lot
_arguments \
    '(-j --travaux)'{-j,--travaux}'[files processed at once]:N:' \
    '--suivre[does not end: processes what arrives]' \
    '--repos[takes a file left untouched for S seconds]:S:' \
    '--delai[gives quilvane S seconds a file]:S:' \
    '--metriques[writes metrics in the text format of Prometheus]:file:_files' \
    '--garder[removes older days from the archive]:days:' \
    '--langue[language of messages and reports]:langue:(fr en)' \
    '--couleur[colours]:couleur:(auto toujours jamais)' \
    '(- *)'{-h,--aide,--help}'[shows the help]' \
    '(- *)--version[shows the version]' \
    '*:spool:_files -/'
