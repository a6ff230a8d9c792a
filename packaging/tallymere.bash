# Completion of the tallymere command. What there is, it asks the program itself.
_tallymere()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command= word skip= found=
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [ -n "$skip" ] && { skip=; continue; }
        case $word in
        --data | --server | --user) skip=yes ;;
        -*) ;;
        *) command=$word; break ;;
        esac
    done
    COMPREPLY=()
    case $previous in
    --server | --user | --filter | --organization | --location | --item-type | --period | --year | --date | --retry) return ;;
    esac
    if [[ $current == -* ]]; then
        found=$(tallymere $command --help 2>/dev/null | sed -n 's/^  \(--[a-z-]*\).*/\1/p')
    elif [ -z "$command" ] && [ -z "$skip" ]; then
        found=$(tallymere --help 2>/dev/null | sed -n '/^Commands:/,/^Options:/s/^  \([a-z]*\) .*/\1/p')
    elif [ "$command" = help ]; then
        found=$(tallymere help 2>/dev/null | sed -n 's/^  \([a-z]*\) .*/\1/p')
    else
        compopt -o default # files
        return
    fi
    mapfile -t COMPREPLY < <(compgen -W "$found" -- "$current")
}
complete -F _tallymere tallymere
