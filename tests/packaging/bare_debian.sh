# Installs the package in a bare Debian 12 and uses it there. Sourced by package.sh, with its `check` and `top`.

# bare_debian BASE ROOT: makes ROOT a bare Debian. BASE is kept for the next time.
bare_debian() {
    local mirror
    root=$2
    # The mirror of this machine, whichever it is.
    mirror=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' |
        awk '$2 == "bookworm" && $3 == "main" { print $1; exit }')
    [ -n "$mirror" ] || { echo "apt knows no mirror of Debian 12" && return 1; }
    if [ ! -e "$1/etc/debian_version" ]; then
        rm -rf "$1"
        debootstrap --variant=minbase bookworm "$1" "$mirror" >"$1.log" 2>&1 || { tail -n 5 "$1.log" && return 1; }
    fi
    cp -a "$1" "$root"
    cp /etc/resolv.conf "$root/etc/"
    apt-config dump | grep -E '^Acquire::(https?::Proxy|Check-)' >"$root/etc/apt/apt.conf.d/90machine"
    mount -t proc proc "$root/proc" || return 1
    trap 'umount "$root/proc"' EXIT
    chroot "$root" useradd --create-home pilot
    chroot "$root" install -d -o pilot -g pilot -m 0700 /run/user/pilot # as a session has it
}

in_root() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 chroot "$root" "$@"; }
install_package() { # DEB: with what it needs, and nothing else
    cp "$1" "$root/tmp/package.deb" && in_root apt-get -q update && in_root apt-get install -y /tmp/package.deb
}

settings() { printf '%s' "$root/home/pilot/.local/share/tarvex/Tarvex.ini"; }

# start_program PICTURE COMMAND...: as the user, on a display of its own, until its windows are painted; then they are
# closed. Whatever it wrote outside of the home is listed in written.txt.
start_program() {
    local picture=$1
    shift
    touch "$work/stamp"
    "$top/scripts/with-display" --manager bash -c 'picture=$1 root=$2 top=$3; shift 3
        exec "$top/scripts/take-picture" "$picture" chroot --userspec=pilot:pilot "$root" /usr/bin/env -i HOME=/home/pilot \
            XDG_RUNTIME_DIR=/run/user/pilot PATH=/usr/bin:/bin LC_ALL=C.UTF-8 DISPLAY="$DISPLAY" "$@"' - "$picture" "$root" "$top" "$@" || return 1
    find "$root" -xdev -newer "$work/stamp" ! -path "$root/home/pilot*" ! -path "$root/run/user/*" -printf "%p at %t by $*\n" \
        >>"$work/written.txt"
}

# The program that the desktop starts for a file, from its type and the desktop file, as words.
program_for() {
    local type data=$work/data
    rm -rf "$data"
    mkdir -p "$data"
    cp -r "$root/usr/share/mime" "$root/usr/share/applications" "$data/"
    update-desktop-database "$data/applications"
    type=$(XDG_DATA_DIRS=$data XDG_DATA_HOME=$data gio info -a standard::content-type "$root$1" |
        sed -n 's/.*standard::content-type: //p')
    grep -l "MimeType=.*$type;" "$data"/applications/*.desktop | xargs sed -n 's/^Exec=//p' | head -n 1 | sed "s|%f|$1|"
}
opens_by_its_type() {
    local example=/usr/share/tarvex/examples/kestrel.b50 command
    command=$(program_for $example)
    echo "the desktop starts: $command"
    [ "$command" = "tarvex-open $example" ] || return 1
    # shellcheck disable=SC2086 # words
    start_program "$work/first-start.png" $command && grep -qi 'kestrel\.b50' "$(settings)"
}

write_settings() {
    sed -i 's/^FirstTimeUsed=.*/FirstTimeUsed=0\r/; s/^UndoMax=.*/UndoMax=77\r/' "$(settings)"
    printf '[Mine]\r\nKept=yes\r\n' >>"$(settings)"
}
has_settings() {
    grep -q '^UndoMax=77' "$(settings)" && grep -q '^Kept=yes' "$(settings)" && grep -q '^FirstTimeUsed=0' "$(settings)"
}
# The same package with a lower number.
older_package() {
    rm -rf "$work/older"
    dpkg-deb -R "$1" "$work/older"
    sed -i 's/^Version: .*/Version: 0.0.1/' "$work/older/DEBIAN/control"
    dpkg-deb --root-owner-group -b "$work/older" "$work/older.deb"
}
upgrade_keeps_settings() {
    write_settings
    install_package "$1" && [ "$(in_root dpkg-query -W -f '${Version}' tarvex)" = "$version" ] && has_settings &&
        start_program "$work/after-upgrade.png" tarvex && has_settings
}
nothing_outside() {
    cat "$work/written.txt"
    [ ! -s "$work/written.txt" ]
}
leaves_no_trace() {
    local left
    in_root apt-get purge -y tarvex || return 1
    # The system clears the runtime directory when the user logs out.
    left=$(find "$root" -xdev -iname '*tarvex*' ! -path "$root/home/*" ! -path "$root/run/user/*")
    printf '%s\n' "$left"
    [ -z "$left" ] && has_settings
}

check_in_bare_debian() {
    : >"$work/written.txt"
    older_package "$1" >/dev/null
    check "a bare Debian installs the package with nothing else" install_package "$work/older.deb"
    check "an example is opened there by its file type" opens_by_its_type
    check "an upgrade keeps the settings" upgrade_keeps_settings "$1"
    check "the program wrote nothing outside of the home folder" nothing_outside
    check "removing it leaves nothing but the user's own files" leaves_no_trace
}
