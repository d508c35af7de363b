#!/usr/bin/env bash
# Runs gfc-configure as a shell does: forty stations from one, what does not fit, what is bound anew after a rename.
#   gfc-configure.sh BIN [RUNNER...]
. "$(dirname "$0")/programs.sh"
configure() { expect gfc-configure "$@"; }
same() { [ "$(sha256sum "$plant"/*.ini)" = "$before" ] || { echo "a file was changed: $1" >&2; failed=1; }; }

plant=$work/plant
source=Lakeside_Delivery
configure 3 "no project is open" copy A B
configure 2 "" bogus
configure 0 "Exit codes:" --help
program io-workshop demo "$plant" >/dev/null || exit 1
program io-workshop open "$plant/plant.KPJ" >/dev/null || exit 1

# Forty stations like it, with loops of their own: 601 is 1101 in the first of them.
program io-workshop export-tags "$work/tags.csv" >/dev/null || exit 1
twins=()
head -n 1 "$work/tags.csv" >"$work/twins.csv"
for n in {1..40}; do
    twins+=("Twin_$n")
    sed -n "s/^$source,\([^,]*\),[^,]*,[^,]*,/Twin_$n,\1,,,/; T; s/-60\([0-9]\)/-$((n + 10))0\1/g; p" "$work/tags.csv"
done >>"$work/twins.csv"
program io-workshop import-tags "$work/twins.csv" >"$work/import.txt" 2>&1 || { cat "$work/import.txt" >&2; exit 1; }

before=$(sha256sum "$plant"/*.ini)
configure 0 "TIT-601_PV (FX 1202) -> TIT-1101_PV (FX 1202)  [the same name but for its number: 601 is 1101" copy $source Twin_1 --rebind --preview
configure 0 '"proposed": {' copy $source "${twins[@]}" --rebind --preview --json
same "a preview"
configure 1 "no tag of Odorizer_2 is like" copy $source Twin_1 Odorizer_2 --rebind
configure 1 "The station has no tags." copy $source Twin_1 Pig_Receiver_3 --rebind --incomplete
configure 2 "are one station" copy $source $source
configure 2 "is not configured" copy Twin_1 Twin_2
configure 2 'no station "Nowhere"' copy $source Nowhere
configure 2 "say to which stations" copy $source
configure 2 "" copy $source Twin_1 --incomplete --only-complete
same "what does not fit is refused as a whole"

configure 0 "40 of 40 stations written" copy $source "${twins[@]}" --rebind --user 4711
expect gfc-audit 0 "Twin_40: nothing to report" check
expect gfc-audit 0 "Twin_40  Copy to station  4711" history
expect io-workshop 0 "KDOrmAGA_plant_Twin_40.ini" files
# Told to end among the stations, it ends between two of them and says what is not written; each file is the whole one.
if [ ${#runner[@]} -eq 0 ]; then
    whole=$(sha256sum "$plant"/*Twin_*.ini)
    rm "$plant"/*Twin_*.ini
    "$bin/gfc-configure" copy $source "${twins[@]}" --rebind >"$work/said.txt" 2>&1 &
    writing=$!
    until [ -e "$plant/KDOrmAGA_plant_Twin_2.ini" ] || ! kill -0 $writing 2>/dev/null; do :; done
    kill $writing
    wait $writing
    status=$?
    [ $status -eq 130 ] || { echo "not broken off: $(tail -n 3 "$work/said.txt")" >&2; failed=1; }
    written=$(ls "$plant" | grep -c 'Twin_.*ini$')
    grep -q "^$written of 40 stations written" "$work/said.txt" || { echo "$written were written" >&2; failed=1; }
    [ "$(grep -c 'Broken off before it' "$work/said.txt")" -eq $((40 - written)) ] || { echo "not all are told" >&2; failed=1; }
    sha256sum "$plant"/*Twin_*.ini | grep -vxF "$whole" && { echo "a file is not the whole one" >&2; failed=1; }
    configure 0 "40 of 40 stations written" copy $source "${twins[@]}" --rebind --replace
    [ "$(sha256sum "$plant"/*Twin_*.ini)" = "$whole" ] || { echo "gone on with, the files are others" >&2; failed=1; }
fi

before=$(sha256sum "$plant"/*.ini)
configure 1 "replaced with --replace alone" copy $source Twin_1 --rebind
same "a configuration is replaced when it is asked for alone"
configure 0 "1 of 1 station written" copy $source Twin_1 --rebind --replace
same "the same copy gives the same bytes"
configure 1 "Odorizer_2: 11 variables have no tags" copy $source Odorizer_2 Twin_1 --rebind --replace --preview
configure 0 "Odorizer_2: left out" copy $source Odorizer_2 Twin_1 --rebind --replace --only-complete

# The tags of one station get other names; bound anew it is sound again.
program io-workshop rename-tag Twin_7 TIT-1701_PV TT_NEW >/dev/null 2>&1 || { echo "no rename" >&2; failed=1; }
expect gfc-audit 1 "tag-not-found" check Twin_7
configure 0 "TT_NEW (FX 1202)  [the same register, which was called TIT-1701_PV]" rebind Twin_7 --preview
configure 0 "Twin_7: nothing to report" rebind Twin_7
expect gfc-audit 0 "Twin_7: nothing to report" check Twin_7
expect gfc-audit 0 "Bind anew" history Twin_7

# A table of a station gives the same file again; a faulty one gives every fault and nothing else.
program gfc-configure template Twin_3 Twin_4 -o "$work/plan.csv" || failed=1
before=$(sha256sum "$plant"/*.ini)
configure 1 "replaced with --replace alone" apply "$work/plan.csv"
configure 0 "Twin_4: stands already as the table says" apply "$work/plan.csv" --replace --preview
configure 0 "2 of 2 stations written" apply "$work/plan.csv" --replace
same "a template gives the file that it was made from"
sed 's/Twin_4/Twin_99/; s/4\.000/wide/' "$work/plan.csv" >"$work/faulty.csv"
configure 1 'row 2, column OrificeDia ("wide")' apply "$work/faulty.csv" --replace
configure 1 'row 3, column Station ("Twin_99"): The project has no such station.' apply "$work/faulty.csv" --replace
configure 1 '"column": "OrificeDia"' apply "$work/faulty.csv" --replace --json
same "a faulty table writes nothing"
configure 2 "cannot be read" apply "$work/nowhere.csv"
configure 2 "not configured" template Valve_Site_12
program gfc-configure template $source --tags suggested | sed "s/^\(\xEF\xBB\xBF\)\?$source/Northgate_Custody/" >"$work/new.csv"
configure 1 "What is suggested is not sure: NS-201_FLOW" apply "$work/new.csv" --preview
configure 2 "A user ID has digits and points only." apply "$work/plan.csv" --replace --user abc
configure 0 "2 of 2 stations written" apply "$work/plan.csv" --replace --user 99
expect gfc-audit 0 "Twin_3  Apply plan  99" history Twin_3

# Without --rebind it is the file itself, and the check says what it lacks.
configure 1 "tag-not-found" copy $source Eastfield_Meter

# A folder that takes no file: what could not be written is told, and nothing is left behind.
if [ "$(id -u)" -ne 0 ]; then
    chmod a-w "$plant"
    configure 3 "Twin_2: not written. The system says:" copy $source Twin_2 --rebind --replace
    chmod u+w "$plant"
fi
exit $failed
