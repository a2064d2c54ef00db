# Forwards to CMake; every target is a command that a user may call. `make help` lists them.
SHELL := /bin/bash
.DEFAULT_GOAL := help
JOBS ?= $(shell nproc)
export CTEST_PARALLEL_LEVEL ?= $(JOBS)
# Set to an empty value to leave the machine's packages alone.
INSTALL ?= yes
PREFIX ?= /usr/local
# Of the long runs.
SOAK_SECONDS ?= 1800
SOAK_CALLS ?= 10000000
# Of each fuzz target by check-fuzz; of processor time altogether by fuzz-soak.
check-fuzz: FUZZ_SECONDS ?= 10
fuzz-soak: FUZZ_SECONDS ?= 14400
# What `make mutation` draws; more of its options in ARGS.
COUNT ?= 500
SEED ?= 1
BUILD := build/dev

# packages(SET): installs what is missing of one of the package sets
define packages
@if [ -n "$(INSTALL)" ]; then tools/install_packages.sh $(1); fi
endef

define build
cmake --preset $(1) --log-level=WARNING >/dev/null
cmake --build --preset $(1) -j $(JOBS) $(2)
endef

# The build that is checked as what is installed.
define interface
$(call packages,build check)
$(call build,interface)
endef

.PHONY: help run test check bench bench-short bench-check regenerate regenerate-abi install packages format clean
.PHONY: check-format check-abi check-install check-hardening check-lint check-packages
.PHONY: check-clang check-asan check-tsan check-fuzz coverage
.PHONY: soak soak-document soak-memory soak-threads fuzz-soak mutation

help: ## this list
	@grep -hE '^[a-z-]+:.*##' $(MAKEFILE_LIST) | sed -E 's/:[^#]*## /\t/' | expand -t 18

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

# The fast ones first.
check: check-format check-abi check-hardening check-install bench-short ## interface, speed, second compiler, sanitizers
check: check-clang check-asan check-tsan check-fuzz

check-abi: ## exported interface and layouts of both libraries against the committed description
	$(call interface)
	tools/check_abi.sh build/interface

check-hardening: ## protections of the libraries and the command, read from their ELF files
	$(call interface)
	tools/check_hardening.sh build/interface

check-install: ## C11 and C++20 clients of an installed library, by find_package and by pkg-config
	$(call interface)
	tools/check_install.sh build/interface

check-lint: ## clang-tidy and cppcheck without findings over libraries and tools
	$(call packages,build check)
	cmake --preset interface --log-level=WARNING >/dev/null
	tools/check_lint.sh build/interface $(JOBS)

check-packages: packages ## packages installed in a fresh minimal system, and a first look from there (root, network)
	tools/check_packages.sh build/packages

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

check-fuzz: ## two minutes of fuzzing, starting from the kept corpus
	$(call packages,build check)
	$(call build,fuzz,--target fuzz_targets)
	tools/fuzz_smoke.sh build/fuzz/fuzz $(FUZZ_SECONDS)

soak: check-lint coverage check-packages bench soak-document soak-threads soak-memory fuzz-soak mutation ## everything that takes longer than continuous integration has time for

soak-threads: ## ten million calls of eight threads under the thread sanitizer
	$(call packages,build test check)
	$(call build,tsan,--target threads_stress_test)
	INV_STRESS_CALLS=$(SOAK_CALLS) build/tsan/tests/stress/threads_stress_test

soak-document: ## documents that are one attribute of as many octets as a file may have (9 GB of memory)
	$(call packages,build test)
	$(call build,dev,--target hostile_test)
	set -o pipefail; INV_SOAK=1 $(BUILD)/tests/hostile/hostile_test --gtest_filter='*as_long_as_may_be*' | tee build/soak-document.txt
	grep -q '^\[  PASSED  \] 1 test' build/soak-document.txt
	! grep -q SKIPPED build/soak-document.txt

soak-memory: ## half an hour of opening, asking and closing in one process: memory and files stay as they were
	$(call packages,build test)
	$(call build,dev,--target inv_soak)
	$(BUILD)/tests/stress/inv_soak --seconds $(SOAK_SECONDS)

fuzz-soak: ## hours of fuzzing, one target after the other: build/fuzz-soak.txt, one line for each ten minutes
	$(call packages,build check)
	$(call build,fuzz,--target fuzz_targets)
	tools/fuzz_soak.sh build/fuzz/fuzz $(FUZZ_SECONDS)

mutation: ## tests against a library with one fault at a time; fails when under 90 % are found, or one is missed unexplained
	$(call packages,build test mutation)
	tools/mutation/mutate.py --count $(COUNT) --seed $(SEED) --jobs $(JOBS) $(ARGS)

check-format: ## formatting of all sources
	$(call packages,check)
	tools/check_format.sh

coverage: ## lines and branches of library and platform that the tests run; fails below 98 % and 95 %
	$(call packages,build test coverage)
	$(call build,coverage)
	tools/coverage.sh build/coverage $(JOBS)

bench: ## speed and memory against other libraries; writes bench/RESULTS.md, fails when a limit is missed
	$(call packages,build bench)
	$(call build,bench,--target inv_bench)
	build/bench/bench/inv_bench --results bench/RESULTS.md

bench-short: ## the same in a minute; fails when a ratio is over twice its target
	$(call packages,build bench)
	$(call build,bench,--target inv_bench)
	build/bench/bench/inv_bench --short

bench-check: ## invctl check beside xmllint's validation of a faulty document of 10,000 entities
	$(call packages,build test bench)
	$(call build,bench,--target invctl inv_generate)
	bench/check_against_xmllint.sh build/bench

regenerate: ## rewrite the generated sources and documents
	$(call packages,build test)
	$(call build,dev,--target schemac schemaman)
	$(BUILD)/tools/schemac/schemac schema/OrvelianInventory.xsd --source-dir shared_pkg/common/schema/parser/src --header-dir shared_pkg/common/schema/parser/include/inv_parser
	tools/fuzz_dictionary.py schema/OrvelianInventory.xsd > fuzz/inventory.dict
	tools/trace_docs.sh shared_pkg/common/schema/parser/src/frame/trace_messages.def > docs/trace-messages.md
	$(BUILD)/tools/schemaman/schemaman schema/OrvelianInventory.xsd > docs/man/inventory.5
	$(call build,dev,--target invctl)
	$(BUILD)/tools/invctl/invctl manual > docs/man/invctl.1
	$(BUILD)/tools/invctl/invctl json --schema > schema/invctl-json.schema.json
	tests/cli/console_blocks.py docs/tutorial.md --commands $(BUILD)/tools/invctl --folder inventories --fix

regenerate-abi: ## rewrite the committed description of the interface, after a change on purpose
	$(call interface)
	tools/check_abi.sh --regenerate build/interface

packages: ## the Debian packages, in build/packages
	$(call packages,build package)
	tools/build_packages.sh build/packages

install: ## install library, platform, command, manual and sample inventories (DESTDIR, PREFIX)
	$(call packages,build)
	cmake --preset release -DCMAKE_INSTALL_PREFIX=$(PREFIX) --log-level=WARNING >/dev/null
	cmake --build --preset release -j $(JOBS)
	cmake --install build/release

format: ## format all sources
	tools/check_format.sh --fix

clean: ## remove every build
	rm -rf build
