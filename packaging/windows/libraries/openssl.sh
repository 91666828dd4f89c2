# libcrypto alone, without what the store never calls. What Debian adds to it are settings of its own.
fetch_sources openssl 3.0.22-1~deb12u2 --tar-only
mkdir source build
tar xf openssl_*.orig.tar.gz -C source --strip-components 1
cd build
../source/Configure mingw64 --cross-compile-prefix=x86_64-w64-mingw32- CC=gcc-posix \
  no-shared no-tests no-dso no-engine no-module no-legacy no-sock no-ssl no-tls no-dtls no-cms no-cmp \
  no-ct no-ocsp no-ts no-srp no-ec2m no-sm2 no-sm3 no-sm4 no-camellia no-aria no-seed no-idea no-cast \
  no-bf no-rc2 no-rc4 no-rmd160 no-whirlpool no-mdc2 no-md4 no-gost no-ui-console no-comp no-srtp \
  no-psk --prefix="$prefix" --libdir=lib
make -j "$jobs" build_generated libcrypto.a
mkdir -p "$prefix/lib" "$prefix/include/openssl" "$prefix/licences"
cp ../source/LICENSE.txt "$prefix/licences/openssl"
cp libcrypto.a "$prefix/lib"
cp ../source/include/openssl/*.h include/openssl/*.h "$prefix/include/openssl"
