# bash completion for corvellane-cli

_corvellane_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} name options
    local common="--select --for-user --json --help"
    COMPREPLY=()
    case $previous in
        --select)
            compopt -o filenames
            while IFS= read -r name; do
                [[ $name != "$current"* ]] || COMPREPLY+=("$name")
            done < <("${COMP_WORDS[0]}" list 2>/dev/null | sed 's|/.*||' | uniq)
            return
            ;;
        --for-user)
            mapfile -t COMPREPLY < <(compgen -u -- "$current")
            return
            ;;
    esac
    case ${COMP_WORDS[1]} in
        list) options="--json --help" ;;
        install) options="--accept-license --if-needed $common" ;;
        verify | remove) options=$common ;;
        *) options="list install verify remove --license --help --version" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
}

complete -F _corvellane_cli corvellane-cli
