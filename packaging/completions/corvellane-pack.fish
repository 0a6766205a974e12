# fish completion for corvellane-pack

complete -c corvellane-pack -f -a '(__fish_complete_directories)'
complete -c corvellane-pack -l output -x -a '(__fish_complete_directories)' -d 'Where the installers go'
complete -c corvellane-pack -l version -x -d 'Instead of the version in installer.toml'
complete -c corvellane-pack -l format -x -a '(__fish_append , deb rpm run tar.zst)' -d 'What to make, with commas between'
complete -c corvellane-pack -l sign -x -d 'Sign with this key'
complete -c corvellane-pack -l strict -d 'Let a warning be an error'
complete -c corvellane-pack -l help -d 'Print the usage and end'
