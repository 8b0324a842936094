# Completion of orv3cal for bash: the command itself knows what may come next.
_orv3cal() {
  local cur prev words cword
  _init_completion -n =: || return
  local typed=("${words[@]:1:cword}") sign line
  for sign in \\ \' \"; do typed=("${typed[@]//"$sign"/}"); done
  compopt -o filenames  # quotes what a shell would take apart
  while IFS= read -r line; do
    case $line in
      $'\t'files) _filedir ;;
      $'\t'folders) _filedir -d ;;
      *) COMPREPLY+=("${line%%$'\t'*}") ;;
    esac
  done < <("${words[0]}" complete -- "${typed[@]}" 2>/dev/null)
  [[ ${#COMPREPLY[@]} != 1 || ${COMPREPLY[0]} != *= ]] || compopt -o nospace
  __ltrim_colon_completions "$cur"
}
complete -F _orv3cal orv3cal
