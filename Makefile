# The front door: everything that is done with the project from a shell. Each target installs the
# packages that it needs and that are missing (see packaging/debian-packages.txt).

PACKAGES := packaging/install-packages
LOGIC    := platform core scan inventory reports dialogs ui app/cli
SOURCES  := git ls-files '*.h' '*.cpp'

# Most tests wait for a program or a display half of their time.
JOBS     := $(shell expr 2 '*' "$$(nproc)")
CTEST    := tests/in-memory ctest -j $(JOBS)
# What changed since then is linted.
MARLO_BASE ?= HEAD~1

.PHONY: help run build test check sanitized test-sanitized test-fuzzers test-long test-asan-gui \
	test-windows soak fuzz fuzzers coverage bench bench-counts bench-windows package test-package \
	package-windows screenshots pictures format lint clean

help: ## List the targets
	@sed -n 's/^\([a-z-]*\):.*## /  make \1\t/p' $(MAKEFILE_LIST) | expand -t 24

run: ## Build Marlo and start it; without a display, show the samples in the terminal
	@$(PACKAGES) build
	@cmake --preset normal --log-level=WARNING
	@cmake --build --preset normal --target marlo marlo-cli marlo-samples
	@if [ -n "$${DISPLAY-}$${WAYLAND_DISPLAY-}" ] && build/normal/marlo/marlo; then :; \
	else tools/show-samples build/normal; fi

build:
	@$(PACKAGES) build
	@cmake --preset normal --log-level=WARNING
	@cmake --build --preset normal

test: ## Build and run every test of the program and its window, or those of one ROOM, such as scan
	@$(PACKAGES) build test
	@cmake --preset normal --log-level=WARNING
	@cmake --build --preset normal $(if $(ROOM),--target $(ROOM)_tests)
	$(CTEST) --preset normal $(if $(ROOM),-L '^(unit-)?$(ROOM)$$')

check: lint test-sanitized test-fuzzers test-long test-package test-windows ## Run all other tests, and the linter on what changed

test-sanitized: sanitized
	$(CTEST) --preset sanitizer

test-fuzzers: fuzzers
	$(CTEST) --preset fuzz

test-long: build
	ctest --preset long

sanitized:
	@$(PACKAGES) build test
	@cmake --preset sanitizer --log-level=WARNING
	@cmake --build --preset sanitizer

test-asan-gui: ## Run the tests of the window with AddressSanitizer and UndefinedBehaviorSanitizer
	@$(PACKAGES) build
	@cmake --preset sanitizer --log-level=WARNING
	@cmake --build --preset asan-gui
	$(CTEST) --preset asan-gui

soak: ## Let a random user at the window for two minutes, or for SECONDS, with a SEED if given
	@$(PACKAGES) build
	@cmake --preset sanitizer --log-level=WARNING
	@cmake --build --preset sanitizer --target marlo-soak
	ASAN_OPTIONS=detect_leaks=0 G_SLICE=always-malloc tests/gui/with-display \
		build/sanitizer/tests/marlo-soak $(or $(SECONDS),120) $(SEED)

test-windows: ## Build for Windows and run every test under Wine
	@$(PACKAGES) build windows windows64
	@cmake --preset normal --log-level=WARNING
	@cmake --build --preset normal --target marlo-cli marlo-samples
	@packaging/windows/configure windows64
	@cmake --build --preset windows64
	tests/windows/with-wine ctest --preset windows64 -j "$$(nproc)" --repeat after-timeout:2
	@tests/windows/run-32-bit

fuzzers:
	@$(PACKAGES) build fuzz
	@cmake --preset fuzz --log-level=WARNING
	@cmake --build --preset fuzz

fuzz: fuzzers ## Run each fuzzer for a minute, or for SECONDS
	tests/in-memory fuzz/run build/fuzz $(or $(SECONDS),60)

coverage: ## Tell which lines of the logic no test runs; fails below 97 %
	@$(PACKAGES) build test coverage
	@cmake --preset coverage --log-level=WARNING
	@cmake --build --preset coverage
	@find build/coverage -name '*.gcda' -delete
	@umask 0; build/coverage/marlo/marlo-cli --version >/dev/null  # so that any user may count
	$(CTEST) --preset coverage
	@gcovr --root . --object-directory build/coverage --exclude-unreachable-branches \
		$(foreach room,$(LOGIC),--filter '$(room)/') --filter 'app/[^/]*$$' --sort-percentage --fail-under-line 97 \
		--html-details build/coverage/lines.html --txt -

bench: ## Measure speed against baselines from the same run
	@$(PACKAGES) build bench
	@cmake --preset release --log-level=WARNING
	@cmake --build --preset release
	@failed=0; \
	build/release/bench/marlo-bench --benchmark_enable_random_interleaving=true || failed=1; \
	tests/gui/with-display build/release/bench/marlo-bench-window \
		--benchmark_enable_random_interleaving=true || failed=1; \
	exit $$failed

bench-counts: ## Count the instructions of the hot paths, and compare with those in bench/counts.txt
	@$(PACKAGES) build bench
	@cmake --preset release --log-level=WARNING
	@cmake --build --preset release --target marlo-counts
	@bench/count build/release

bench-windows: ## Measure the extraction of the Windows program under Wine
	@$(PACKAGES) build windows windows64
	@packaging/windows/configure windows64 -D MARLO_BENCHMARKS=ON
	@cmake --build --preset windows64 --target marlo-extraction-speed
	@tests/windows/with-wine wine build/windows64/bench/marlo-extraction-speed.exe

package: ## Pack the programs for Linux, as a .deb and as an archive that runs where it is unpacked
	@$(PACKAGES) build package
	@cmake --preset package --log-level=WARNING
	@cmake --build --preset package
	@packaging/make-package build/package

test-package: package ## Look at the packages for Linux, and install, use and remove one in a system of its own
	@$(PACKAGES) test-package
	@packaging/test-package build/package

package-windows: ## Pack the programs for Windows, ready to be unzipped and run
	@$(PACKAGES) build windows windows32 windows64 windows-package
	@for preset in windows32 windows64; do \
		packaging/windows/configure $$preset && \
		cmake --build --preset $$preset --target marlo marlo-cli && \
		packaging/windows/make-package build/$$preset || exit 1; \
	done

screenshots: ## Save pictures of every window and dialog in build/normal/screenshots
	@$(PACKAGES) build pictures
	@cmake --preset normal --log-level=WARNING
	@cmake --build --preset normal --target marlo marlo-cli marlo-samples marlo-screenshots
	@tools/make-screenshots build/normal

pictures: ## Make the program's pictures from their sources
	@$(PACKAGES) pictures
	@assets/make-pictures

format: ## Put all sources into the project's format
	@$(PACKAGES) lint
	@$(SOURCES) | xargs clang-format -i

lint: ## Check the format, and with clang-tidy what changed since MARLO_BASE; "make lint MARLO_BASE=" checks all
	@$(PACKAGES) build lint bench fuzz
	@cmake --preset lint --log-level=WARNING
	@tools/lint build/lint "$(MARLO_BASE)"

clean: ## Delete everything that was built
	rm -rf build
