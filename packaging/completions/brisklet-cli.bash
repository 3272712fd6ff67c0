# bash completion for brisklet-cli(1)

_brisklet_cli() {
    local current="${COMP_WORDS[COMP_CWORD]}" previous="${COMP_WORDS[COMP_CWORD-1]}"
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "probe filmstrip frame export --help --version" -- "$current")
        return
    fi
    case "$previous" in
        --format) mapfile -t COMPREPLY < <(compgen -W "mp4 mov" -- "$current"); return ;;
        --progress) mapfile -t COMPREPLY < <(compgen -W "json" -- "$current"); return ;;
        --rotate) mapfile -t COMPREPLY < <(compgen -W "0 90 180 270" -- "$current"); return ;;
        --max-short-edge) mapfile -t COMPREPLY < <(compgen -W "2160 1440 1080 720 480" -- "$current"); return ;;
        --start | --end | --crop | --count) return ;;
    esac
    if [[ "$current" == -* ]]; then
        local options="--help"
        case "${COMP_WORDS[1]}" in
            export) options+=" --start --end --crop --rotate --mute --max-short-edge --format --progress" ;;
            filmstrip) options+=" --count" ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
}
complete -F _brisklet_cli brisklet-cli
