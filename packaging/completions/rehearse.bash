# bash completion for rehearse and rehearse-window

# The products of the folders that the command line names.
_rehearse_products() {
    local word product
    for word in "${COMP_WORDS[@]:1}"; do
        word=${word/#\~\//$HOME/}
        [ ! -d "$word/Products" ] || word=$word/Products
        [ -d "$word" ] || continue
        for product in "$word"/*/; do
            product=${product%/}
            [ ! -d "$product" ] || echo "${product##*/}"
        done
    done
}

_rehearse() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} name
    local options="--strict --json --script --into --select --agreement --agreement-text --help --version"
    [ "${COMP_WORDS[0]##*/}" != rehearse-window ] || options="--into --translations --help --version"
    COMPREPLY=()
    case $previous in
        --agreement | --agreement-text)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            ;;
        --select)
            compopt -o filenames
            while IFS= read -r name; do
                [[ $name != "$current"* ]] || COMPREPLY+=("$name")
            done < <(_rehearse_products)
            ;;
        *)
            if [[ $current == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
            else
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -d -- "$current")
            fi
            ;;
    esac
}

complete -F _rehearse rehearse rehearse-window
