# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What the scripts beside this one share: a sweep in shards, each with a counts file of its own in one folder.

# beginSweep SHARDS FOLDER [OPTION...] PROJECT.brn: sets batch, shards, folder and sweep, the options and the project.
# A folder takes one sweep: what is there of another one would be taken for done.
beginSweep() {
    if [ $# -lt 3 ] || ! [[ $1 =~ ^[1-9][0-9]*$ ]] || [ ! -r "${!#}" ]; then
        echo "usage: $0 SHARDS FOLDER [OPTION of sweep...] PROJECT.brn" >&2
        exit 1
    fi
    local option
    for option in "${@:3}"; do
        case $option in --threads* | --shard* | --counts* | --json)
            echo "$0: $option is this script's own" >&2
            exit 1
            ;;
        esac
    done
    batch=$(command -v "${BRENICA_BATCH:-brenica-batch}") || {
        echo "$0: there is no brenica-batch; set BRENICA_BATCH to its path" >&2
        exit 1
    }
    shards=$1 folder=$2
    shift 2
    sweep=("$@")
    mkdir -p "$folder"
    local made
    made=$(printf '%q ' "$shards" "${sweep[@]}" && sha256sum <"${!#}")
    if [ -e "$folder/sweep" ] && [ "$made" != "$(cat "$folder/sweep")" ]; then
        echo "$0: $folder holds another sweep: other options, project or shards" >&2
        exit 1
    fi
    printf '%s\n' "$made" >"$folder/sweep"
}

# Numbers of the shards without counts, one a line. Counts are there whole or not at all.
missingShards() {
    local number
    for ((number = 1; number <= shards; ++number)); do
        [ -e "$folder/$number.counts" ] || echo "$number"
    done
}

# Prints the table of the whole sweep; says what is missing.
mergeShards() {
    local number files=()
    for ((number = 1; number <= shards; ++number)); do
        [ ! -e "$folder/$number.counts" ] || files+=("$folder/$number.counts")
    done
    if [ ${#files[@]} = 0 ]; then
        echo "$0: no shard came to its end" >&2
        exit 1
    fi
    "$batch" merge "${files[@]}"
}
