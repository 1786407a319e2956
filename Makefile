# Thin wrappers over the CMake presets; CMake owns the build.
.PHONY: all deps run test tour bench package clean

all: deps
	cmake --preset dev >/dev/null
	cmake --build --preset dev

deps:
	@scripts/install-deps

run: all
	@scripts/run-app

test: deps
	cmake --preset asan >/dev/null
	cmake --build --preset asan
	ctest --preset asan

tour: all
	@scripts/tour build/tour

bench: deps
	cmake --preset release >/dev/null
	cmake --build --preset release --target platterbox-bench
	build/release/tools/bench/platterbox-bench build/bench

package: deps
	cmake --preset release >/dev/null
	cmake --build --preset release --target platterbox-app platterbox platterbox-manpage
	cpack --preset release

clean:
	rm -rf build
