# shellcheck shell=sh
# Sourced after common.sh.

# use_private_apt FOLDER ARCHITECTURE: from now on apt-get works in FOLDER for another architecture, on the Debian mirrors
# of this machine. The system's lists, architectures and packages stay as they are, and root is not needed.
use_private_apt() {
    mkdir -p "$1/sources" "$1/lists/partial" "$1/archives/partial"
    : > "$1/status"
    copy_sources "$1/sources"
    cat > "$1/apt.conf" <<CONF
#clear APT::Architectures;
APT::Architecture "$2";
APT::Architectures { "$2"; };
APT::Sandbox::User "";
Dir::State "$1";
Dir::State::status "$1/status";
Dir::Cache "$1";
Dir::Etc::sourcelist "/dev/null";
Dir::Etc::sourceparts "$1/sources";
#clear APT::Update::Post-Invoke;
#clear APT::Update::Post-Invoke-Success;
CONF
    export APT_CONFIG="$1/apt.conf"
}

# Each file of package sources, with source packages switched on. Those of other distributors have nothing to offer here.
copy_sources() {
    list='' parts=''
    eval "$(apt-config shell list Dir::Etc::sourcelist/f parts Dir::Etc::sourceparts/d)"
    for file in "$list" "$parts"/*.list; do
        [ ! -f "$file" ] || sed -n '/debian/ s/^[[:blank:]]*deb[[:blank:]]\(.*\)/deb \1\ndeb-src \1/p' "$file" > "$1/$(basename "$file")"
    done
    for file in "$parts"/*.sources; do
        if [ -f "$file" ] && grep -q '^URIs:.*debian' "$file"; then
            sed 's/^Types:.*/Types: deb deb-src/' "$file" > "$1/$(basename "$file")"
        fi
    done
}
