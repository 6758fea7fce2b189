# What ./run, ./test, .ci/run, docs/pictures.sh and the scripts of packaging share: where the build is, what it needs,
# their options, and that nothing outlives them.
# shellcheck shell=bash disable=SC2034  # they use what is set here
unset CDPATH  # with it, cd prints where it goes
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
build=$source_folder/build
name_folder="--build FOLDER"  # how the script is given another folder
command_name=./$(realpath --relative-to="$source_folder" "$0")

needed_to_build=(g++ cmake ninja-build ccache qt6-base-dev qt6-l10n-tools qt6-serialport-dev libtomlplusplus-dev
  fonts-dejavu-core)
needed_to_test=(libgtest-dev hunspell hunspell-en-gb xvfb xdotool xclip matchbox-window-manager)

# Qt complains at every start where the names of files are not in UTF-8.
[ "$(locale charmap 2> /dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

# With relative paths a moved checkout finds what it compiled before. Ninja does not know an absolute path with "&"
# again and would compile everything at every start.
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$source_folder}

# Ctrl-C reaches the programs as well. Some of them end with a status of their own.
trap 'exit 130' INT

fail() {
  echo "$command_name: $*" >&2
  exit 1
}

# The comment at the head of the script.
print_help() { sed '1d; /^#/!Q; s/^# \?//' -- "$0"; }

# Takes "--build FOLDER" from the front of the arguments; the others are left in `arguments`.
take_options() {
  arguments=("$@")
  case ${1:-} in
    -h | --help)
      print_help
      exit
      ;;
    --build)
      [ -n "${2:-}" ] || { echo "$command_name: --build needs a folder" >&2; exit 2; }
      build=$2
      arguments=("${@:3}")
      ;;
    --build=?*)
      build=${1#--build=}
      arguments=("${@:2}")
      ;;
  esac
  build=$(realpath --canonicalize-missing -- "$build")
}

# Sorts the arguments of a script into `arguments`: its options, "--", the others. The options are written as for
# getopt: read_options LONG-OPTIONS [ARGUMENT]... The comment at the head of the script is what --help prints.
read_options() {
  local sorted argument
  sorted=$(getopt --name "$command_name" --options h --longoptions "help,$1" -- "${@:2}") || exit 2
  eval "arguments=($sorted)"
  for argument in "${arguments[@]}"; do
    case $argument in
      --) return ;;
      -h | --help) print_help; exit ;;
    esac
  done
}

# The only argument of a script that has no options: read_argument DEFAULT [ARGUMENT]...
read_argument() {
  read_options '' "${@:2}"
  [ ${#arguments[@]} -le 2 ] || { echo "$command_name: one argument is allowed, not $((${#arguments[@]} - 1))" >&2; exit 2; }
  argument=${arguments[1]:-$1}
}

project_version() { sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$source_folder/CMakeLists.txt"; }

tools() { "$source_folder/tools/$1" "${@:2}"; }

# A program that starts with this ends when the script does, even if the script is killed.
bound=(setpriv --pdeathsig TERM --)

can_write() { mkdir -p "$1" 2> /dev/null && [ -w "$1" ]; }

forget_configuration() { rm -rf "$1/CMakeCache.txt" "$1/CMakeFiles"; }

# Reserves $build/PRESET: it can be written, no other run builds there, and it is not the build of another checkout.
reserve() {
  local folder=$build/$1 here home
  if ! can_write "$build" || ! can_write "$folder"; then
    fail "$folder cannot be written. Name another folder for the build: $command_name $name_folder"
  fi
  [ -w "$folder.lock" ] || [ ! -e "$folder.lock" ] || fail "$folder.lock belongs to another user"
  exec {lock}> "$folder.lock"
  flock --wait 5 "$lock" || fail "another script builds in $folder. Wait until it ends, or use $name_folder."
  # The compiler cache is in the home folder, which not every user has.
  if [ -z "${CCACHE_DIR:-}" ] && { [ -z "${HOME:-}" ] || ! can_write "${XDG_CACHE_HOME:-$HOME/.cache}"; }; then
    export CCACHE_DIR=$build/ccache
  fi

  # CMake writes this file last.
  [ -e "$folder/build.ninja" ] || forget_configuration "$folder"
  [ -e "$folder/CMakeCache.txt" ] || return 0
  home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$folder/CMakeCache.txt")
  here=$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "$folder/CMakeCache.txt")
  [ "$home" != "$source_folder" ] || [ "$here" != "$folder" ] || return 0
  if [ "$here" = "$folder" ] && [ -e "$home/CMakeLists.txt" ]; then
    fail "$folder has the build of $home. Name another folder with $name_folder, or remove this one."
  fi
  echo "The folder was moved. Everything is built again."
  forget_configuration "$folder"
}

# Configures the reserved $build/PRESET and builds the targets named, or all: compile PRESET [TARGET]...
compile() {
  "${bound[@]}" cmake -S "$source_folder" --preset "$1" -B "$build/$1"
  "${bound[@]}" ninja -C "$build/$1" "${@:2}"
}
