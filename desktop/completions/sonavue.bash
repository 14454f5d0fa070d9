# Completion of `sonavue` for bash.
_sonavue() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  compopt -o filenames 2>/dev/null
  case $previous in
    --root | --music | --headers | --screenshots) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    --script | --junit | --extension) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    --device)
      mapfile -t COMPREPLY < <(compgen -W "iPhone3,1 iPhone4,1 iPhone5,1 iPhone6,1 iPhone7,2 iPhone7,1 iPad4,1" -- "$word")
      ;;
    --without) COMPREPLY=() ;;
    *)
      case $word in
        -*)
          mapfile -t COMPREPLY < <(compgen -W "--help --version --device --root --new-phone --music
            --without --extension --headers --browser --headless --blind --desktop --console --script --junit --screenshots" -- "$word")
          ;;
        *) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
      esac
      ;;
  esac
}
complete -F _sonavue sonavue
