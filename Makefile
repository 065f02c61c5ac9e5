# The quick start: `make run` and `make test`. Both install what is missing first.

BUILD_DIR    := build
SANITIZE_DIR := build-sanitize
CMAKE_FLAGS  := -G Ninja -DFERROW_WARNINGS_AS_ERRORS=ON

ifeq ($(shell uname -s),Darwin)
CMAKE_FLAGS += -DCMAKE_PREFIX_PATH=$(shell brew --prefix qt 2>/dev/null)
RUN          := open $(BUILD_DIR)/src/app/Ferrow.app
else
RUN          := $(BUILD_DIR)/src/app/ferrow
endif

.PHONY: run test bench deps build build-sanitize clean

run: build
	$(RUN)

test: build build-sanitize
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j2
	ctest --test-dir $(SANITIZE_DIR) --output-on-failure -j2

bench: build
	@for program in $(BUILD_DIR)/bench/bench_*; do echo "== $$program"; $$program; done

deps:
	@tools/install-deps.sh

build: deps
	@test -f $(BUILD_DIR)/build.ninja || cmake -S . -B $(BUILD_DIR) $(CMAKE_FLAGS) -DCMAKE_BUILD_TYPE=RelWithDebInfo
	@cmake --build $(BUILD_DIR)

build-sanitize: deps
	@test -f $(SANITIZE_DIR)/build.ninja || cmake -S . -B $(SANITIZE_DIR) $(CMAKE_FLAGS) -DCMAKE_BUILD_TYPE=Debug \
		-DFERROW_SANITIZE=ON -DFERROW_BUILD_BENCHMARKS=OFF
	@cmake --build $(SANITIZE_DIR)

clean:
	rm -rf $(BUILD_DIR) $(SANITIZE_DIR)
