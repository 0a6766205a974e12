# fish completion for rehearse

# The products of the folders that the command line names.
function __rehearse_products
    for word in (commandline --tokenize --current-process)[2..]
        set word (string replace --regex '^~/' "$HOME/" -- $word)
        test -d "$word/Products"; and set word "$word/Products"
        test -d "$word"; or continue
        for product in $word/*/
            path basename $product
        end
    end
end

complete -c rehearse -f -a '(__fish_complete_directories)'
complete -c rehearse -l strict -d 'Exit with 1 for warnings too'
complete -c rehearse -l json -d 'Print products and findings as JSON'
complete -c rehearse -l script -d 'Print the script that would run'
complete -c rehearse -l into -x -a '(__fish_complete_directories)' -d 'Install below this folder'
complete -c rehearse -l select -x -a '(__rehearse_products)' -d 'Take this product'
complete -c rehearse -l agreement -r -F -d 'Print an agreement as JSON'
complete -c rehearse -l agreement-text -r -F -d 'Print the words of an agreement'
complete -c rehearse -l help -d 'Print the usage and end'
complete -c rehearse -l version -d 'Print the version and end'
