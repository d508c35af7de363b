#!/usr/bin/env bash
# Runs gfc-audit as a shell does: every exit code, on a sound project, a faulty one, a folder and without any.
#   gfc-audit.sh BIN [RUNNER...]
. "$(dirname "$0")/programs.sh"
audit() { expect gfc-audit "$@"; }

# file KEY VALUE: changes the key's first line in the configuration of the sample.
config=$work/plant/KDOrmAGA_plant_Lakeside_Delivery.ini
change() { sed -i "s/^$1=.*/$1=$2\r/" "$config"; }

audit 3 "no project is open" check
audit 2 "" bogus
audit 2 "" check --bogus
audit 2 "" check --severity grave
audit 2 "is not there" check --folder "$work/nowhere"
audit 0 "bore-not-below-pipe (error)" check --rules
audit 0 '"rule": "bore-not-below-pipe"' check --rules --json
audit 0 "Exit codes:" --help

program io-workshop demo "$work/plant" >/dev/null || exit 1
program io-workshop open "$work/plant/plant.KPJ" >/dev/null || exit 1
audit 0 "Lakeside_Delivery: nothing to report" check
audit 0 "Northgate_Custody: not configured" check
audit 0 "" check lakeside_delivery
audit 2 'no station "Nowhere"' check Nowhere
audit 0 '"configured": true' check --json
audit 0 "Lakeside_Delivery: nothing to report" check --folder "$work/plant"
audit 2 'no file of a station "Nowhere"' check --folder "$work/plant" Nowhere

# Suggestions, for a station without a file under choices that are given.
northgate="Northgate_Custody --runs 1,3 --standard AGA3 --source AGA8 --measured"
audit 0 '"run":3,"stage":"run inputs","variable":"Pressure","tag":"PIT-203_PV","confidence":"high"' suggest $northgate --json
audit 0 'run 1: Temperature <- TIT-201_PV (high)' suggest $northgate
audit 0 'every variable of "Lakeside_Delivery" has a tag' suggest Lakeside_Delivery
audit 2 'no station "Nowhere"' suggest Nowhere
audit 2 "say its runs by --runs" suggest Northgate_Custody
audit 2 "by --standard and --source" suggest Northgate_Custody --runs 1
audit 2 "" suggest Northgate_Custody --runs 6
audit 2 "" suggest

change OrificeDia 99.9
audit 1 "bore-not-below-pipe" check
audit 1 "bore-not-below-pipe" check Lakeside_Delivery
audit 0 "" check Eastfield_Meter
audit 1 '"severity": "error"' check --json
audit 1 "bore-not-below-pipe" check --folder "$work/plant"

# Only the level that is asked for counts.
change OrificeDia 6.5
audit 0 "nothing to report" check --severity error
audit 1 "beta-aga3" check --severity warning
audit 1 "beta-aga3" check
audit 0 '"findings": []' check --json --severity error
change OrificeDia 4.000
change Project 'C:\\Jobs\\plant.KPJ'
audit 0 "nothing to report" check
audit 1 "project-moved" check --severity note
audit 0 "project-moved" check --json

# A file that goes to no station is told behind the stations.
cp "$config" "$work/plant/KDOrmAGA_plant_Gone.ini"
audit 1 "station-unknown" check
rm "$work/plant/KDOrmAGA_plant_Gone.ini"

# What it looks at stays as it is.
before=$(sha256sum "$work"/plant/*)
audit 1 "project-moved" check --severity note
[ "$before" = "$(sha256sum "$work"/plant/*)" ] || { echo "gfc-audit changed a file" >&2; failed=1; }

# A download leaves a station with errors out, unless it is told otherwise.
out=$(program io-workshop download "$work/out" 2>&1) || { echo "$out" >&2; failed=1; }
change OrificeDia 99.9
rm -rf "$work/out"
if out=$(program io-workshop download "$work/out" 2>&1) || [ -e "$work/out/Lakeside_Delivery" ]; then
    echo "a station with errors was downloaded: $out" >&2
    failed=1
fi
out=$(program io-workshop download --force "$work/out" 2>&1) && [ -e "$work/out/Lakeside_Delivery" ] ||
    { echo "the download was not forced: $out" >&2; failed=1; }
exit $failed
