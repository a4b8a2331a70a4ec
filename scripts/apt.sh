# shellcheck shell=sh
# Sourced after common.sh: apt with package sources and lists of its own, all in one folder. The system's sources, lists and
# architectures stay as they are, and root is not needed.

# Debian 12 is the last release with DirectFB, and with a cairo that can draw by it.
# shellcheck disable=SC2034
directfb_release=bookworm

# The name of this system's release of Debian.
release_here() (
    # shellcheck source=/dev/null
    . /etc/os-release
    printf '%s' "${VERSION_CODENAME:-sid}"
)

# private_sources FOLDER TYPES [RELEASE]: writes the machine's own Debian sources into FOLDER, for packages (deb), their
# source code (deb-src) or both. RELEASE asks the same mirrors for another Debian. Other distributors have nothing to offer
# here.
private_sources() {
    types=$2 release=${3:-$(release_here)} mirrors=$(debian_mirrors)
    list='' parts=''
    eval "$(apt-config shell list Dir::Etc::sourcelist/f parts Dir::Etc::sourceparts/d)"
    mkdir -p "$1/sources"
    for file in "$list" "$parts"/*.list; do
        [ ! -f "$file" ] || one_line_sources "$file" > "$1/sources/$release-$(basename "$file")"
    done
    for file in "$parts"/*.sources; do
        ! grep -qsE "^URIs:.*($mirrors)" "$file" || source_stanzas "$file" > "$1/sources/$release-$(basename "$file")"
    done
    find "$1/sources" -type f -empty -delete
}

# A pattern for the addresses of Debian's mirrors. A system without lists cannot tell which ones are.
debian_mirrors() {
    # shellcheck disable=SC2016 # apt expands it.
    sites=$(apt-get indextargets --format '$(SITE)' 'Origin: Debian' 2> /dev/null | sort -u | paste -s -d '|')
    printf '%s' "${sites:-debian}"
}

one_line_sources() {
    lines=$(sed -nE "\\#$mirrors# s/^[[:blank:]]*deb[[:blank:]]//p" "$1" | of_release)
    for type in $types; do
        [ -z "$lines" ] || printf '%s\n' "$lines" | sed "s/^/$type /"
    done
}

source_stanzas() {
    sed "s/^Types:.*/Types: $types/" "$1" | of_release
}

# Puts the wanted release in the place of the system's, with what follows its name kept ("-security").
of_release() {
    name="([[:blank:]])($(release_here)|oldstable|stable|testing|unstable|sid)\b"
    if [ "$release" = "$(release_here)" ]; then
        cat
    else
        sed -E "/^Suites:/ s/$name/\1$release/g; /^Suites:/! s/$name/\1$release/"
    fi
}

# use_private_apt FOLDER [LINE...]: from now on private_apt works in FOLDER, with the lines added to its configuration.
use_private_apt() {
    private=$1
    shift
    mkdir -p "$private/lists/partial"
    cat > "$private/apt.conf" <<CONF
Dir::Etc::sourcelist "/dev/null";
Dir::Etc::sourceparts "$private/sources";
Dir::State::lists "$private/lists";
Dir::Cache::pkgcache "";
Dir::Cache::srcpkgcache "";
APT::Sandbox::User "root";
#clear APT::Update::Post-Invoke;
#clear APT::Update::Post-Invoke-Success;
CONF
    printf '%s\n' "$@" >> "$private/apt.conf"
}

# private_apt OPTION...: what apt-get does, with the private sources and lists.
private_apt() {
    apt-get -c "$private/apt.conf" -q "$@"
}
