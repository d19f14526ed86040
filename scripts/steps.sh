#!/usr/bin/env bash
# Runs the steps of a script, each with a log of its own under build/logs/. To be sourced.

# end_of_step NAME STATUS LOG COMMAND...: ends the script where a step failed.
end_of_step() {
  local name=$1 status=$2 log=$3
  shift 3
  [ "$status" -ne 0 ] || return 0
  {
    echo "$0: \"$name\" failed with status $status: $*"
    echo "The last lines of its log:"
    tail -n 30 "$log" | sed 's/^/  /'
    echo "The whole log is $PWD/$log"
  } >&2
  exit "$status"
}

# log_of NAME: where the log of a step of this script is.
log_of() {
  local name=${1//[^A-Za-z0-9]/-}
  mkdir -p build/logs
  echo "build/logs/$(basename "$0" .sh)-$name.log"
}

# step NAME COMMAND...: says that it begins and runs it without a word of its own.
step() {
  local name=$1 log status
  shift
  log=$(log_of "$name")
  echo "== $name"
  # Apart from "||" and "if", where a function would go on behind what fails in it.
  set +e
  (set -e; "$@") >"$log" 2>&1 </dev/null
  status=$?
  set -e
  end_of_step "$name" $status "$log" "$@"
}

# shown_step NAME COMMAND...: the same, for commands whose output is to be seen as it comes.
shown_step() {
  local name=$1 log status
  shift
  log=$(log_of "$name")
  echo "== $name"
  set +e
  (set -e; "$@") </dev/null 2>&1 | tee "$log"
  status=${PIPESTATUS[0]}
  set -e
  end_of_step "$name" "$status" "$log" "$@"
}
