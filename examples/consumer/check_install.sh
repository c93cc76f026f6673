#!/usr/bin/env bash
# Installs the build tree into a fresh prefix and builds a small C agent
# against what was installed: once through pkg-config, once through
# find_package in its own CMake project. Each agent is then run from the
# installed tree. When the driver model was installed too, a third agent is
# linked with it and calls through to the driver.
#
# Usage: check_install.sh CMAKE BUILD_DIR GENERATED_PD_H GENERATOR CC VERSION
# CONSUMER_FLAGS in the environment is added to every compile and link (the
# sanitizer flags of a sanitizer build).
set -euo pipefail

cmake_bin=$1
build_dir=$2
generated_pd_h=$3
generator=$4
cc=$5
version=$6
flags=${CONSUMER_FLAGS:-}
here=$(cd "$(dirname "$0")" && pwd)

work=$(mktemp -d "${TMPDIR:-/tmp}/orbisk-install.XXXXXX")
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

fail() {
  echo "install_consumer: $*" >&2
  exit 1
}

"$cmake_bin" --install "$build_dir" --prefix "$prefix" >"$work/install.log" ||
  { cat "$work/install.log"; fail "cmake --install failed"; }

# The tree itself.
for f in lib/libob_bf_pd_nat_vxlan.so lib/libob_bf_pd_nat_vxlan.so.1 \
  "lib/libob_bf_pd_nat_vxlan.so.$version" \
  include/orbisk_switch/pd.h include/orbisk_switch/pd_types.h \
  include/orbisk_switch/pd_records.h include/orbisk_switch/pd_driver.h \
  lib/pkgconfig/ob_bf_pd_nat_vxlan.pc \
  lib/cmake/ob_bf_pd_nat_vxlan/ob_bf_pd_nat_vxlan-config.cmake \
  lib/cmake/ob_bf_pd_nat_vxlan/ob_bf_pd_nat_vxlan-config-version.cmake; do
  [[ -e $prefix/$f ]] || fail "$f was not installed"
done
[[ -L $prefix/lib/libob_bf_pd_nat_vxlan.so && -L $prefix/lib/libob_bf_pd_nat_vxlan.so.1 ]] ||
  fail "the SONAME and development names are not links"
[[ $(readlink "$prefix/lib/libob_bf_pd_nat_vxlan.so.1") == "libob_bf_pd_nat_vxlan.so.$version" ]] ||
  fail "libob_bf_pd_nat_vxlan.so.1 does not point at the versioned file"
cmp -s "$prefix/include/orbisk_switch/pd.h" "$generated_pd_h" ||
  fail "the installed pd.h is not the one generated from the catalogue"

# Every name the agent runs from the installed tree, never the build tree.
export LD_LIBRARY_PATH=$prefix/lib
unset LD_BIND_NOW

# pkg-config.
export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
[[ $(pkg-config --modversion ob_bf_pd_nat_vxlan) == "$version" ]] ||
  fail "pkg-config reports version $(pkg-config --modversion ob_bf_pd_nat_vxlan)"
read -r -a pc_flags <<<"$(pkg-config --cflags --libs ob_bf_pd_nat_vxlan)"
read -r -a extra <<<"$flags"
"$cc" "${extra[@]}" -std=c11 -Wall -Wextra -Werror "$here/consumer.c" "${pc_flags[@]}" \
  -Wl,--unresolved-symbols=ignore-in-shared-libs -o "$work/consumer_pc" ||
  fail "the pkg-config consumer did not build"
"$work/consumer_pc" || fail "the pkg-config consumer failed"

# find_package in a CMake project of its own.
"$cmake_bin" -S "$here" -B "$work/cmake-consumer" -G "$generator" \
  -DCMAKE_C_COMPILER="$cc" -DCMAKE_PREFIX_PATH="$prefix" \
  -DCMAKE_C_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" >"$work/configure.log" ||
  { cat "$work/configure.log"; fail "the CMake consumer did not configure"; }
"$cmake_bin" --build "$work/cmake-consumer" >"$work/build.log" ||
  { cat "$work/build.log"; fail "the CMake consumer did not build"; }
"$work/cmake-consumer/consumer" || fail "the CMake consumer failed"

# With the driver model, when it is part of the installed tree.
if [[ -e $prefix/lib/liborbisk_driver_model.so ]]; then
  "$cc" "${extra[@]}" -std=c11 -Wall -Wextra -Werror -DCONSUMER_WITH_DRIVER \
    "$here/consumer.c" "${pc_flags[@]}" -L"$prefix/lib" -lorbisk_driver_model \
    -o "$work/consumer_model" || fail "the consumer did not link with the driver model"
  "$work/consumer_model" || fail "the consumer failed against the driver model"
fi

echo "install_consumer: installed tree builds and runs agents through pkg-config and find_package"
