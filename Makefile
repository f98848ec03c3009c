# Lumerina: make run · make test · make bench · make fuzz
# Each target first installs whatever Debian packages are missing, then builds with CMake
# in a build directory of its own.

# The one list of Debian packages the project needs.
PACKAGES := cmake make g++ pkg-config qt6-base-dev qt6-base-dev-tools libgl-dev \
            qt6-tools-dev qt6-l10n-tools \
            libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core xvfb xauth \
            clang libclang-rt-dev

JOBS ?= $(shell nproc 2>/dev/null || echo 2)
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
# ccache, where the machine has it, makes rebuilds of several checkouts cheap.
LAUNCHER := $(shell command -v ccache >/dev/null 2>&1 && echo -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
CMAKE_GEN := cmake -S . -Wno-dev $(LAUNCHER)

.PHONY: all deps run test bench fuzz capturas clean
all: run

deps:
	@missing=$$(for p in $(PACKAGES); do \
	    dpkg-query -W -f='$${Status}\n' $$p 2>/dev/null | grep -q '^install ok installed' || echo $$p; \
	  done); \
	if [ -n "$$missing" ]; then \
	  echo "Installing missing packages:" $$missing; \
	  $(SUDO) apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq --no-install-recommends $$missing; \
	fi

build/release/CMakeCache.txt: | deps
	$(CMAKE_GEN) -B build/release -DCMAKE_BUILD_TYPE=Release

build/debug/CMakeCache.txt: | deps
	$(CMAKE_GEN) -B build/debug -DCMAKE_BUILD_TYPE=Debug -DLUMERINA_SANITIZE=ON

run: deps build/release/CMakeCache.txt
	cmake --build build/release --target lumerina -j $(JOBS)
	./build/release/lumerina

test: deps build/debug/CMakeCache.txt
	cmake --build build/debug --target lumerina_tests -j $(JOBS)
	cd build/debug && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

bench: deps build/release/CMakeCache.txt
	cmake --build build/release --target lumerina_bench -j $(JOBS)
	QT_QPA_PLATFORM=offscreen ./build/release/lumerina_bench

FUZZ_SECONDS ?= 60
fuzz: deps
	CXX=clang++ CC=clang $(CMAKE_GEN) -B build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLUMERINA_FUZZ=ON
	cmake --build build/fuzz --target fuzz_interpretador -j $(JOBS)
	mkdir -p build/fuzz/corpus
	./build/fuzz/fuzz_interpretador -max_total_time=$(FUZZ_SECONDS) -max_len=64 build/fuzz/corpus

# Pictures of the pages for docs/, of every information page, of every IFS system, of
# the chaos game and transformations pages, and of every example of the sequences page.
capturas: deps build/release/CMakeCache.txt
	cmake --build build/release --target lumerina_capturas -j $(JOBS)
	./build/release/lumerina_capturas docs docs
	./build/release/lumerina_capturas paginas build/paginas
	./build/release/lumerina_capturas ifs build/ifs
	./build/release/lumerina_capturas lsistemas build/lsistemas
	./build/release/lumerina_capturas julia build/julia
	./build/release/lumerina_capturas caos build/caos
	./build/release/lumerina_capturas sucessoes build/sucessoes
	./build/release/lumerina_capturas orbitas-dimensao build/orbitas-dimensao

clean:
	rm -rf build
