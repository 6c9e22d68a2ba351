# Writes a program's completion for a shell from the table of words:
#   awk -v program=tarvexctl -v shell=bash -f completions.awk table.txt
# The shells are bash, zsh and fish.

BEGIN {
    FS = " *[|] *"
    kinds["joystick"] = "b50 f22 adv"
    kinds["macro"] = "m50 m22 mdf"
    kinds["pair"] = kinds["joystick"] " " kinds["macro"]
    commands[++commandCount] = "" # the program without a command comes first
}

/^#/ || NF == 0 { next }
NF != 5 { fail("line " NR " has " NF " columns") }
$1 != program { next }
$3 == "" && $2 != "" { commands[++commandCount] = $2 }
$3 == "" { arguments[$2] = $4; about[$2] = $5; next }
{
    words[$2] = words[$2] (words[$2] == "" ? "" : " ") $3
    value[$2, $3] = $4
    about[$2, $3] = $5
}

END {
    if (failed) exit 1
    if (shell == "bash") bash()
    else if (shell == "zsh") zsh()
    else if (shell == "fish") fish()
    else fail("unknown shell " shell)
    if (failed) exit 1
}

function fail(reason) {
    print "completions.awk: " reason >"/dev/stderr"
    failed = 1
    exit 1
}

function isList(what) { return what ~ /^[(]/ }
function members(list) { return substr(list, 2, length(list) - 2) }

# ---- bash

function bash(    i, j, count, list, name) {
    print "# Completion of " program " for bash."
    print ""
    print "_" program "_files() { # KINDS WORD: files with these endings, or all where there is none"
    print "    local kind endings=()"
    print "    for kind in $1; do endings+=(\"$kind\" \"${kind^^}\"); done"
    print "    mapfile -t COMPREPLY < <("
    print "        for kind in \"${endings[@]}\"; do compgen -f -X \"!*.$kind\" -- \"$2\"; done"
    print "    )"
    print "    if ((${#COMPREPLY[@]} == 0)); then"
    print "        mapfile -t COMPREPLY < <(compgen -f -- \"$2\")"
    print "    else"
    print "        mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -d -- \"$2\")"
    print "    fi"
    print "    compopt -o filenames 2>/dev/null"
    print "}"
    print ""
    print "_" program "() {"
    print "    local word=${COMP_WORDS[COMP_CWORD]} command="
    if (commandCount > 1) print "    ((COMP_CWORD == 1)) || command=${COMP_WORDS[1]}"
    print "    COMPREPLY=()"
    print "    case \"$command ${COMP_WORDS[COMP_CWORD - 1]}\" in"
    for (i = 1; i <= commandCount; ++i) {
        count = split(words[commands[i]], list, " ")
        for (j = 1; j <= count; ++j) bashValue(commands[i], list[j], value[commands[i], list[j]])
    }
    print "    esac"
    print "    case $command in"
    for (i = 1; i <= commandCount; ++i) {
        name = commands[i]
        print "    " (name == "" ? "''" : name) ")"
        print "        if [[ $word == -* ]]; then"
        print "            mapfile -t COMPREPLY < <(compgen -W '" words[name] "' -- \"$word\")"
        if (name == "" && commandCount > 1) {
            print "        else"
            print "            mapfile -t COMPREPLY < <(compgen -W '" allCommands() "' -- \"$word\")"
        } else if (arguments[name] in kinds) {
            print "        else"
            print "            _" program "_files '" kinds[arguments[name]] "' \"$word\""
        }
        print "        fi"
        print "        ;;"
    }
    print "    esac"
    print "}"
    print "complete -F _" program " " program
}

function bashValue(command, word, what) {
    if (what == "") return
    print "    '" command " " word "')"
    if (isList(what)) print "        mapfile -t COMPREPLY < <(compgen -W '" members(what) "' -- \"$word\")"
    else if (what == "file") print "        _" program "_files '' \"$word\""
    print "        return"
    print "        ;;"
}

function allCommands(    i, all) {
    for (i = 2; i <= commandCount; ++i) all = all (i > 2 ? " " : "") commands[i]
    return all
}

# ---- zsh

function zsh(    i) {
    print "#compdef " program
    print "# Completion of " program " for zsh."
    print ""
    if (commandCount == 1) {
        zshArguments("", "")
        return
    }
    print "local -a commands=("
    for (i = 2; i <= commandCount; ++i) print "    '" commands[i] ":" about[commands[i]] "'"
    print ")"
    print "if ((CURRENT == 2)); then"
    print "    _describe command commands"
    zshArguments("", "    ")
    print "    return"
    print "fi"
    print "shift words"
    print "((CURRENT--))"
    print "case $words[1] in"
    for (i = 2; i <= commandCount; ++i) {
        print commands[i] ")"
        zshArguments(commands[i], "    ")
        print "    ;;"
    }
    print "esac"
}

function zshArguments(name, indent,    count, list, j) {
    count = split(words[name], list, " ")
    print indent "_arguments \\"
    for (j = 1; j <= count; ++j)
        print indent "    " zshOption(name, list[j]) (j < count || arguments[name] in kinds ? " \\" : "")
    if (arguments[name] in kinds) print indent "    '*:file:" zshFiles(arguments[name]) "'"
}

function zshOption(name, word,    what, tail) {
    what = value[name, word]
    if (isList(what)) tail = ":" substr(word, 3) ":" what
    else if (what == "file") tail = ":file:_files"
    else if (what != "") tail = ":" what ": "
    return "'" word "[" about[name, word] "]" tail "'"
}

function zshFiles(kind,    endings) {
    endings = kinds[kind]
    gsub(/ /, "|", endings)
    return "_files -g \"*.(#i)(" endings ")\""
}

# ---- fish

function fish(    i, name, when, count, list, j) {
    print "# Completion of " program " for fish."
    print ""
    if (commandCount > 1) print "complete -c " program " -f"
    for (i = 1; i <= commandCount; ++i) {
        name = commands[i]
        when = ""
        if (commandCount > 1) when = name == "" ? "__fish_use_subcommand" : "__fish_seen_subcommand_from " name
        if (when != "") when = " -n '" when "'"
        if (name != "") print "complete -c " program " -n __fish_use_subcommand -a " name " -d '" about[name] "'"
        count = split(words[name], list, " ")
        for (j = 1; j <= count; ++j)
            print "complete -c " program when " -l " substr(list[j], 3) fishValue(value[name, list[j]]) \
                " -d '" about[name, list[j]] "'"
        if (arguments[name] in kinds) print "complete -c " program when " -F" # fish can't sort by several endings
    }
}

function fishValue(what) {
    if (what == "") return ""
    if (isList(what)) return " -x -a '" members(what) "'"
    return what == "file" ? " -r -F" : " -x"
}
