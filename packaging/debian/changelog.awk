# Writes CHANGELOG.md in Debian's form:  awk -v package=NAME -v maintainer="NAME <ADDRESS>" -f changelog.awk CHANGELOG.md

/^## \[[0-9]/ {
    finish()
    version = $2
    gsub(/[][]/, "", version)
    date = $4
    print package " (" version ") unstable; urgency=medium"
    next
}
version == "" || /^### / || /^$/ { next }
/^- / { flush(); entry = substr($0, 3); next }
{ sub(/^ +/, ""); entry = entry " " $0 }
END { finish() }

# One entry, in lines of at most 80 columns.
function flush(    i, count, words, line) {
    if (entry == "") return
    count = split(entry, words, " ")
    print ""
    line = "  *"
    for (i = 1; i <= count; ++i) {
        if (length(line) + 1 + length(words[i]) > 80) {
            print line
            line = "   "
        }
        line = line " " words[i]
    }
    print line
    entry = ""
}

function finish(    command, stamp) {
    if (version == "") return
    flush()
    command = "LC_ALL=C date -u -R -d " date
    command | getline stamp
    close(command)
    print "\n -- " maintainer "  " stamp "\n"
    version = ""
}
