# Sourced by what tries things in a bare Debian: makes one, and runs commands in it. Needs prepare.sh before it.

# make_root FOLDER: a bare Debian of the suite that this machine has, from the mirror that its apt uses.
make_root() {
    root=$1
    local mirror suite
    install_packages debootstrap
    read -r mirror suite < <(apt-get indextargets --format '$(REPO_URI) $(CODENAME)' \
        'Identifier: Packages' 'Origin: Debian' 'Component: main') || fail "apt names no mirror of Debian"
    say "Making a bare Debian $suite from $mirror"
    as_root debootstrap --variant=minbase "$suite" "$root" "$mirror" >"$root.log" 2>&1 ||
        { tail -n 10 "$root.log" >&2; fail "debootstrap failed; the whole output is in $root.log"; }
    # An installed Debian knows its own name.
    as_root sh -c "printf '127.0.0.1 localhost\n::1 localhost\n' >'$root/etc/hosts'"
    # It is not to start services.
    as_root sh -c "printf '#!/bin/sh\nexit 101\n' >'$root/usr/sbin/policy-rc.d'"
    as_root chmod +x "$root/usr/sbin/policy-rc.d"
}

# in_root COMMAND...: with processes and devices of its own, which end and go with the command.
in_root() {
    as_root unshare --mount --pid --fork --kill-child sh -ec '
        root=$1
        shift
        mount --rbind /dev "$root/dev"
        mount -t proc proc "$root/proc"
        exec chroot "$root" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
            HOME=/root LC_ALL=C.UTF-8 "$@"' - "$root" "$@"
}
