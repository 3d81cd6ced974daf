# Completion of mortanectl for bash.

_mortanectl() {
  local current="${COMP_WORDS[COMP_CWORD]}" previous="" command="" word
  ((COMP_CWORD > 0)) && previous="${COMP_WORDS[COMP_CWORD - 1]}"
  COMPREPLY=()

  local i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    word="${COMP_WORDS[i]}"
    case "$word" in
      devices | receive | compare | diff | send | backups | restore | check | report | export | watch | \
        bench)
        command="$word"
        break
        ;;
    esac
  done
  if [[ -z "$command" ]]; then
    mapfile -t COMPREPLY < <(compgen -W "devices receive compare diff send backups restore check \
      report export watch bench --help --version" -- "$current")
    return
  fi

  case "$previous" in
    --bench | -o | --output | --ome | --since | --from-journal)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      return
      ;;
    --sections)
      local before=""
      [[ "$current" != *,* ]] || before="${current%,*},"
      compopt -o nospace 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -P "$before" -W "SYSTEM NOSEPIECE FILTER CONDENSER INTERLOCK \
        CONTROL SWITCH TACTOR" -- "${current##*,}")
      return
      ;;
    --device | --wait | --keep | --every)
      return
      ;;
  esac

  local microscope="--device --sim --bench --wait --journal" sending="--dry-run --yes --no-backup"
  local options="--help"
  case "$command" in
    devices) options+=" $microscope --json" ;;
    receive) options+=" $microscope --output --partial" ;;
    compare) options+=" $microscope --sections --json" ;;
    diff | check) options+=" --json" ;;
    send | restore) options+=" $microscope --sections $sending --json" ;;
    backups) options+=" $microscope --keep --json" ;;
    report) options+=" $microscope --output --since" ;;
    export) options+=" $microscope --ome" ;;
    watch) options+=" $microscope --every --json" ;;
    bench) options+=" --from-journal --output" ;;
  esac
  if [[ "$current" == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    return
  fi
  case "$command" in
    compare | diff | send | check | report | restore)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      ;;
  esac
}

complete -F _mortanectl mortanectl
