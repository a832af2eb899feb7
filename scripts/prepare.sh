# Sourced by run.sh and test.sh: what both need before they can build.
# Everything here looks first and acts only where something is missing.

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# Runs a command as root; the reason is told when that is not possible.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "this needs root, and sudo is not installed: $*"
    fi
}

# install_packages NAME...: installs those Debian packages that are missing.
install_packages() {
    command -v dpkg-query >/dev/null ||
        fail "not a Debian system; install the equivalents of these packages yourself: $*"
    local missing=() name
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    say "Installing: ${missing[*]}"
    as_root apt-get update -qq || fail "the package lists could not be read; is the network up?"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >"$log" 2>&1 || { tail -n 20 "$log" >&2; fail "packages could not be installed; the whole output is in $log"; }
}

# The panel's texts are EUC-JP; X draws and measures them in this locale.
make_locale() {
    locale -a 2>/dev/null | grep -qix 'ja_JP\.eucjp' && return 0
    say "Making the locale ja_JP.eucJP"
    as_root localedef -i ja_JP -f EUC-JP ja_JP.eucJP || fail "localedef could not make the locale ja_JP.eucJP"
}

# build_preset NAME: configures and builds one preset; quick when nothing has changed.
build_preset() {
    cmake --preset "$1" >"$log" 2>&1 || { tail -n 30 "$log" >&2; fail "cmake failed; the whole output is in $log"; }
    cmake --build --preset "$1" --parallel "$(nproc)" || fail "the build failed; the first error stands above"
}

BUILD_PACKAGES=(g++ cmake ninja-build pkg-config libgtk2.0-dev libxss-dev libsystemd-dev libyaml-cpp-dev
    libcli11-dev libfmt-dev libmodbus-dev libmosquitto-dev nlohmann-json3-dev)
RUN_PACKAGES=(locales xfonts-base xfonts-intl-japanese xfonts-intl-japanese-big fonts-droid-fallback)
HEADLESS_PACKAGES=(xvfb xdotool scrot)
FUZZ_PACKAGES=(clang libclang-rt-dev llvm xvfb)
TEST_PACKAGES=(libgtest-dev libgmock-dev libxtst-dev libxfixes-dev libxrandr-dev libxres-dev libncurses-dev clang
    xvfb openbox clang-format clang-tidy git mosquitto mosquitto-clients python3-pymodbus python3-serial python3-serial-asyncio socat mbpoll openssl)

log=$(mktemp -t tessary-setup.XXXXXX)
