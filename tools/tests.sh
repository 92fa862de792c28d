# The running and counting of tests, for ./test and .ci/run. Source it after common.sh.
passed=0
failed=0
skipped=0

pass() { passed=$((passed + 1)); }
fail() {
    failed=$((failed + 1))
    say "FAILED: $*"
}

# check NAME COMMAND...: the command counts as one test.
check() {
    local name=$1
    shift
    say "--- $name"
    if "$@"; then pass; else fail "$name"; fi
}

# run_tests PROGRAM [ARGUMENT...]: runs a GoogleTest program and adds its results. One that crashes, hangs, runs no
# test or ends with an error after its last test has failed.
run_tests() {
    local status log started good skips bad
    say "--- $*"
    log=$(mktemp)
    set +e
    timeout --kill-after=10 600 "$@" --gtest_color=no 2>&1 </dev/null | tee "$log" |
        grep -v -e '^\[ RUN  ' -e '^\[       OK' -e '^\[------' -e '^$'
    status=${PIPESTATUS[0]}
    set -e
    started=$(grep -c '\[ RUN      \] ' "$log" || true)
    good=$(grep -c '\[       OK \] ' "$log" || true)
    skips=$(grep -c '\[  SKIPPED \] .* ms)$' "$log" || true)
    rm -f "$log"
    bad=$((started - good - skips))
    if ((bad < 0)); then bad=0; fi
    if ((bad == 0 && (status != 0 || good == 0))); then bad=1; fi
    if ((bad > 0)); then say "FAILED: $* ($bad of $started, exit code $status)"; fi
    passed=$((passed + good))
    skipped=$((skipped + skips))
    failed=$((failed + bad))
}

# The last line of a run, and its exit code.
close_run() {
    if ((skipped > 0)); then say "($skipped skipped)"; fi
    say "$passed passed, $failed failed"
    ((failed == 0 && passed > 0))
}

# build_preset PRESET FOLDER [TARGET...]: a build that fails counts as a failed test.
build_preset() {
    local options=()
    if [[ $1 == release ]]; then options=(-DZANDOR_TESTS=ON); fi # ./run leaves them out
    say "--- Building ($1)"
    if ! { configure "$1" "${options[@]}" && build "${@:2}"; }; then
        fail "the build ($1)"
        return 1
    fi
}

test_release() {
    install_packages build test
    build_preset release build || return 0
    run_tests build/bin/zandor_tests
    QT_QPA_PLATFORM=offscreen run_tests build/bin/zandor_window_tests
    check "a drag with a real mouse" tools/drag
}

# Every source file stands as clang-format would write it.
test_style() {
    install_packages style
    check "the layout of the source" bash -c \
        'git ls-files -z "*.cpp" "*.h" | xargs -0 clang-format-14 --dry-run --Werror'
}

test_clang() {
    install_packages build test clang
    if build_preset clang build/clang; then pass; fi
}

test_asan() {
    install_packages build test clang
    build_preset asan build/asan || return 0
    run_tests build/asan/bin/zandor_tests
    # what the toolkit and the libraries below it never give back is not ours
    LSAN_OPTIONS=suppressions=tests/windows/leaks.txt:print_suppressions=0 QT_QPA_PLATFORM=offscreen \
        run_tests build/asan/bin/zandor_window_tests
}

# What several threads do, and nothing else. The sanitizer wants its memory where some systems put other things,
# unless they are asked not to.
test_tsan() {
    local fixed=()
    install_packages build test clang
    build_preset tsan build/tsan zandor_thread_tests || return 0
    if setarch -R true 2>/dev/null; then fixed=(setarch -R); fi
    run_tests ${fixed[@]+"${fixed[@]}"} build/tsan/bin/zandor_thread_tests
}

# The files of the demonstration tree that a reader may meet, all in one folder.
make_fuzz_seeds() {
    local file number=0
    rm -rf build/fuzz/seeds
    mkdir -p build/fuzz/seeds
    while IFS= read -r -d '' file; do
        number=$((number + 1))
        cp "$file" "build/fuzz/seeds/$number"
    done < <(find demo -type f ! -iname '*.wav' ! -iname '*.ace' -print0)
}

# fuzz_one TARGET SECONDS: a crash, a broken promise, a hang and too much memory all fail. What caused it is kept
# under build/fuzz/artifacts.
fuzz_one() {
    local corpus=build/fuzz/corpus/$1 log=build/fuzz/$1.log
    mkdir -p "$corpus" build/fuzz/artifacts
    if build/fuzz/bin/"$1" -max_total_time="$2" -timeout=5 -rss_limit_mb=2048 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/artifacts/$1-" "$corpus" build/fuzz/seeds &>"$log"; then
        grep -e number_of_executed_units "$log" || true
    else
        tail -n 60 "$log"
        return 1
    fi
}

# test_fuzz SECONDS: every fuzz target for so long.
test_fuzz() {
    local program
    install_packages build clang
    build_preset fuzz build/fuzz fuzzers || return 0
    make_fuzz_seeds
    for program in build/fuzz/bin/fuzz_*; do
        check "${program##*/}, $1 s" fuzz_one "${program##*/}" "$1"
    done
}
