#!/usr/bin/env bash
# Runs gfc-audit as a shell does: every exit code, on a sound project, a faulty one, a folder and without any.
#   gfc-audit.sh BIN     the folder of the programs
set -u
bin=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_STATE_HOME=$work/state
unset DISPLAY WAYLAND_DISPLAY
failed=0

# expect CODE WORDS ARGUMENT...: the exit code, and a text in what is given out.
expect() {
    local code=$1 words=$2 out status
    shift 2
    out=$("$bin/gfc-audit" "$@" 2>&1)
    status=$?
    if [ $status -ne "$code" ] || ! grep -qF -- "$words" <<<"$out"; then
        echo "gfc-audit $*: exit code $status instead of $code, or no \"$words\" in:" >&2
        echo "$out" >&2
        failed=1
    fi
}

# file KEY VALUE: changes the key's first line in the configuration of the sample.
config=$work/plant/KDOrmAGA_plant_Lakeside_Delivery.ini
change() { sed -i "s/^$1=.*/$1=$2\r/" "$config"; }

expect 3 "no project is open" check
expect 2 "" bogus
expect 2 "" check --bogus
expect 2 "" check --severity grave
expect 2 "is not there" check --folder "$work/nowhere"
expect 0 "bore-not-below-pipe (error)" check --rules
expect 0 '"rule": "bore-not-below-pipe"' check --rules --json
expect 0 "Exit codes:" --help

"$bin/io-workshop" demo "$work/plant" >/dev/null || exit 1
"$bin/io-workshop" open "$work/plant/plant.KPJ" >/dev/null || exit 1
expect 0 "Lakeside_Delivery: nothing to report" check
expect 0 "Northgate_Custody: not configured" check
expect 0 "" check lakeside_delivery
expect 2 'no station "Nowhere"' check Nowhere
expect 0 '"configured": true' check --json
expect 0 "Lakeside_Delivery: nothing to report" check --folder "$work/plant"
expect 2 'no file of a station "Nowhere"' check --folder "$work/plant" Nowhere

# Suggestions, for a station without a file under choices that are given.
northgate="Northgate_Custody --runs 1,3 --standard AGA3 --source AGA8 --measured"
expect 0 '"run":3,"stage":"run inputs","variable":"Pressure","tag":"PIT-203_PV","confidence":"high"' suggest $northgate --json
expect 0 'run 1: Temperature <- TIT-201_PV (high)' suggest $northgate
expect 0 "" suggest Lakeside_Delivery
expect 2 'no station "Nowhere"' suggest Nowhere
expect 2 "say its runs by --runs" suggest Northgate_Custody
expect 2 "by --standard and --source" suggest Northgate_Custody --runs 1
expect 2 "" suggest Northgate_Custody --runs 6
expect 2 "" suggest

change OrificeDia 99.9
expect 1 "bore-not-below-pipe" check
expect 1 "bore-not-below-pipe" check Lakeside_Delivery
expect 0 "" check Eastfield_Meter
expect 1 '"severity": "error"' check --json
expect 1 "bore-not-below-pipe" check --folder "$work/plant"

# Only the level that is asked for counts.
change OrificeDia 6.5
expect 0 "nothing to report" check --severity error
expect 1 "beta-aga3" check --severity warning
expect 1 "beta-aga3" check
expect 0 '"findings": []' check --json --severity error
change OrificeDia 4.000
change Project 'C:\\Jobs\\plant.KPJ'
expect 0 "nothing to report" check
expect 1 "project-moved" check --severity note
expect 0 "project-moved" check --json

# A file that goes to no station is told behind the stations.
cp "$config" "$work/plant/KDOrmAGA_plant_Gone.ini"
expect 1 "station-unknown" check
rm "$work/plant/KDOrmAGA_plant_Gone.ini"

# What it looks at stays as it is.
before=$(sha256sum "$work"/plant/*)
expect 1 "project-moved" check --severity note
[ "$before" = "$(sha256sum "$work"/plant/*)" ] || { echo "gfc-audit changed a file" >&2; failed=1; }

# A download leaves a station with errors out, unless it is told otherwise.
out=$("$bin/io-workshop" download "$work/out" 2>&1) || { echo "$out" >&2; failed=1; }
change OrificeDia 99.9
rm -rf "$work/out"
if out=$("$bin/io-workshop" download "$work/out" 2>&1) || [ -e "$work/out/Lakeside_Delivery" ]; then
    echo "a station with errors was downloaded: $out" >&2
    failed=1
fi
out=$("$bin/io-workshop" download --force "$work/out" 2>&1) && [ -e "$work/out/Lakeside_Delivery" ] ||
    { echo "the download was not forced: $out" >&2; failed=1; }
exit $failed
