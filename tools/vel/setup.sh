# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# The set-up: which Debian packages a command needs, which of them are missing, how they get here.

# Every need and its packages. Names without a compiler's version, so that a later Debian brings its own.
declare -A packages_for=(
  [build]="g++ cmake ninja-build ccache"
  [libraries]="libtomlplusplus-dev libpng-dev libjpeg62-turbo-dev libtiff-dev libopenexr-dev libmd-dev librsvg2-dev libexpat1-dev libseccomp-dev libgdk-pixbuf-2.0-dev libwebp-dev libstb-dev pkg-config"
  [test]="libgtest-dev locales"
  [bench]="libbenchmark-dev"
  [clang]="clang libclang-rt-dev"
  [lint]="clang-format clang-tidy"
)

apt_lists=/var/lib/apt/lists

# What a command or a preset needs.
needs_of() {
  case "$1" in
    demo) echo build libraries ;;
    core) echo build test ;;
    debug) echo build libraries test ;;
    test | bench | release) echo build libraries test bench ;;
    fuzz | clang | asan) echo build libraries test clang ;;
    lint) echo build libraries test bench clang lint ;;
    format) echo lint ;;
    all) echo build libraries test bench clang lint ;;
    *) return 1 ;;
  esac
}

packages_of() {
  local need
  for need in $(needs_of "$1"); do printf '%s ' "${packages_for[$need]}"; done
}

# Prints those of the packages that are not installed.
missing_packages() {
  local installed package
  # dpkg-query exits with 1 when it does not know one of the names.
  # shellcheck disable=SC2016 # the variables are dpkg-query's own
  installed=" $(dpkg-query -W -f '${Package}=${db:Status-Status} ' -- "$@" 2>/dev/null || true)"
  for package in "$@"; do
    [[ $installed == *" $package=installed "* ]] || printf '%s ' "$package"
  done
}

cannot_install() {
  fail "cannot install $1: $2. By hand: apt-get install --no-install-recommends $1"
}

# Says how to become root: nothing for root itself, else sudo. $1: what is to be installed, for the message.
root_prefix() {
  [[ $(id -u) != 0 ]] || return 0
  command -v sudo >/dev/null || cannot_install "$1" "not root, and there is no sudo"
  [[ -t 0 ]] || sudo -n true 2>/dev/null || cannot_install "$1" "sudo wants a password"
  echo sudo
}

have_package_lists() { compgen -G "$apt_lists/*_Packages*" >/dev/null; }

# $1: the prefix that makes root, may be empty; then the arguments of apt-get.
apt_get() {
  local prefix=$1
  shift
  ${prefix:+"$prefix"} env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@"
}

install_packages() {
  local wanted="$*" log=.cache/setup.log prefix
  command -v apt-get >/dev/null || cannot_install "$wanted" "this machine has no apt-get"
  prefix=$(root_prefix "$wanted") || exit 1
  say "installing $wanted"
  mkdir -p .cache
  have_package_lists || apt_get "$prefix" update >"$log" 2>&1 || true
  if apt_get "$prefix" install -y --no-install-recommends "$@" >>"$log" 2>&1; then return; fi
  # The lists may be older than what the archive still holds.
  apt_get "$prefix" update >>"$log" 2>&1 || true
  if apt_get "$prefix" install -y --no-install-recommends "$@" >>"$log" 2>&1; then return; fi
  tail -n 5 "$log" >&2
  cannot_install "$wanted" "apt-get failed (its messages: $log)"
}

# Brings what one command or preset needs. Costs one call of dpkg-query where nothing is missing.
set_up() {
  local -a wanted missing
  [[ ${VEL_SETUP:-} != skip ]] || return 0
  read -ra wanted <<<"$(packages_of "$1")"
  read -ra missing <<<"$(missing_packages "${wanted[@]}")"
  ((${#missing[@]} == 0)) || install_packages "${missing[@]}"
}

setup_command() {
  local what=${1:-all}
  needs_of "$what" >/dev/null || wrong_usage "there is no command or preset '$what'"
  expect_no_arguments "${@:2}"
  set_up "$what"
}
