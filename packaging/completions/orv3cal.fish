# Completion of orv3cal for fish: the command itself knows what may come next.
function __orv3cal_complete
    set -l typed (commandline -opc) (commandline -ct)
    for line in ($typed[1] complete -- $typed[2..-1] 2>/dev/null)
        set -l parts (string split -m 1 \t -- $line)
        if test -n "$parts[1]"
            echo $line
        else if test "$parts[2]" = files
            __fish_complete_path (commandline -ct)
        else
            __fish_complete_directories (commandline -ct)
        end
    end
end
complete -c orv3cal -f -a '(__orv3cal_complete)'
