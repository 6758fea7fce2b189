# bash completion for the programs of OVL Software. It reads their --help, so it has no list that could become old.

# The words that begin the rows of a section of the help.
_ovl_rows() {
  sed -n "/^$1[:,]/,/^$/s/^  \(-h, \)\?\([a-z-]\+\).*/\2/p"
}

_ovl_software() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} help form='' kind=() words='' given
  [ "$current" != = ] || current=''
  [ "$previous" != = ] || previous=${COMP_WORDS[COMP_CWORD - 2]}
  help=$("$1" --help 2> /dev/null) || return

  # What is expected, in the words of the help: the value of an option, an option, or an argument of the usage line.
  case $previous in
    *[!a-z-]*) ;;
    --*) form=$(sed -n "s/^  $previous <\?\([^ >]\+\).*/\1/p" <<< "$help") ;;
  esac
  case $form,$current in
    ,-*) form=OPTION ;;
    ,*)
      form=$(sed -n '1s/.* \[\?\(FILE\|FOLDER\|VERSION\).*/\1/p' <<< "$help")
      # What follows a command is a file.
      words=$(_ovl_rows Commands <<< "$help")
      for given in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        ! grep -qxF -e "$given" <<< "$words" || words=''
      done
      ;;
  esac

  case $form in
    *FILE* | *PATH*) kind=(-f) ;;
    FOLDER) kind=(-d) ;;
    OPTION) words=$(_ovl_rows Options <<< "$help") ;;
    FAULT) words=$(_ovl_rows Faults <<< "$help") ;;
    VERSION)
      words=$("$1" --list 2> /dev/null | awk -v version="$previous" '$1 == version { print $2 }')
      words=${words:-$("$1" --list 2> /dev/null | cut -d ' ' -f 1)}
      ;;
    *'|'*) words=${form//|/ } ;;
  esac
  [ ${#kind[@]} -eq 0 ] || compopt -o filenames
  mapfile -t COMPREPLY < <(compgen "${kind[@]}" -W "$words" -- "$current" | sort -u)
}
complete -F _ovl_software ovl ovl-images ovl-script ovl-setup ovl-unit
