# What ./run, ./test and ./bench share: the packages they need, and how they build. Sourced by bash, with `top` set to
# the root of the sources.

# One row per purpose; a package stands in one row only.
package_table() {
    cat <<'TABLE'
build     cmake ninja-build g++ libcli11-dev nlohmann-json3-dev qt6-base-dev qt6-svg-dev zlib1g-dev libsdl2-dev libevdev-dev libxcb1-dev libxcb-xkb-dev libxkbcommon-dev qt6-tools-dev qt6-documentation-tools python3-markdown
run       fonts-liberation libqt6sql6-sqlite
wayland   qt6-wayland
display   xvfb
picture   openbox wmctrl imagemagick
test      poppler-utils python3 clang-format-14 libgtest-dev libgmock-dev strace dosbox xdotool umockdev libumockdev-dev pkg-config aspell aspell-en dbus at-spi2-core python3-pyatspi
desktop   desktop-file-utils appstream shared-mime-info libglib2.0-bin xdg-utils mandoc zsh fish
handbook  pngquant optipng
release   git dpkg-dev file binutils xz-utils
package   lintian debootstrap flatpak-builder
tidy      clang-tidy-14
sanitize  clang-14 libclang-rt-14-dev llvm-14
bench     libbenchmark-dev libx11-dev libxdamage-dev
order     valgrind
peers     geany mousepad featherpad highlight source-highlight python3-pygments bat
TABLE
}

say() { printf '%s\n' "$*" >&2; }
die() {
    say "$@"
    exit 1
}

# A bare container may know neither a home nor a language; the compiler cache and Qt want both.
if [ -z "${HOME:-}" ]; then
    export HOME="$top/build/home"
    mkdir -p "$HOME"
fi
if [ -z "${LC_ALL:-}${LC_CTYPE:-}${LANG:-}" ]; then export LC_ALL=C.UTF-8; fi

# need PURPOSE...: installs the packages of these purposes that aren't there.
need() {
    local wanted missing
    wanted=$(package_table | awk -v asked=" $* " 'index(asked, " " $1 " ") { for (i = 2; i <= NF; i++) print $i }')
    command -v apt-get >/dev/null && command -v dpkg-query >/dev/null || die "This script installs what it needs" \
        "with apt-get, which isn't here. Install what matches these Debian packages and build with cmake, as" \
        "README.md says:" $wanted
    missing=$(LC_ALL=C comm -23 <(LC_ALL=C sort <<<"$wanted") \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' $wanted 2>/dev/null | sed -n 's/^installed //p' |
            LC_ALL=C sort -u))
    [ -z "$missing" ] || install_packages $missing
}

install_packages() {
    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || die "These packages are missing; install them as root and start again:" "$@"
        as_root=(sudo)
    fi
    say "Installing:" "$@"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update >&2 || say "The package lists could not be renewed; trying with those that are there."
    "${apt[@]}" install -y --no-install-recommends -o Dpkg::Use-Pty=0 "$@" >&2 ||
        die "apt-get could not install what is missing:" "$@"
}

# The value that cmake keeps for a name in a build folder.
cached() { sed -nE "s/^$2:[A-Z]+=//p" "$1/CMakeCache.txt" 2>/dev/null; }

# configure FOLDER NAME=VALUE...: has cmake set up a build folder, unless it stands there with these values.
# Values of an earlier call that aren't named stay, so ./run doesn't undo what ./test has set.
configure() {
    local folder=$1 setting ready=no fresh=()
    shift
    command -v ccache >/dev/null && set -- "$@" CMAKE_CXX_COMPILER_LAUNCHER=ccache
    if [ "$(cached "$folder" CMAKE_HOME_DIRECTORY)" != "$top" ]; then
        fresh=(--fresh) # set up for sources elsewhere, or not at all
    elif [ -f "$folder/build.ninja" ]; then
        ready=yes
    fi
    for setting in "$@"; do
        [ "$(cached "$folder" "${setting%%=*}")" = "${setting#*=}" ] || ready=no
    done
    [ $ready = yes ] || cmake -S "$top" -B "$folder" -G Ninja "${fresh[@]}" "${@/#/-D}"
}

# build FOLDER [TARGET...]
build() {
    local folder=$1
    shift
    # The compiler cache takes precompiled headers when it needn't look at their times.
    CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros}" \
        cmake --build "$folder" ${1:+--target "$@"}
}
