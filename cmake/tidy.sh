#!/bin/sh
# Usage: tidy.sh CLANG-TIDY BUILD-DIRECTORY SOURCE LOG
# The count of suppressed warnings goes to the error stream of every call; it is shown only when
# the check fails. The compiler's warnings are g++'s business, so clang's own are switched off.
if ! "$1" -p "$2" --quiet --extra-arg=-w "$3" 2>"$4"; then
    cat "$4" >&2
    exit 1
fi
