#include "store/cipher_key.h"

#include <openssl/evp.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <span>

#include "base/run_time_error.h"

namespace survey {
namespace {

// The derivation of file format 3. Every handed-in file was made with it: never change it.
constexpr int kIterations = 64000;
constexpr int kKeyBytes = 32;
constexpr int kHeadBytes = 48;
constexpr std::size_t kReservedBytes = 48;  // at the end of a page: starting block, checksum

using Head = std::array<unsigned char, kHeadBytes>;

std::string DerivedKey(std::string_view password, const Salt& salt) {
  std::array<unsigned char, kKeyBytes> key;
  if (PKCS5_PBKDF2_HMAC_SHA1(password.data(), static_cast<int>(password.size()), salt.data(),
                             kSaltBytes, kIterations, kKeyBytes, key.data()) != 1) {
    constexpr double kOutOfMemory = 7;  // the arguments being right, nothing else can fail
    throw RunTimeError(kOutOfMemory, "The key of the database cannot be derived");
  }
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  std::string raw_key = "x'";
  for (const unsigned char byte : key) {
    raw_key += kHexDigits[byte >> 4];
    raw_key += kHexDigits[byte & 15];
  }
  return raw_key + "'";
}

std::array<unsigned char, kKeyBytes> KeyBytes(std::string_view raw_key) {
  std::array<unsigned char, kKeyBytes> key{};
  const char* digits = raw_key.data() + 2;  // behind x'
  for (unsigned char& byte : key) {
    std::from_chars(digits, digits + 2, byte, 16);
    digits += 2;
  }
  return key;
}

// The head of a file, from behind the salt on. The page ends in the block that starts the chain.
std::optional<Head> DecipheredHead(std::string_view first_page, std::string_view raw_key) {
  const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX*)> context(EVP_CIPHER_CTX_new(),
                                                                           EVP_CIPHER_CTX_free);
  const auto* bytes = reinterpret_cast<const unsigned char*>(first_page.data());
  const unsigned char* start = bytes + kDatabasePageBytes - kReservedBytes;
  Head head{};
  int size = 0;
  if (!context ||
      EVP_DecryptInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, KeyBytes(raw_key).data(),
                         start) != 1 ||
      EVP_CIPHER_CTX_set_padding(context.get(), 0) != 1 ||
      EVP_DecryptUpdate(context.get(), head.data(), &size, bytes + kSaltBytes, kHeadBytes) != 1) {
    return std::nullopt;
  }
  return head;
}

}  // namespace

std::optional<std::uint32_t> SaveCount(std::string_view first_page, std::string_view raw_key) {
  if (first_page.size() != kDatabasePageBytes) return std::nullopt;
  const std::optional<Head> head = DecipheredHead(first_page, raw_key);
  // What every file of the format has: size of a page, the reserve at its end, fixed figures.
  constexpr unsigned char kPageSize[] = {kDatabasePageBytes >> 8, kDatabasePageBytes & 0xff};
  constexpr unsigned char kFixed[] = {kReservedBytes, 64, 32, 32};
  constexpr std::size_t kFixedAt = 4;
  constexpr std::size_t kCountAt = 44;
  if (!head || !std::ranges::equal(kPageSize, std::span(*head).first(std::size(kPageSize))) ||
      !std::ranges::equal(kFixed, std::span(*head).subspan(kFixedAt, std::size(kFixed)))) {
    return std::nullopt;
  }
  std::uint32_t count = 0;
  for (const unsigned char byte : std::span(*head).subspan(kCountAt, sizeof count)) {
    count = count << 8 | byte;
  }
  return count;
}

bool KeepsLog(std::string_view first_page, std::string_view raw_key) {
  constexpr std::size_t kVersionsAt = 2;  // of the formats for writing and for reading
  constexpr unsigned char kJournal = 1;
  if (!SaveCount(first_page, raw_key)) return false;
  const std::optional<Head> head = DecipheredHead(first_page, raw_key);
  return head && ((*head)[kVersionsAt] != kJournal || (*head)[kVersionsAt + 1] != kJournal);
}

const std::string& CipherKeys::RawKey(std::string_view password, const Salt& salt) {
  if (raw_key_.empty() || salt != salt_ || password != password_) {
    raw_key_ = DerivedKey(password, salt);
    password_ = password;
    salt_ = salt;
  }
  return raw_key_;
}

}  // namespace survey
