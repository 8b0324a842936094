# Completion of orv3cal for fish: the command itself knows what may come next.
function __orv3cal_complete
    set -l typed (commandline -opc)
    # The word under the cursor, without the quote that it may begin with and the backslashes in it.
    set -l begun (commandline -ct | string replace -r '^["\']' '' | string replace -ra '\\\\(.)' '$1')
    # Of an option's value the part behind its "=" names the file; the replies have the option again.
    set -l token (commandline -ct)
    set -l option (string match -r '^--[^=]*=' -- $token)
    set -l path (string replace -r '^--[^=]*=' '' -- $token)
    for line in ($typed[1] complete -- $typed[2..-1] "$begun" 2>/dev/null)
        set -l parts (string split -m 1 \t -- $line)
        if test -n "$parts[1]"
            echo $line
        else if test "$parts[2]" = files
            __fish_complete_path "$path" | string replace -r '^' -- "$option"
        else
            __fish_complete_directories "$path" | string replace -r '^' -- "$option"
        end
    end
end
complete -c orv3cal -f -a '(__orv3cal_complete)'
