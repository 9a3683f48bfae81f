# Entry points for a fresh Debian machine:
#   make demo    install what is missing, build, run the demo (PNG files in out/)
#   make test    install what is missing, build, run the whole test suite, then
#                again under AddressSanitizer and UndefinedBehaviorSanitizer
#   make bench   build and run the benchmarks with the ratio report
#   make fuzz    the contract sweep's random mode under the sanitizers for
#                FUZZ_SECONDS seconds (default 1800); FUZZ_SEED replays a run

DEB_PACKAGES := cmake make g++ pkg-config binutils ccache libgtest-dev libbenchmark-dev \
                libhwy-dev libopencv-core-dev libopencv-imgproc-dev libpng-dev python3
JOBS  ?= $(shell nproc)
BUILD ?= build
ASAN_BUILD ?= build-sanitize
CMAKE_COMMON := -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache
SANITIZER_ENV := ASAN_OPTIONS=allocator_may_return_null=1:detect_leaks=1 \
                 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

FUZZ_SECONDS ?= 1800

.PHONY: demo test bench fuzz deps build build-sanitize test-sanitize clean

demo: build
	$(BUILD)/examples/zeli_demo out

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)
	$(MAKE) test-sanitize

bench: deps
	cmake -S . -B $(BUILD) $(CMAKE_COMMON) -DZELI_BUILD_BENCH=ON
	cmake --build $(BUILD) -j $(JOBS) --target zeli_bench zeli_untouched_targets
	$(BUILD)/bench/zeli_bench --benchmark_repetitions=5 --benchmark_min_time=0.1 \
	    --benchmark_report_aggregates_only=false $(BENCH_ARGS)

fuzz: build-sanitize
	$(SANITIZER_ENV) OMP_WAIT_POLICY=passive ZELI_SWEEP_SECONDS=$(FUZZ_SECONDS) \
	    $(if $(FUZZ_SEED),ZELI_SWEEP_SEED=$(FUZZ_SEED)) \
	    $(ASAN_BUILD)/tests/test_contract --gtest_filter=ContractSweep.RandomArgumentSets

deps:
	@missing=$$(for p in $(DEB_PACKAGES); do \
	    dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q 'install ok installed' || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	    echo "Installing:" $$missing; \
	    SUDO=$$([ "$$(id -u)" = 0 ] || echo sudo); \
	    $$SUDO apt-get update -qq && \
	    DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y -qq --no-install-recommends $$missing; \
	fi

build: deps
	cmake -S . -B $(BUILD) $(CMAKE_COMMON) -DCMAKE_BUILD_TYPE=Release
	cmake --build $(BUILD) -j $(JOBS)

build-sanitize: deps
	cmake -S . -B $(ASAN_BUILD) $(CMAKE_COMMON) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DZELI_SANITIZE=address,undefined -DZELI_BUILD_EXAMPLES=OFF
	cmake --build $(ASAN_BUILD) -j $(JOBS)

test-sanitize: build-sanitize
	cd $(ASAN_BUILD) && $(SANITIZER_ENV) ctest --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) out
