# Quilmar Deed Plotter: `make run` draws the built-in demo deed, `make test` builds and runs every test.
MAKEFLAGS += --no-print-directory
BUILD ?= build
JOBS  ?= $(shell nproc)
QUILMAR = $(BUILD)/src/app/quilmar

ASAN  ?= build-asan
FUZZ  ?= build-fuzz
# How long each fuzz target runs: about a minute in `make test`; see README for long runs.
FUZZ_SECONDS ?= 60

.PHONY: all deps configure build run test test-main test-asan fuzz bench clean

all: build

deps:
	@bash scripts/install-deps.sh

$(BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

configure: deps $(BUILD)/CMakeCache.txt

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# The suite, then the suite again under the sanitizers, then a short fuzzing run.
test: test-main test-asan fuzz

test-main: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

test-asan: deps
	cmake -S . -B $(ASAN) -DCMAKE_BUILD_TYPE=Debug -DQUILMAR_SANITIZE=ON >/dev/null
	cmake --build $(ASAN) -j $(JOBS)
	cd $(ASAN) && QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  LSAN_OPTIONS=suppressions=$(CURDIR)/scripts/lsan.supp ctest --output-on-failure -j $(JOBS)

# libFuzzer targets (clang): each runs FUZZ_SECONDS over its seed corpus in fuzz/corpus.
fuzz: deps
	CXX=clang++ cmake -S . -B $(FUZZ) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUILMAR_FUZZ=ON \
	  -DQUILMAR_FUZZ_SECONDS=$(FUZZ_SECONDS) >/dev/null
	cmake --build $(FUZZ) -j $(JOBS)
	cd $(FUZZ) && ctest --output-on-failure

bench: build
	$(BUILD)/bench/quilmar_bench

run: build
	@bash scripts/run.sh $(QUILMAR) $(FILE)

clean:
	rm -rf $(BUILD) $(ASAN) $(FUZZ)
