# bash completion for corvellane-pack

_corvellane_pack() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $previous in
        --version | --sign) ;;
        --format)
            local before=
            [[ $current != *,* ]] || before=${current%,*},
            compopt -o nospace
            mapfile -t COMPREPLY < <(compgen -P "$before" -W "deb rpm run tar.zst" -- "${current##*,}")
            ;;
        *)
            if [[ $current == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "--output --version --format --sign --strict --help" -- "$current")
            else
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -d -- "$current")
            fi
            ;;
    esac
}

complete -F _corvellane_pack corvellane-pack
