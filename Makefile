# obsdesk: the two everyday commands, and a few more.
#   make run            build and open the desktop on the demo bank (headless: the demo session)
#   make screenshots    every screen of the program as PNG under build/screenshots/
#   make test           build with warnings as errors, run every test and the fuzz run
#   make test-sanitize  the tests under AddressSanitizer and UndefinedBehaviorSanitizer
#   make bench          build and run the benchmarks
#   make fuzz           a million observer actions under the sanitizers (FUZZ_EVENTS=N)
#   make symbols        the contact sheet of the weather symbols, SVG and PNG
# Each installs the Debian packages it needs when they are missing.

SHELL := /bin/bash
BUILD ?= build
JOBS ?= $(shell nproc)
PACKAGES := g++ cmake ninja-build pkg-config libsqlite3-dev libgtest-dev libgmock-dev libbenchmark-dev \
  libeccodes-dev qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-translations-l10n libgl-dev fonts-noto-core
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo -DOBSDESK_WERROR=ON

.PHONY: deps configure run screenshots test test-sanitize fuzz bench symbols clean

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

# The desktop where a display is reachable; elsewhere the demo session runs
# headless through the scenario runner, on a fresh demo bank.
run: configure
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  cmake --build $(BUILD) --target obsdesk -j $(JOBS) && \
	  $(BUILD)/src/desktop/obsdesk --bank $(BUILD)/desktop-bank; \
	else \
	  cmake --build $(BUILD) --target obsdesk-cli -j $(JOBS) && \
	  rm -rf $(BUILD)/demo-bank && \
	  $(BUILD)/obsdesk-cli --bank $(BUILD)/demo-bank run examples/demo.scenario && \
	  echo && \
	  echo "No display is reachable here (neither DISPLAY nor WAYLAND_DISPLAY is set), so the demo" && \
	  echo "session ran headless. Run 'make run' on a machine with a desktop to open the program," && \
	  echo "or 'make screenshots' to see its screens as PNG files under $(BUILD)/screenshots/."; \
	fi

# The screens drawn on the offscreen platform, filled by examples/screenshots.scenario.
screenshots: configure
	cmake --build $(BUILD) --target obsdesk -j $(JOBS)
	rm -rf $(BUILD)/screenshots $(BUILD)/screenshot-bank
	QT_QPA_PLATFORM=offscreen $(BUILD)/src/desktop/obsdesk --bank $(BUILD)/screenshot-bank \
	  --screenshots $(BUILD)/screenshots examples/screenshots.scenario 2>&1 \
	  | grep -v -e 'does not support' -e XDG_RUNTIME_DIR; exit $${PIPESTATUS[0]}
	@ls $(BUILD)/screenshots

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
	cmake --build $(BUILD) --target obsdesk_bench obsdesk_desktop_bench -j $(JOBS)
	$(BUILD)/bench/obsdesk_bench
	QT_QPA_PLATFORM=offscreen $(BUILD)/bench/obsdesk_desktop_bench 2>&1 | grep -v 'does not support'

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
