# Completion of orv3cal for bash: the command itself knows what may come next.
_orv3cal() {
  local cur prev words cword
  _init_completion -n =: || return
  local typed=("${words[@]:1:cword}") sign line
  for sign in \\ \' \"; do typed=("${typed[@]//"$sign"/}"); done
  compopt -o filenames  # quotes what a shell would take apart
  local begun=$cur option=
  # In quotes no "=" parts the word: what is put in has the option's name.
  if [[ $cur == [\'\"]* ]]; then
    cur=${cur#?}
    [[ $cur != --*=* ]] || option=${cur%%=*}=
  fi
  while IFS= read -r line; do
    case $line in
      $'\t'files) cur=${cur#--*=} && _filedir && COMPREPLY=("${COMPREPLY[@]/#/$option}") ;;
      $'\t'folders) cur=${cur#--*=} && _filedir -d && COMPREPLY=("${COMPREPLY[@]/#/$option}") ;;
      *) COMPREPLY+=("${line%%$'\t'*}") ;;
    esac
  done < <("${words[0]}" complete -- "${typed[@]}" 2>/dev/null)
  [[ ${#COMPREPLY[@]} != 1 || ${COMPREPLY[0]} != *= ]] || compopt -o nospace
  # What bash puts in is what stands behind the last "=".
  if [[ $begun == [^\'\"]*=* && $COMP_WORDBREAKS == *=* ]]; then
    local head=${typed[-1]%"${typed[-1]##*=}"}
    COMPREPLY=("${COMPREPLY[@]#"$head"}")
    [[ -n ${COMPREPLY[0]-} ]] || COMPREPLY=()
  fi
  __ltrim_colon_completions "$begun"
}
complete -F _orv3cal orv3cal
