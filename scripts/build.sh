# What ./run, ./test and .ci/run share. Sourced with bash, from the top folder of the project.

# Says what happens, on standard error.
say() { printf '== %s\n' "$*" >&2; }

# Debian packages that the tests need.
test_packages=(fish groff-base libqpdf-dev locales pkgconf poppler-utils python3-jsonschema zbar-tools zsh)

# install_packages PACKAGE...: installs those Debian packages that are missing.
install_packages() {
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local become_root=()
    [ "$(id -u)" -eq 0 ] || become_root=(sudo)
    say "installing from Debian: ${missing[*]}"
    "${become_root[@]}" apt-get update -qq
    "${become_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# prepare_build PRESET QT_MAJOR [OPTION...]: installs what the build needs, configures, with further options for
# CMake, and builds. Sets build_dir.
prepare_build() {
    local preset=$1 qt=$2
    shift 2
    [ "$preset" != sanitize ] || install_packages clang libclang-rt-dev
    case $qt in
        6) install_packages g++ cmake ninja-build python3 qt6-l10n-tools fonts-dejavu-core libcsv-dev libsimpleini-dev libtsl-ordered-map-dev libxxhash-dev libzint-dev qt6-base-dev qt6-svg-dev ;;
        5) install_packages g++ cmake ninja-build python3 qt6-l10n-tools fonts-dejavu-core libcsv-dev libsimpleini-dev libtsl-ordered-map-dev libxxhash-dev libzint-dev qtbase5-dev libqt5svg5-dev ;;
        *) say "there is no Qt $qt for this project: 6 or 5"; return 2 ;;
    esac
    build_dir=build/$preset-qt$qt
    say "building in $build_dir (preset $preset, Qt $qt)"
    # On the integration machine a warning is an error.
    cmake --preset "$preset" -B "$build_dir" -DCABLEDOC_QT_MAJOR="$qt" \
        -DCMAKE_COMPILE_WARNING_AS_ERROR="${CI:+ON}" "$@" >"$build_dir.log" 2>&1 || { cat "$build_dir.log" >&2; return 1; }
    cmake --build "$build_dir" >&2
}
