#!/usr/bin/env bash
# Usage: build.sh [--build FOLDER] [--qt FOLDER]
# Builds the programs for 64-bit Windows in FOLDER, or in build/windows, runs the stories and the tests of the model
# under Wine, and makes the installer. The first run builds Qt from the source package of Debian, which takes an hour on
# two cores.
#   --qt  the build folder of an earlier such Qt
set -euo pipefail
# shellcheck source=tools/common.sh
. "$(dirname -- "$0")/../../tools/common.sh"
build=$build/windows qt=
read_options build:,qt: "$@"
set -- "${arguments[@]}"
while [ "$1" != -- ]; do
  case $1 in
    --build) build=$(realpath --canonicalize-missing -- "$2") ;;
    --qt) qt=$(realpath -- "$2") ;;
  esac
  shift 2
done
: "${qt:=$build/qt}"
[ $# -eq 1 ] || { echo "$command_name: unknown argument $2" >&2; exit 2; }
[ "$qt" = "$build/qt" ] || [ -f "$qt/CMakeCache.txt" ] || fail "$qt is no build folder of Qt"
cd "$source_folder"
reserve release
tools/require g++-mingw-w64-x86-64-posix wine wine64 nsis cmake ninja-build ccache dpkg-dev qt6-base-dev qt6-base-dev-tools \
  qt6-l10n-tools googletest libtomlplusplus-dev librsvg2-bin icoutils

here=$PWD/packaging/windows

# The source package of the release that this system runs, whether or not its sources are among those of apt.
fetch_qt() {
  local apt=$build/apt
  rm -rf "$build/source.new"
  mkdir -p "$apt/lists/partial" "$build/source.new"
  apt-cache policy qt6-base-dev |
    sed -n 's,^ *[0-9]* \(http[^ ]*\) \([^ /]*\)/\([^ ]*\) .* Packages$,deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] \1 \2 \3,p' \
    > "$apt/sources.list"
  local options=(-o Dir::Etc::SourceList="$apt/sources.list" -o Dir::Etc::SourceParts=- -o Dir::State::Lists="$apt/lists"
    -o Dir::Cache="$apt" -o APT::Sandbox::User=)
  apt-get "${options[@]}" update
  (cd "$build/source.new" && apt-get "${options[@]}" source qt6-base)
  mv "$build/source.new" "$build/source"  # only what is whole has this name
}

# Without network, SQL, D-Bus and tests. The plug-in for Windows needs OpenGL to be there; nothing uses it.
configure_qt() {
  cmake -S "$build"/source/qt6-base-*/ -B "$qt" -G Ninja --toolchain "$here/toolchain.cmake" \
    -DCMAKE_BUILD_TYPE=MinSizeRel -DBUILD_SHARED_LIBS=OFF -DINPUT_opengl=dynamic \
    -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_testlib=OFF -DFEATURE_icu=OFF \
    -DFEATURE_system_zlib=OFF -DFEATURE_concurrent=OFF -DFEATURE_pkg_config=OFF -DFEATURE_vulkan=OFF \
    -DCMAKE_DISABLE_FIND_PACKAGE_WrapVulkanHeaders=ON -DFEATURE_tabletevent=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF \
    -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
}

# The uninstaller gets a list of what is in the tree, because people may put files into the folders of the program.
make_installer() {
  # shellcheck disable=SC2016  # the installer knows this folder
  find "$1" -mindepth 1 -depth \( -type d -printf '  RMDir' -o -printf '  Delete' \) -printf ' "$INSTDIR/%P"\n' |
    sed 's,/,\\,g' > "$build/installed.nsh"
  makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DTREE="$1" -DINSTALLED="$build/installed.nsh" -DOUTPUT="$2" \
    "$here/installer.nsi"
}

if [ "$qt" = "$build/qt" ]; then
  [ -d "$build/source" ] || fetch_qt
  [ -f "$qt/build.ninja" ] || configure_qt
  cmake --build "$qt" --target EntryPointImplementation Gui_resources_{1,2} Widgets Widgets_resources_{1,2,3} \
    PrintSupport PrintSupport_resources_{1,2} QWindowsIntegrationPlugin QWindowsIntegrationPlugin_{init,resources_1,resources_2} \
    QOffscreenIntegrationPlugin QOffscreenIntegrationPlugin_init
fi
qt_source=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$qt/CMakeCache.txt")

cmake -S . -B "$build/release" -G Ninja --toolchain "$here/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release -DOVL_WERROR=ON \
  -DOVL_CCACHE=ON -DOVL_QT="$qt" -DCMAKE_MODULE_PATH="$qt_source/cmake"
cmake --build "$build/release"
ctest --test-dir "$build/release" --output-on-failure

# What the installer lays down.
tree=$build/tree
rm -rf "$tree"
cmake --install "$build/release" --prefix "$tree" --strip
export WINEPREFIX=$build/release/wine WINEDEBUG=-all
wine "$tree/bin/ovl-images.exe" "$tree/share/ovl-software/images"

version=$(project_version)
make_installer "$tree" "$build/ovl-software-$version-setup.exe"
echo "$build/ovl-software-$version-setup.exe"
