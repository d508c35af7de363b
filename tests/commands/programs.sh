# Sourced by the stories of the shell, with their own arguments: a folder and a state of their own, and how a program is
# started there.
#   BIN [RUNNER...]     the folder of the programs, and what runs them where this machine cannot by itself
# shellcheck shell=bash
set -u
bin=$1
runner=("${@:2}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ending= drive=
if [ ${#runner[@]} -eq 0 ]; then
    export HOME=$work
else
    # For a Windows program under Wine the root of this machine is a drive, and a word with a slash before it an option.
    ending=.exe drive=Z:
fi
export XDG_STATE_HOME=$drive$work/state
unset DISPLAY WAYLAND_DISPLAY
failed=0

# program NAME ARGUMENT...
program() {
    local file=$bin/$1$ending
    shift
    "${runner[@]}" "$file" "${@/#\//$drive/}"
}

# expect PROGRAM CODE WORDS ARGUMENT...: the exit code, and a text in what is given out.
expect() {
    local name=$1 code=$2 words=$3 out status
    shift 3
    out=$(program "$name" "$@" 2>&1)
    status=$?
    if [ $status -ne "$code" ] || ! grep -qF -- "$words" <<<"$out"; then
        echo "$name $*: exit code $status instead of $code, or no \"$words\" in:" >&2
        head -n 30 <<<"$out" >&2
        failed=1
    fi
}
