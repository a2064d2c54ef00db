# The fuzz targets with their options and seeds, for the scripts that run them; to be sourced from the top folder.
# shellcheck shell=sh
# shellcheck disable=SC2034 -- read by those scripts
FUZZ_TARGETS="document roads open_chassis open_module open_fan_tray open_power_shelf open_pem open_optics records
    catalogue schemac eid"

# fuzz_options TARGET. The catalogue's lookup and the opens report on standard error what is wrong with their input.
fuzz_options() {
    echo "-timeout=60 -rss_limit_mb=4096"
    case $1 in
    catalogue) echo "-max_len=4096 -close_fd_mask=2" ;;
    eid) echo "-max_len=4096" ;;
    schemac) echo "-max_len=4096 -dict=$(fuzz_dictionary schema)" ;;
    *) echo "-max_len=16384 -dict=$(fuzz_dictionary inventory)" ;;
    esac
}

# fuzz_seeds TARGET: folders to start from, beside the working corpus
fuzz_seeds() {
    echo "fuzz/corpus/$1"
    case $1 in
    document | open_*) echo "tests/documents/data" ;;
    esac
}

# fuzz_dictionary NAME: the words of XML and those of a kind of document in one file, as the fuzzer wants them
fuzz_dictionary() {
    mkdir -p build
    cat fuzz/xml.dict "fuzz/$1.dict" >"build/$1.dict"
    echo "build/$1.dict"
}
