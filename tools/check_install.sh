#!/bin/sh
# Installs a build into a scratch folder, builds a C11 and a C++20 client against it, once by find_package and once
# by pkg-config, and runs them; what they print is compared with tests/consumers/expected.txt.
#   check_install.sh BUILD
set -eu
build=$(realpath "$1")
cd "$(dirname "$0")/.."
consumers=$PWD/tests/consumers
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >"$work/log" || { cat "$work/log"; exit 1; }
library_dir=$(dirname "$(find "$prefix" -name libinv_parser.so)")
export LD_LIBRARY_PATH="$library_dir" INV_CATALOG="$prefix/share/inv_parser/inventories/catalog.txt"

run() {
    { "$1/consumer_c" && "$1/consumer_cpp"; } >"$work/printed" || { echo "check_install: a client built by $2 failed"; exit 1; }
    diff -u "$consumers/expected.txt" "$work/printed" || { echo "check_install: clients built by $2 differ"; exit 1; }
    echo "clients built by $2: ok"
}

cmake -S "$consumers" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >"$work/log" 2>&1 &&
    cmake --build "$work/cmake" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
run "$work/cmake" find_package

# The files in the scratch folder, wherever it was meant to be installed.
export PKG_CONFIG_PATH="$library_dir/pkgconfig"
flags=$(pkg-config --define-prefix --cflags --libs inv_parser)
platform_flags=$(pkg-config --define-prefix --cflags --libs inv_platform)
mkdir "$work/pkg-config"
# shellcheck disable=SC2086
{
    cc -std=c11 -Wall -Wextra -Wpedantic -Werror "$consumers/consumer.c" -o "$work/pkg-config/consumer_c" $flags
    c++ -std=c++20 -Wall -Wextra -Wpedantic -Werror "$consumers/consumer.cpp" -o "$work/pkg-config/consumer_cpp" \
        $flags $platform_flags
}
run "$work/pkg-config" pkg-config

# The command that was installed, on an inventory that was installed.
"$prefix/bin/invctl" tree --depth 1 "$prefix/share/inv_parser/inventories/line_card_small.xml" >/dev/null
echo "installed command: ok"
