# A thin front for CMake. `make` builds, `make demo` runs the demo programs,
# `make check` runs the whole test suite, `make install PREFIX=...` installs,
# `make bench` builds and runs the benchmarks, `make accuracy-doc` rewrites
# docs/accuracy.md from the accuracy tests.
BUILD ?= build
PREFIX ?= /usr/local
JOBS ?= $(shell nproc)

BUILD_PKGS = g++ gfortran cmake ninja-build python3 pkg-config
CHECK_PKGS = $(BUILD_PKGS) libgtest-dev
BENCH_PKGS = $(BUILD_PKGS) libbenchmark-dev libgsl-dev libboost-math-dev

.PHONY: all build demo check install bench accuracy-doc clean deps-build deps-check deps-bench

all: build

deps-build:
	@sh tools/ensure-deps.sh $(BUILD_PKGS)
deps-check:
	@sh tools/ensure-deps.sh $(CHECK_PKGS)
deps-bench:
	@sh tools/ensure-deps.sh $(BENCH_PKGS)

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_INSTALL_PREFIX=$(PREFIX)

build: deps-build $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

demo: build
	cmake --build $(BUILD) --target demos -j $(JOBS)
	@echo "=== Fortran demo ==="
	@$(BUILD)/examples/demo_fortran
	@echo "=== C demo ==="
	@$(BUILD)/examples/demo_c

check: deps-check $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)
	cd $(BUILD) && ctest --output-on-failure --timeout 600 -j $(JOBS)

install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

bench: deps-bench
	cmake -S . -B $(BUILD) -G Ninja -DZEB_BENCH=ON
	cmake --build $(BUILD) -j $(JOBS)
	for b in $(BUILD)/bench/bench_*; do echo "=== $$b"; $$b || exit 1; done

accuracy-doc: check
	sh tools/accuracy-doc.sh $(BUILD)

clean:
	rm -rf $(BUILD)
