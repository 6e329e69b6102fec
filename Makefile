# The everyday commands; each one first sets up what is missing. CMake presets do the work (see
# CMakePresets.json and docs/building.md).

SHELL := /bin/bash
# Another Python in PATH does not have the modules that come as Debian's packages.
PYTHON := /usr/bin/python3 -B
.DEFAULT_GOAL := help
.PHONY: help setup setup-packages setup-qt setup-curl setup-wine configure build build-demo run demo screenshots test stress package bench fuzz lint format clean soak windows-kit

help: ## list the targets
	@awk -F ':.*## ' '/^[a-z-]+:.*## / { printf "  make %-11s %s\n", $$1, $$2 }' $(MAKEFILE_LIST)

setup: setup-packages ## install what is missing; build Qt and libcurl for Windows once
	@+$(MAKE) --no-print-directory -j3 setup-qt setup-curl setup-wine

setup-packages:
	@tools/setup/packages.sh

setup-qt:
	@tools/setup/qt.sh

setup-curl:
	@tools/setup/curl.sh

setup-wine:
	@tools/setup/wine_template.sh

configure: setup
	@tools/setup/configure.sh windows-cross

build: configure ## build build/windows/Uninstall.exe
	@cmake --build --preset windows-cross --target Uninstall

# The program, the sample suite and what both need under Wine; no tests.
build-demo: configure
	@cmake --build --preset windows-cross --target Uninstall sample_suite wine_launcher trust_root

run: build-demo ## use the program on a sample suite: in a window, or as "make demo" without a display
	@if [[ -n "$$DISPLAY" ]]; then $(PYTHON) -m demo.by_hand; else $(PYTHON) -m demo.by_itself; fi

demo: build-demo ## drive the program through a full run; transcript, screenshots in build/demo/
	@$(PYTHON) -m demo.by_itself

screenshots: configure ## picture every window in every language: contact sheets in build/screenshots/
	@cmake --build --preset windows-cross --target wine_launcher
	@tools/screenshots/contact_sheets.sh

test: setup ## build and run every test, host and Windows
	@tools/run_tests.sh

soak: setup ## run every test SOAK_RUNS times (10), count failures of each
	@tools/soak.sh

windows-kit: configure ## pack the Windows tests for a real Windows: ZIP in build/windows-kit/
	@cmake --build --preset windows-cross --target windows_kit

stress: configure ## run the long variants of the tests (minutes)
	@cmake --build --preset windows-cross
	@ctest --preset windows-cross --no-tests=error -L stress

package: build ## pack the program, its notices and sums: ZIPs in build/package/
	@tools/package/package

bench: setup ## measure the logic, start-up, size, runs, messages (docs/performance.md)
	@bench/host/run.sh
	@bench/windows.sh startup
	@bench/windows.sh run
	@bench/windows.sh ipc

fuzz: ## run each fuzz target for FUZZ_SECONDS (60) under sanitizers
	@tools/fuzz/run.sh

lint: setup ## check format, scripts, spelling; cppcheck, clang-tidy, clang's warnings
	@tools/setup/packages.sh lint bench
	@tools/lint.sh

format: ## format all C++ sources
	@tools/setup/packages.sh lint
	@git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format -i

clean: ## remove build/ (Qt, libcurl and the Wine template stay in the cache)
	@rm -rf build
