#ifndef STORE_CIPHER_KEY_H_
#define STORE_CIPHER_KEY_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace survey {

inline constexpr int kSaltBytes = 16;
inline constexpr std::size_t kDatabasePageBytes = 1024;  // of file format 3
using Salt = std::array<unsigned char, kSaltBytes>;

// Deriving a key from the password costs some 30 ms, and a page opens up to four connections to
// the same file. So the key of the last file is kept, told by the file's salt: a replaced file
// brings another salt and is derived anew.
class CipherKeys {
 public:
  // The raw key of a file with that salt, as the engine takes it: x'...' with 64 hex digits.
  // The reference holds until the next call.
  const std::string& RawKey(std::string_view password, const Salt& salt);

 private:
  Salt salt_{};
  std::string password_;
  std::string raw_key_;
};

// How many saves a file has seen, from its first page as it lies there. Nothing when this is no
// whole first page under that key.
std::optional<std::uint32_t> SaveCount(std::string_view first_page, std::string_view raw_key);
// Whether the database keeps a write-ahead log beside it, which no survey database does. False when
// this is no whole first page under that key.
bool KeepsLog(std::string_view first_page, std::string_view raw_key);
// Begins anew behind the largest number that a database can hold there.
inline std::uint32_t NextSaveCount(std::uint32_t count) { return (count + 1) & 0x7fffffff; }

}  // namespace survey

#endif  // STORE_CIPHER_KEY_H_
