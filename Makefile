# Forwards to CMake; every target is a command that a user may call. `make help` lists them.
SHELL := /bin/bash
.DEFAULT_GOAL := help
JOBS ?= $(shell nproc)
export CTEST_PARALLEL_LEVEL ?= $(JOBS)
# Set to an empty value to leave the machine's packages alone.
INSTALL ?= yes
# For each fuzz target.
FUZZ_SECONDS ?= 20
BUILD := build/dev

# packages(SET): installs what is missing of one of the package sets
define packages
@if [ -n "$(INSTALL)" ]; then tools/install_packages.sh $(1); fi
endef

define build
cmake --preset $(1) --log-level=WARNING >/dev/null
cmake --build --preset $(1) -j $(JOBS) $(2)
endef

.PHONY: help run test check bench bench-short regenerate install format clean
.PHONY: check-clang check-asan check-tsan check-fuzz check-format

help: ## this list
	@grep -hE '^[a-z-]+:.*##' $(MAKEFILE_LIST) | sed -E 's/:[^#]*## /\t/' | expand -t 14

run: ## install what is missing, build, print a sample line card's tree and the way to a sensor
	$(call packages,build)
	cmake --preset release --log-level=WARNING >/dev/null
	cmake --build --preset release -j $(JOBS) --target invctl lib_inv_parser
	build/release/tools/invctl/invctl tree inventories/line_card_48.xml
	build/release/tools/invctl/invctl path inventories/line_card_48.xml "Slice 0 inlet temperature"

test: ## one build and its tests
	$(call packages,build test)
	$(call build,dev)
	ctest --preset dev

check: check-format check-clang check-asan check-tsan check-fuzz ## second compiler, sanitizers, the slow rest

check-clang: ## build and all tests with the second compiler
	$(call packages,build test check)
	$(call build,clang)
	ctest --preset clang

check-asan: ## all tests under the address and undefined-behaviour sanitizers
	$(call packages,build test check)
	$(call build,asan-ubsan)
	ctest --preset asan-ubsan

check-tsan: ## the locked entry points under the thread sanitizer
	$(call packages,build test check)
	$(call build,tsan,--target tsan_tests)
	ctest --preset tsan -L threads

check-fuzz: ## a minute of fuzzing, starting from the kept corpus
	$(call packages,build check)
	$(call build,fuzz,--target fuzz_document fuzz_open fuzz_catalogue fuzz_roads)
	tools/fuzz_smoke.sh build/fuzz/fuzz $(FUZZ_SECONDS)

check-format: ## formatting of all sources
	$(call packages,check)
	tools/check_format.sh

bench: ## speed and memory against other libraries; writes bench/RESULTS.md, fails when a limit is missed
	$(call packages,build bench)
	$(call build,bench,--target inv_bench)
	build/bench/bench/inv_bench --results bench/RESULTS.md

bench-short: ## the same in a minute; fails when a ratio is over twice its target
	$(call packages,build bench)
	$(call build,bench,--target inv_bench)
	build/bench/bench/inv_bench --short

regenerate: ## rewrite the generated sources and documents
	$(call packages,build test)
	$(call build,dev,--target schemac)
	$(BUILD)/tools/schemac/schemac schema/OrvelianInventory.xsd --source-dir shared_pkg/common/schema/parser/src --header-dir shared_pkg/common/schema/parser/include/inv_parser
	tools/trace_docs.sh > docs/trace-messages.md

install: ## install library, platform, command and sample inventories (DESTDIR, PREFIX)
	$(call packages,build)
	cmake --preset release $(if $(PREFIX),-DCMAKE_INSTALL_PREFIX=$(PREFIX)) --log-level=WARNING >/dev/null
	cmake --build --preset release -j $(JOBS)
	cmake --install build/release

format: ## format all sources
	tools/check_format.sh --fix

clean: ## remove every build
	rm -rf build
