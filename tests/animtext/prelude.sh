# The shell that every transcript beside this file begins with:
#
#   fresh            goes to a new folder that holds the scenes of makescenes
#   run COMMAND...   marks what COMMAND writes to standard error with "! " and complains if it fails
#                    and yet changes a file; animtext is always run like this
#   $LIBRARIES       where the libraries are; it has no blanks, which LD_PRELOAD does not support
#
# A line that ends in (glob) may contain * and ?, see "cram --help".
export PATH="$ANIMTEXT_PROGRAMS:$PATH"
LIBRARIES=$CRAMTMP/libraries
ln -sfn "$ANIMTEXT_LIBRARIES" "$LIBRARIES"
trap 'chmod -R u+rwX "$CRAMTMP"' EXIT # so that it can be removed

fresh() {
    cd "$(mktemp -d "$CRAMTMP/XXXXXX")" && makescenes
}

files() {
    find . -type f -exec cksum {} + 2>/dev/null | sort
}

run() {
    local before status line here='$PWD' errors=$CRAMTMP/errors.$BASHPID
    before=$(files)
    command "$@" 2>"$errors"
    status=$?
    while IFS= read -r line || [ "$line" ]; do
        echo "! ${line//"$PWD"/$here}"
    done <"$errors" >&2
    [ $status = 0 ] || [ "$before" = "$(files)" ] || echo '! changed a file' >&2
    return $status
}

animtext() {
    run animtext "$@"
}
