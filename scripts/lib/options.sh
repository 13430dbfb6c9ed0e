# The options of a script. To be sourced first; the comment at the script's head is its help.

# options "KNOWN..." ARGUMENT...: shows the help when --help is among the arguments, and ends the script at one that it does
# not know. WORD among the known stands for any argument that is no option.
options() {
  local known=" $1 " argument
  shift
  for argument; do
    case $argument in
      --help | -h) awk 'NR > 1 { if (!/^#/) exit; sub(/^# ?/, ""); print }' "$0"; exit 0 ;;
      -*) [[ $known == *" $argument "* ]] && continue ;;
      *) [[ $known == *" WORD "* ]] && continue ;;
    esac
    echo "${0##*/}: $argument is not understood; ${0##*/} --help tells what is" >&2
    exit 2
  done
}
