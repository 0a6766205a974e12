# fish completion for rehearse-window

complete -c rehearse-window -f -a '(__fish_complete_directories)'
complete -c rehearse-window -l into -x -a '(__fish_complete_directories)' -d 'Install below this folder'
complete -c rehearse-window -l translations -x -a '(__fish_complete_directories)' -d 'Take translated texts from this folder'
complete -c rehearse-window -l help -d 'Print the usage and end'
complete -c rehearse-window -l version -d 'Print the version and end'
