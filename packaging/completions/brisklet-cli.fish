# fish completion for brisklet-cli(1)

set -l commands probe filmstrip frame export
complete -c brisklet-cli -n "not __fish_seen_subcommand_from $commands" -f -a probe -d "Print what is known of a file"
complete -c brisklet-cli -n "not __fish_seen_subcommand_from $commands" -f -a filmstrip -d "Write evenly spaced stills"
complete -c brisklet-cli -n "not __fish_seen_subcommand_from $commands" -f -a frame -d "Write the frame at one time"
complete -c brisklet-cli -n "not __fish_seen_subcommand_from $commands" -f -a export -d "Write the kept part to a new file"
complete -c brisklet-cli -l help -d "Print a short help"
complete -c brisklet-cli -l version -d "Print the version"
complete -c brisklet-cli -n "__fish_seen_subcommand_from filmstrip" -x -l count -d "Number of stills"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l start -d "Beginning of the range, seconds"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l end -d "End of the range, seconds"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l crop -d "Part of the picture to keep: X,Y,W,H"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l rotate -a "0 90 180 270" -d "Clockwise turn"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -l mute -d "Leave the sound out"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l max-short-edge -a "2160 1440 1080 720 480" -d "Scale down to this"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l format -a "mp4 mov" -d "Container"
complete -c brisklet-cli -n "__fish_seen_subcommand_from export" -x -l progress -a json -d "Print reports"
