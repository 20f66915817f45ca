# The two commands of the contract are "make examples" and "make check"; both set up
# what they need first (missing Debian packages are installed when run as root).
BUILD   ?= build
JOBS    ?= $(shell nproc)
PREFIX  ?= /usr/local
CMAKE   ?= cmake
GEN     ?= -G Ninja

.PHONY: all deps lib check test check-asan check-tsan examples bench install windows windows-check \
        check-windows-if-available clean

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
check: test check-asan check-tsan check-windows-if-available

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

# The Windows DLL, cross-built with mingw-w64; its whole test suite, examples and client
# programs under Wine in a fresh prefix, compared where it matters with the Linux build.
WINBUILD ?= $(BUILD)-windows

windows:
	sh tools/install-deps.sh windows
	$(CMAKE) -S . -B $(WINBUILD) $(GEN) -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZOR_NATIVE_BUILD_DIR=$(abspath $(BUILD))
	$(CMAKE) --build $(WINBUILD) -j $(JOBS)

windows-check: windows lib
	tools/wine_run.sh $(abspath $(WINBUILD))/wine $(abspath $(WINBUILD)) --setup
	ctest --test-dir $(WINBUILD) --output-on-failure -j $(JOBS); rc=$$?; \
	  WINEPREFIX=$(abspath $(WINBUILD))/wine wineserver -k 2>/dev/null; exit $$rc

# Part of "make check" wherever the cross toolchains and Wine are installed or installable.
check-windows-if-available:
	@if sh tools/install-deps.sh windows; then $(MAKE) windows-check; \
	  else echo "Windows check skipped: cross toolchains or Wine not installable." >&2; fi

clean:
	rm -rf $(BUILD) $(BUILD)-asan $(BUILD)-tsan $(BUILD)-bench $(BUILD)-windows
