# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
#
# Fuzzing: every program build/asan/bin/fuzz_<subject> for a while, from a copy of its corpus. The source tree is read
# only; what a run finds stays in build/asan/fuzz/<subject>/.

fuzz_seed=${VEL_FUZZ_SEED:-1}
long_fuzz_seconds=600

fuzz_command() {
  local seconds=${1:-20}
  expect_no_arguments "${@:2}"
  [[ $seconds =~ ^[1-9][0-9]*$ ]] || wrong_usage "'$seconds' is not a number of seconds"
  fuzz_all "$seconds" no
}

# The full measure, with a log of each run that is meant to be committed.
fuzz_long() { fuzz_all "$long_fuzz_seconds" yes; }

# Fuzzes every subject, also after a finding. $1: seconds a subject; $2: yes to write docs/logs/<subject>.log.
fuzz_all() {
  local seconds=$1 write_log=$2 program ran=no
  local -a failed=()
  set_up fuzz
  build_preset asan
  for program in build/asan/bin/fuzz_*; do
    [[ -x $program ]] || continue
    ran=yes
    fuzz_one "${program##*/}" "$seconds" "$write_log" || failed+=("${program##*/}")
  done
  [[ $ran == yes ]] || fail "there is no program build/asan/bin/fuzz_*"
  ((${#failed[@]} == 0)) || fail "fuzzing found something: ${failed[*]}"
}

# $1: program; $2: seconds; $3: yes to write the log.
fuzz_one() {
  local program=$1 subject=${1#fuzz_} begin=$SECONDS status=0
  local scratch=build/asan/fuzz/$subject
  local -a options=(-max_total_time="$2" -seed="$fuzz_seed" -timeout=25 -rss_limit_mb=4096 -print_final_stats=1)
  prepare_scratch "$subject" "$scratch"
  "build/asan/bin/$program" "${options[@]}" -artifact_prefix="$scratch/findings/" "$scratch/corpus" \
    >"$scratch/output.txt" 2>&1 || status=$?
  report_run "$program" "$scratch" $((SECONDS - begin)) "$status"
  [[ $3 == no ]] || write_run_log "$program ${options[*]}" "$subject" $((SECONDS - begin)) "$status"
  return "$status"
}

# A fresh copy of the corpus each time, so that the seed decides what is tried.
prepare_scratch() {
  rm -rf "$2"
  mkdir -p "$2/corpus" "$2/findings"
  if [[ -d tests/fuzz/corpus/$1 ]]; then cp -R "tests/fuzz/corpus/$1/." "$2/corpus/"; fi
}

# $1: scratch folder; prints how many inputs the run tried.
inputs_tried() { awk '/^stat::number_of_executed_units:/ { n = $2 } END { print n + 0 }' "$1/output.txt"; }

# $1: scratch folder; $2: exit status; prints the paths of the inputs that were found, or what else went wrong.
findings_of() {
  local found
  found=$(find "$1/findings" -type f | sort | paste -s -d ' ')
  if (($2 == 0)); then echo none; else echo "${found:-exit status $2 without an input}"; fi
}

# $1: program; $2: scratch folder; $3: seconds; $4: exit status.
report_run() {
  printf '%s: seed %s, %s inputs, %s s, findings: %s\n' \
    "$1" "$fuzz_seed" "$(inputs_tried "$2")" "$3" "$(findings_of "$2" "$4")"
  (($4 == 0)) || tail -n 40 "$2/output.txt"
}

# $1: command; $2: subject; $3: seconds; $4: exit status.
write_run_log() {
  local scratch=build/asan/fuzz/$2
  mkdir -p docs/logs
  cat >"docs/logs/$2.log" <<TEXT
# SPDX-FileCopyrightText: 2026 The VelRshModel authors
# SPDX-License-Identifier: Apache-2.0
subject:  $2
command:  $1
commit:   $(commit_name)
machine:  $(machine_name)
seed:     $fuzz_seed
count:    $(inputs_tried "$scratch") inputs
duration: $3 s
findings: $(findings_of "$scratch" "$4")
TEXT
}
