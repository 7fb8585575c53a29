# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# What the commands of ./vel share: messages, time, the number of jobs, facts about machine and commit.

jobs=${VEL_JOBS:-$(nproc)}

say() { printf 'vel: %s\n' "$*"; }

fail() {
  printf 'vel: %s\n' "$*" >&2
  exit 1
}

wrong_usage() {
  printf 'vel: %s; ./vel help lists what there is\n' "$*" >&2
  exit 2
}

# For a command that takes no (further) arguments.
expect_no_arguments() { (($# == 0)) || wrong_usage "'$1' is not expected here"; }

# Seconds -> minutes with one decimal.
as_minutes() { printf '%d.%d min' $(($1 / 60)) $(($1 % 60 / 6)); }

# The commit that a measure was taken on; a source archive has none. The logs that measures write are no change.
commit_name() {
  local name
  name=$(git rev-parse --short=12 HEAD 2>/dev/null) || { echo unknown && return; }
  git diff --quiet HEAD -- . ':!docs/logs' 2>/dev/null || name+=" with changes"
  echo "$name"
}

machine_name() {
  local model
  model=$(awk -F': ' '/^model name/ { print $2; exit }' /proc/cpuinfo)
  printf '%s, %s cores' "${model:-$(uname -m)}" "$(nproc)"
}
