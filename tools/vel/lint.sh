# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# The checks that need no running program: layout, include directions, headers alone, clang-tidy.

source_trees="platform RenderingShader host examples tests benchmarks"
header_warnings="-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror"

# Prints the tracked files of the source trees whose name ends in one of the extensions $1 (a pattern such as "h|cpp"),
# one a line. A source archive has no index: there, all files.
list_sources() {
  local tree file
  local -a present=()
  for tree in $source_trees; do [[ ! -d $tree ]] || present+=("$tree"); done
  { git ls-files -- "${present[@]}" 2>/dev/null || find "${present[@]}" -type f; } | sort | while read -r file; do
    [[ ! $file =~ \.($1)$ || ! -f $file ]] || echo "$file"
  done
}

# What clang-format looks after: a grid laid out by hand says so in itself.
list_formatted() {
  list_sources 'h|cpp|inl'
  list_sources 'def' | xargs -r -d '\n' grep -L 'clang-format off' || true
}

format_command() {
  expect_no_arguments "$@"
  set_up format
  list_formatted | xargs -r -d '\n' clang-format -i
}

lint_command() {
  tidy_extra_checks=
  if [[ ${1:-} == --deep ]]; then tidy_extra_checks='clang-analyzer-*' && shift; fi
  expect_no_arguments "$@"
  set_up lint
  failed_stages=()
  lint_stage format check_format
  lint_stage layers tools/check_layers
  lint_stage headers check_headers
  lint_stage tidy check_tidy
  ((${#failed_stages[@]} == 0)) || fail "lint found something in: ${failed_stages[*]}"
}

# Runs one stage and remembers its failure: a run shows all there is to mend. $1: name; $2: command.
lint_stage() {
  local begin=$SECONDS result=clean
  "$2" 2>&1 || result="NOT clean"
  [[ $result == clean ]] || failed_stages+=("$1")
  echo "lint: $1: $result, $(as_minutes $((SECONDS - begin)))"
}

check_format() {
  list_formatted | xargs -r -d '\n' clang-format --dry-run --Werror --ferror-limit=2
}

# Each header is compiled alone: it includes what it uses. What one compiler says is printed in one piece.
check_headers() {
  export header_warnings
  # shellcheck disable=SC2016 # expanded by the inner shell
  list_sources h | xargs -r -d '\n' -P "$jobs" -n 4 bash -c '
    said=$(clang++ -fsyntax-only -std=c++20 $header_warnings -I. -x c++-header "$@" 2>&1) && exit
    printf "%s\n" "$said"
    exit 1
  ' headers
}

# Prints the tracked sources that the lint preset compiles.
list_compiled_sources() {
  sed -n "s|^ *\"file\": \"$vel_root/\(.*\)\",\{0,1\}\$|\1|p" build/lint/compile_commands.json | sort -u |
    comm -12 - <(list_sources cpp)
}

check_tidy() {
  local output=build/lint/tidy status=0
  cmake --preset lint --log-level=WARNING >/dev/null || return 1
  rm -rf "$output"
  mkdir -p "$output"
  export tidy_extra_checks
  # shellcheck disable=SC2016 # expanded by the inner shell
  list_compiled_sources | xargs -r -d '\n' -P "$jobs" -n 1 bash -c '
    name=build/lint/tidy/${1//\//_}
    clang-tidy -p build/lint --quiet --checks="$tidy_extra_checks" "$1" >"$name.out" 2>"$name.err" && rm "$name.err"
  ' tidy || status=1
  print_tidy_findings "$output"
  return "$status"
}

# Each finding once: one in a header is found by every source that includes it. $1: folder of the outputs.
print_tidy_findings() {
  local findings
  findings=$(find "$1" -name '*.out' -print0 | sort -z | xargs -0 -r cat | awk -v root="$vel_root/" '
    function flush() { if (text != "" && !(text in seen)) printf "%s", text; seen[text]; text = "" }
    { while ((i = index($0, root)) > 0) $0 = substr($0, 1, i - 1) substr($0, i + length(root)) }
    /^([^ ].*: )?(warning|error): / { flush() }
    { text = text $0 "\n" }
    END { flush() }')
  if [[ -n $findings ]]; then
    echo "$findings"
  else
    # A clang-tidy that ended without a finding says why here.
    find "$1" -name '*.err' -exec cat {} +
  fi
}
