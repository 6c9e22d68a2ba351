#!/bin/sh
# Lets the kernel's own calls fail, one after the other, while a process saves a file: strace_faults.sh SAVE_ONCE
# The file must be the old or the new one, whole, and the new one when the process reports success.
set -u

saver=$1
old=$(printf 'Rem the old file %04000d' 1)
new=$(printf 'Rem the new file %06000d' 2)

if ! strace -f -e trace=none true >/dev/null 2>&1; then
    echo "skipped: this machine lets no process trace another (ptrace)"
    exit 77
fi

place=$(mktemp -d) || exit 1
trap 'rm -rf "$place"' EXIT
mkdir "$place/work" "$place/run"
file=$place/work/mig.b50
cd "$place/run" || exit 1

failures=0
runs=0
failed=0

prepare() {
    rm -rf "$place/work" && mkdir "$place/work" && printf %s "$old" >"$file" && chmod 664 "$file"
}

# complain TEXT: counts and reports a broken promise
complain() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}

# check CASE STATUS
check() {
    contents=$(cat "$file")
    [ "$contents" = "$old" ] || [ "$contents" = "$new" ] || complain "$1: the file is neither old nor new"
    [ "$2" -ne 0 ] || [ "$contents" = "$new" ] || complain "$1: success without the new file"
    [ "$(ls -A "$place/work")" = mig.b50 ] || complain "$1: left behind: $(ls -A "$place/work")"
}

calls="openat write fsync flock lgetxattr,llistxattr fsetxattr,fremovexattr close rename,renameat,renameat2 fchmod fstat,newfstatat,statx lstat,stat access,faccessat,faccessat2"
for call in $calls; do
    names=?$(echo "$call" | sed 's/,/,?/g') # "?": not every kind of machine has every call
    prepare
    strace -f -o "$place/log" -e trace="$names" "$saver" "$file" "$new" || exit 1
    [ "$(cat "$file")" = "$new" ] || complain "the undisturbed save"
    count=$(grep -c ' = ' "$place/log")
    for error in ENOSPC EIO EACCES; do
        number=1
        while [ "$number" -le "$count" ]; do
            prepare
            strace -f -o "$place/log" -e trace="$names" -e inject="$names:error=$error:when=$number" \
                "$saver" "$file" "$new" >/dev/null 2>&1
            status=$?
            runs=$((runs + 1))
            [ "$status" -eq 0 ] || failed=$((failed + 1))
            check "$call number $number with $error" "$status"
            number=$((number + 1))
        done
    done
done

echo "$runs saves disturbed, $failed of them reported an error, $failures broke a promise"
# a run in which nothing was disturbed would prove nothing
[ "$failures" -eq 0 ] && [ "$failed" -gt 10 ]
