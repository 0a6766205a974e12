# fish completion for corvellane-cli

set -l commands list install verify remove
set -l changing "__fish_seen_subcommand_from install verify remove"

complete -c corvellane-cli -f
complete -c corvellane-cli -n "not __fish_seen_subcommand_from $commands" -a list -d 'Name the products'
complete -c corvellane-cli -n "not __fish_seen_subcommand_from $commands" -a install -d 'Install'
complete -c corvellane-cli -n "not __fish_seen_subcommand_from $commands" -a verify -d 'Compare with what is shipped'
complete -c corvellane-cli -n "not __fish_seen_subcommand_from $commands" -a remove -d 'Take away what installing makes'
complete -c corvellane-cli -l license -n "not __fish_seen_subcommand_from $commands" -d 'Print the licence agreement'
complete -c corvellane-cli -l version -n "not __fish_seen_subcommand_from $commands" -d 'Print the version and end'
complete -c corvellane-cli -l help -d 'Print the usage and end'
complete -c corvellane-cli -l json -n "__fish_seen_subcommand_from $commands" -d 'Print the answer as JSON'
complete -c corvellane-cli -l accept-license -n "__fish_seen_subcommand_from install" -d 'Agree to the licence agreement'
complete -c corvellane-cli -l if-needed -n "__fish_seen_subcommand_from install" -d 'Install only what is not as shipped'
complete -c corvellane-cli -l select -x -n $changing -d 'Take this product' \
    -a "(corvellane-cli list 2>/dev/null | string replace --regex '/.*' '' | uniq)"
complete -c corvellane-cli -l for-user -x -n $changing -a '(__fish_complete_users)' -d 'For this user'
