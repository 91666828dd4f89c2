# The engine in one C file, which a script of its sources in Tcl puts together here; then compiled for
# Windows with the options of Debian's package. The version in the .pc file counts as SQLite's does.
fetch_sources sqlcipher 4.6.1-2~bpo12+1 --tar-only
mkdir source
tar xf sqlcipher_*.orig.tar.gz -C source --strip-components 1
(cd source && ./configure --enable-tempstore=yes --disable-tcl CFLAGS=-DSQLITE_HAS_CODEC \
  LDFLAGS=-lcrypto && make sqlite3.c)

x86_64-w64-mingw32-gcc-posix -O2 -DNDEBUG -fno-strict-aliasing -w -c source/sqlite3.c -o sqlite3.o \
  -I "$(library_prefix openssl)/include" -DSQLITE_HAS_CODEC -DSQLCIPHER_CRYPTO_OPENSSL \
  -DSQLITE_TEMP_STORE=2 -DSQLITE_THREADSAFE=1 -DSQLITE_SECURE_DELETE -DSQLITE_ENABLE_COLUMN_METADATA \
  -DSQLITE_ENABLE_FTS3 -DSQLITE_ENABLE_RTREE=1 -DSQLITE_SOUNDEX=1 -DSQLITE_ENABLE_UNLOCK_NOTIFY \
  -DSQLITE_OMIT_LOOKASIDE=1 -DSQLITE_MAX_SCHEMA_RETRY=25
mkdir -p "$prefix/lib/pkgconfig" "$prefix/include/sqlcipher" "$prefix/licences"
cp source/LICENSE.md "$prefix/licences/sqlcipher"
x86_64-w64-mingw32-ar rcs "$prefix/lib/libsqlcipher.a" sqlite3.o
cp source/sqlite3.h "$prefix/include/sqlcipher"
cat > "$prefix/lib/pkgconfig/sqlcipher.pc" << end
prefix=$(library_prefix sqlcipher)
Name: SQLCipher
Description: SQLite with encryption
Version: $(cut -d ' ' -f 1 source/VERSION)
Libs: -L\${prefix}/lib -lsqlcipher -L$(library_prefix openssl)/lib -lcrypto -lws2_32 -lcrypt32 -lbcrypt
Cflags: -I\${prefix}/include/sqlcipher
end
