# bash completion for quilvane-lot
_quilvane_lot() {
    local mot=${COMP_WORDS[COMP_CWORD]} avant=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $avant in
        --langue) mapfile -t COMPREPLY < <(compgen -W 'fr en' -- "$mot") && return ;;
        --couleur) mapfile -t COMPREPLY < <(compgen -W 'auto toujours jamais' -- "$mot") && return ;;
        --metriques) mapfile -t COMPREPLY < <(compgen -f -- "$mot") && return ;;
        -j | --travaux | --repos | --delai | --garder) return ;;
    esac
    case $mot in
        -*) mapfile -t COMPREPLY < <(compgen -W '-j --travaux --suivre --repos --delai --metriques --garder
            --langue --couleur -h --aide --help --version' -- "$mot") ;;
        *) mapfile -t COMPREPLY < <(compgen -d -- "$mot") ;;
    esac
}
complete -o filenames -F _quilvane_lot quilvane-lot
