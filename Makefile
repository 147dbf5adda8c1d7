# obsdesk: the two everyday commands, and a few more.
#   make run            build and run the demo session on a fresh demo bank
#   make test           build with warnings as errors, run every test and the fuzz run
#   make test-sanitize  the tests under AddressSanitizer and UndefinedBehaviorSanitizer
#   make bench          build and run the benchmarks
#   make fuzz           a million observer actions under the sanitizers (FUZZ_EVENTS=N)
#   make symbols        the contact sheet of the weather symbols, SVG and PNG
# Each installs the Debian packages it needs when they are missing.

SHELL := /bin/bash
BUILD ?= build
JOBS ?= $(shell nproc)
PACKAGES := g++ cmake ninja-build pkg-config libsqlite3-dev libgtest-dev libgmock-dev libbenchmark-dev libeccodes-dev
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo -DOBSDESK_WERROR=ON

.PHONY: deps configure run test test-sanitize fuzz bench symbols clean

deps:
	@missing=""; \
	for p in $(PACKAGES); do dpkg -s $$p >/dev/null 2>&1 || missing="$$missing $$p"; done; \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  $(SUDO) apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq --no-install-recommends $$missing; \
	fi

configure: deps
	cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS)

run: configure
	cmake --build $(BUILD) --target obsdesk-cli -j $(JOBS)
	rm -rf $(BUILD)/demo-bank
	$(BUILD)/obsdesk-cli --bank $(BUILD)/demo-bank run examples/demo.scenario

# The tests, then a million observer actions under the sanitizers.
test: configure
	cmake --build $(BUILD) -j $(JOBS)
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS) --timeout 1800
	$(MAKE) --no-print-directory fuzz

test-sanitize: deps
	cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DOBSDESK_WERROR=ON \
	  -DOBSDESK_SANITIZE=ON -DOBSDESK_BENCH=OFF
	cmake --build build-sanitize -j $(JOBS)
	cd build-sanitize && ctest --output-on-failure -j $(JOBS) --timeout 3600

FUZZ_EVENTS ?= 1000000
fuzz: deps
	cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DOBSDESK_WERROR=ON \
	  -DOBSDESK_SANITIZE=ON -DOBSDESK_BENCH=OFF
	cmake --build build-sanitize --target obsdesk_fuzz -j $(JOBS)
	build-sanitize/tests/obsdesk_fuzz --seed 1 --events $(FUZZ_EVENTS)

bench: configure
	cmake --build $(BUILD) --target obsdesk_bench -j $(JOBS)
	$(BUILD)/bench/obsdesk_bench

# Every weather symbol under its code: $(BUILD)/symbols.svg from the core, and
# $(BUILD)/symbols.png drawn from it by Qt, offscreen.
SYMBOL_PACKAGES := qt6-base-dev qt6-svg-dev
symbols: configure
	cmake --build $(BUILD) --target obsdesk-cli -j $(JOBS)
	$(BUILD)/obsdesk-cli symbols $(BUILD)/symbols.svg
	$(MAKE) --no-print-directory deps PACKAGES="$(SYMBOL_PACKAGES)"
	cmake -S src/desktop/symbol_sheet -B $(BUILD)/symbol-sheet -G Ninja -DCMAKE_BUILD_TYPE=Release
	cmake --build $(BUILD)/symbol-sheet -j $(JOBS)
	QT_QPA_PLATFORM=offscreen $(BUILD)/symbol-sheet/obsdesk-symbol-sheet $(BUILD)/symbols.svg $(BUILD)/symbols.png
	@echo "wrote $(BUILD)/symbols.svg and $(BUILD)/symbols.png"

clean:
	rm -rf $(BUILD) build-sanitize
