# The two commands of the contract are "make examples" and "make check"; both set up
# what they need first (missing Debian packages are installed when run as root).
BUILD   ?= build
JOBS    ?= $(shell nproc)
PREFIX  ?= /usr/local
CMAKE   ?= cmake
GEN     ?= -G Ninja

.PHONY: all deps lib check test check-asan check-tsan examples bench install windows windows-check clean

all: lib

deps:
	@sh tools/install-deps.sh

$(BUILD)/CMakeCache.txt: | deps
	$(CMAKE) -S . -B $(BUILD) $(GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo

lib: deps $(BUILD)/CMakeCache.txt
	$(CMAKE) --build $(BUILD) -j $(JOBS)

# Example programs against their expected outputs.
examples: lib
	ctest --test-dir $(BUILD) -L examples --output-on-failure -j $(JOBS)

# The whole suite, then again under AddressSanitizer + UndefinedBehaviorSanitizer, and
# the concurrency tests under ThreadSanitizer.
check: test check-asan check-tsan

test: lib
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

check-asan: deps
	$(CMAKE) -S . -B $(BUILD)-asan $(GEN) -DCMAKE_BUILD_TYPE=Debug -DZOR_SANITIZE=address,undefined
	$(CMAKE) --build $(BUILD)-asan -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --test-dir $(BUILD)-asan --output-on-failure -j $(JOBS) -LE nosanitize

check-tsan: deps
	$(CMAKE) -S . -B $(BUILD)-tsan $(GEN) -DCMAKE_BUILD_TYPE=Debug -DZOR_SANITIZE=thread \
	  -DZOR_BUILD_EXAMPLES=OFF
	$(CMAKE) --build $(BUILD)-tsan -j $(JOBS)
	TSAN_OPTIONS=halt_on_error=1 ctest --test-dir $(BUILD)-tsan --output-on-failure -L concurrency

bench: deps
	$(CMAKE) -S . -B $(BUILD)-bench $(GEN) -DCMAKE_BUILD_TYPE=Release -DZOR_BUILD_BENCH=ON \
	  -DZOR_BUILD_TESTS=OFF -DZOR_BUILD_EXAMPLES=OFF
	$(CMAKE) --build $(BUILD)-bench -j $(JOBS)
	$(CMAKE) --build $(BUILD)-bench --target run_bench

install: lib
	$(CMAKE) --install $(BUILD) --prefix $(PREFIX)

windows:
	@echo "The Windows build is not available yet." >&2; exit 1

windows-check: windows

clean:
	rm -rf $(BUILD) $(BUILD)-asan $(BUILD)-tsan $(BUILD)-bench $(BUILD)-windows
