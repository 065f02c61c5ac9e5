# The quick start: `make run` and `make test`. Both install what is missing first.

BUILD_DIR    := build
SANITIZE_DIR := build-sanitize
FUZZ_DIR     := build-fuzz
FUZZ_SECONDS ?= 60
FUZZ_TARGETS := property_list recording profiler_json history_record smc_decode http_request
CMAKE_FLAGS  := -G Ninja -DFERROW_WARNINGS_AS_ERRORS=ON

ifeq ($(shell uname -s),Darwin)
# Homebrew links its Qt formulae (qtbase, qtcharts, qttools) into its own prefix.
CMAKE_FLAGS += -DCMAKE_PREFIX_PATH=$(shell brew --prefix 2>/dev/null)
# `open` would only bring forward a copy that is already running: quit it, then start this build.
RUN          := osascript -e 'quit app id "app.ferrow.Ferrow"' >/dev/null 2>&1 || true; \
                open -n $(BUILD_DIR)/src/app/Ferrow.app
else
RUN          := $(BUILD_DIR)/src/app/ferrow
endif

.PHONY: run test bench fuzz deps test-deps app build build-sanitize package check-macos clean

run: app
	$(RUN)

# The test tools (Python, Prometheus) come first: the build registers the tests that need them.
test: test-deps build build-sanitize
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j2
	ctest --test-dir $(SANITIZE_DIR) --output-on-failure -j2

bench: build
	@for program in $(BUILD_DIR)/bench/bench_*; do echo "== $$program"; $$program; done

# Each target runs FUZZ_SECONDS, or FUZZ_RUNS executions when given (`make fuzz FUZZ_RUNS=10000000`),
# on a scratch copy of its seed corpus, then prints its executions and coverage. What it found that
# reaches new code is merged into fuzz/corpus/ (commit it); a crash leaves its input as
# build-fuzz/crash-* (fix it, then add the input to fuzz/corpus/).
fuzz:
	@tools/install-deps.sh --fuzz
	@test -f $(FUZZ_DIR)/build.ninja || CC=clang CXX=clang++ cmake -S . -B $(FUZZ_DIR) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
		-DFERROW_FUZZ=ON -DFERROW_SANITIZE=ON -DFERROW_BUILD_TESTS=OFF -DFERROW_BUILD_BENCHMARKS=OFF $(filter-out -G Ninja,$(CMAKE_FLAGS))
	@cmake --build $(FUZZ_DIR) --target $(addprefix fuzz_,$(FUZZ_TARGETS))
	@for target in $(FUZZ_TARGETS); do \
		program=$(FUZZ_DIR)/fuzz/fuzz_$$target; log=$(FUZZ_DIR)/fuzz_$$target.log; \
		mkdir -p $(FUZZ_DIR)/corpus/$$target; \
		echo "== fuzz_$$target for $(if $(FUZZ_RUNS),$(FUZZ_RUNS) executions,$(FUZZ_SECONDS) s)"; \
		$$program $(FUZZ_DIR)/corpus/$$target fuzz/corpus/$$target $(if $(FUZZ_RUNS),-runs=$(FUZZ_RUNS),-max_total_time=$(FUZZ_SECONDS)) \
			-artifact_prefix=$(FUZZ_DIR)/crash-$$target- -print_final_stats=1 > $$log 2>&1; \
		status=$$?; \
		if [ $$status -ne 0 ]; then grep -A3 -E 'ERROR|runtime error' $$log | head -n 8; exit 1; fi; \
		awk '/DONE/ { coverage = $$3 " " $$4 " " $$5 " " $$6 } \
			/^stat::number_of_executed_units/ { runs = $$2 } /^stat::average_exec_per_sec/ { speed = $$2 } \
			END { printf "   %d executions (%d a second), no finding; %s\n", runs, speed, coverage }' $$log; \
		$$program -merge=1 fuzz/corpus/$$target $(FUZZ_DIR)/corpus/$$target > $(FUZZ_DIR)/merge_$$target.log 2>&1 \
			&& grep -o 'MERGE-OUTER: [0-9]* new files' $(FUZZ_DIR)/merge_$$target.log | sed 's/^MERGE-OUTER:/   kept in fuzz\/corpus:/'; \
	done

deps:
	@tools/install-deps.sh

test-deps:
	@tools/install-deps.sh --test

$(BUILD_DIR)/build.ninja:
	@cmake -S . -B $(BUILD_DIR) $(CMAKE_FLAGS) -DCMAKE_BUILD_TYPE=RelWithDebInfo

# The application alone: `make run` needs neither the tests nor the benchmarks.
app: deps $(BUILD_DIR)/build.ninja
	@cmake --build $(BUILD_DIR) --target ferrow

build: deps $(BUILD_DIR)/build.ninja
	@cmake --build $(BUILD_DIR)

build-sanitize: deps
	@test -f $(SANITIZE_DIR)/build.ninja || cmake -S . -B $(SANITIZE_DIR) $(CMAKE_FLAGS) -DCMAKE_BUILD_TYPE=Debug \
		-DFERROW_SANITIZE=ON -DFERROW_BUILD_BENCHMARKS=OFF
	@cmake --build $(SANITIZE_DIR)

# A Debian package (build/ferrow_*.deb, then checked by tests/package/check_deb.sh) on Linux,
# a disk image with the self-contained Ferrow.app on macOS.
package: build
	@tools/install-deps.sh --package
	@cd $(BUILD_DIR) && cpack
ifeq ($(shell uname -s),Darwin)
	@ls $(BUILD_DIR)/Ferrow-*.dmg
else
	@tests/package/check_deb.sh $(BUILD_DIR)/ferrow_*.deb
	@ls $(BUILD_DIR)/ferrow_*.deb
endif

# Compiles what a Mac build compiles against an Apple SDK, on any machine: MACOS_SDK=path/to/MacOSX.sdk
check-macos:
	@tools/install-deps.sh --macos-check
	@tools/check_macos_build.sh $(MACOS_SDK)

clean:
	rm -rf $(BUILD_DIR) $(SANITIZE_DIR) $(FUZZ_DIR) build-macos-check
