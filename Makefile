# Quilmar Deed Plotter: `make run` draws the built-in demo deed, `make test` builds and runs every test.
MAKEFLAGS += --no-print-directory
BUILD ?= build
JOBS  ?= $(shell nproc)
QUILMAR = $(BUILD)/src/app/quilmar

.PHONY: all deps configure build run test bench clean

all: build

deps:
	@bash scripts/install-deps.sh

$(BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

configure: deps $(BUILD)/CMakeCache.txt

build: configure
	cmake --build $(BUILD) -j $(JOBS)

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

bench: build
	$(BUILD)/bench/quilmar_bench

run: build
	@bash scripts/run.sh $(QUILMAR) $(FILE)

clean:
	rm -rf $(BUILD)
