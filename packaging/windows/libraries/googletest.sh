# For the tests alone; the sources are those of the installed package.
cmake -G Ninja -S /usr/src/googletest -B build -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
  -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix"
cmake --build build -j "$jobs"
cmake --install build
