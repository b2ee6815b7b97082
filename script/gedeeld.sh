# Shared by the scripts beside it, which source it: the root of the project, and the program built
# and run on a scratch copy of the sample suite.
# shellcheck shell=bash

wortel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

afbreken() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# Prints those of the given files and folders that exist.
bestaande() {
    local pad
    for pad in "$@"; do
        [[ ! -e $pad ]] || printf '%s\n' "$pad"
    done
}

# A character set of UTF-8 keeps names with accents whole, also on a machine without any locale.
zorg_voor_utf8() {
    [[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8
}

# Configures the preset $1; further arguments go to cmake.
configureer() {
    local preset=$1
    shift
    if command -v ccache >/dev/null; then
        set -- -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
    fi
    (cd "$wortel" && cmake --preset "$preset" "$@")
}

# The program as users get it, in build/run/bin without tests and benchmarks, or the target $1 there.
# What the build says goes to standard error, so that the output of the program itself stays clean.
bouw_programma() {
    {
        "$wortel/script/afhankelijkheden" bouw
        configureer release -B "$wortel/build/run" -DPLEXORAN_TESTS=OFF -DPLEXORAN_BENCH=OFF
        cmake --build "$wortel/build/run" --target "${1:-plexoran}"
    } >&2
}

nieuwe_kladmap() {
    local basis=${XDG_RUNTIME_DIR:-}
    [[ -d $basis && -w $basis ]] || basis=${TMPDIR:-/tmp}
    mktemp -d "$basis/plexoran-XXXXXX"
}

# A name of the system in Windows-1252. What has no counterpart stays as it is: then the program
# meets the bytes that the disk has.
naar_codepagina() {
    local omgezet
    omgezet=$(iconv -f UTF-8 -t WINDOWS-1252 <<<"$1" 2>/dev/null) || omgezet=$1
    printf '%s\n' "$omgezet"
}

# Makes folder $1 a sample suite: the files of voorbeeld/, the folder that is empty there, and
# "Mappen.ini" with the folder's own path filled in. Its folder "Instellingen" stands in for
# the configuration folder of the user, so that the program finds the scoring program of the suite.
maak_suite() {
    local map=$1 sjabloon=$wortel/voorbeeld/Mappen.ini.sjabloon pad
    [[ -f $sjabloon ]] || afbreken "het bestand $sjabloon ontbreekt"
    mkdir -p "$map/Indelingen"
    cp -R "$wortel/voorbeeld/." "$map/"
    chmod -R u+w "$map"
    rm "$map"/*.sjabloon
    pad=$(naar_codepagina "$map")
    vul_sjabloon "$sjabloon" "$pad" >"$map/Mappen.ini"
    mkdir -p "$map/Instellingen/plexoran"
    vul_sjabloon "$wortel/voorbeeld/rekenprogrammas.ini.sjabloon" "$pad" \
        >"$map/Instellingen/plexoran/rekenprogrammas.ini"
}

# Lets a program started from here use folder $1 as its configuration folder. What the user has set
# for other programs, such as theme and fonts, is linked into it; those settings stay as they are.
gebruik_instellingen() {
    local doel=$1 eigen=${XDG_CONFIG_HOME:-${HOME:-}/.config} deel
    while IFS= read -r -d '' deel; do
        [[ -e $doel/${deel##*/} ]] || ln -sfn "$deel" "$doel/${deel##*/}"
    done < <(find "$eigen" -mindepth 1 -maxdepth 1 ! -name plexoran -print0 2>/dev/null)
    export XDG_CONFIG_HOME=$doel
}

# The template $1 with the path $2 filled in, byte by byte.
vul_sjabloon() (
    LC_ALL=C
    # The x keeps the ends of the last lines, which $(...) would drop.
    inhoud=$(cat "$1" && printf x)
    inhoud=${inhoud%x}
    printf '%s' "${inhoud//@SUITE@/"$2"}"
)

# Draws every window on a fresh sample suite, off screen: a PNG each in folder $1, at $2 percent.
# Nothing of the user's own settings, theme or screen reaches the pictures, and a drawing that fails
# leaves the older ones as they were.
teken_vensters() {
    local doel=$1 procent=$2 klad schaal status=0
    bouw_programma afbeeldingen
    klad=$(nieuwe_kladmap)
    schaal=$(awk -v p="$procent" 'BEGIN { print p / 100 }')
    maak_suite "$klad/suite"
    mkdir -m 700 "$klad/eigen"
    mkdir "$klad/beeld"
    env -u QT_STYLE_OVERRIDE -u QT_QPA_PLATFORMTHEME -u QT_SCREEN_SCALE_FACTORS \
        HOME="$klad/eigen" XDG_CONFIG_HOME="$klad/suite/Instellingen" XDG_DATA_HOME="$klad/eigen" \
        XDG_RUNTIME_DIR="$klad/eigen" TMPDIR="$klad/eigen" \
        QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 QT_SCALE_FACTOR="$schaal" \
        "$wortel/build/run/bin/afbeeldingen" "$klad/suite/Mappen.ini" "$klad/beeld" || status=$?
    if ((status == 0)) && [[ -s $klad/beeld/frmLedenAdmin.png ]]; then
        mkdir -p "$doel"
        cp "$klad/beeld"/*.png "$doel/"
        rm -rf "$klad"
        return
    fi
    rm -rf "$klad"
    afbreken "de afbeeldingen zijn niet gemaakt (status $status)"
}
