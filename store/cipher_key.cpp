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
constexpr int kBlockBytes = 16;
constexpr std::size_t kReservedBytes = 48;  // at the end of a page: starting block, checksum

using Block = std::array<unsigned char, kBlockBytes>;

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

// A block of a page, deciphered with what stands before it in the chain.
std::optional<Block> Deciphered(std::string_view block, std::string_view before,
                                std::string_view raw_key) {
  const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX*)> context(EVP_CIPHER_CTX_new(),
                                                                           EVP_CIPHER_CTX_free);
  const auto bytes = [](std::string_view text) {
    return reinterpret_cast<const unsigned char*>(text.data());
  };
  Block plain{};
  int size = 0;
  if (!context ||
      EVP_DecryptInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, KeyBytes(raw_key).data(),
                         bytes(before)) != 1 ||
      EVP_CIPHER_CTX_set_padding(context.get(), 0) != 1 ||
      EVP_DecryptUpdate(context.get(), plain.data(), &size, bytes(block), kBlockBytes) != 1) {
    return std::nullopt;
  }
  return plain;
}

}  // namespace

std::optional<std::uint32_t> ChangeCounter(std::string_view first_page, std::string_view raw_key) {
  if (first_page.size() != kDatabasePageBytes) return std::nullopt;
  const auto head =
      Deciphered(first_page.substr(kSaltBytes, kBlockBytes),
                 first_page.substr(kDatabasePageBytes - kReservedBytes, kBlockBytes), raw_key);
  // What every file of the format has before its counter: size of a page, the reserve at its end,
  // and three fixed figures.
  constexpr unsigned char kPageSize[] = {kDatabasePageBytes >> 8, kDatabasePageBytes & 0xff};
  constexpr unsigned char kFixed[] = {kReservedBytes, 64, 32, 32};
  constexpr int kFixedAt = 4;
  constexpr int kCounterAt = 8;
  if (!head || !std::ranges::equal(kPageSize, std::span(*head).first(2)) ||
      !std::ranges::equal(kFixed, std::span(*head).subspan(kFixedAt, 4))) {
    return std::nullopt;
  }
  std::uint32_t counter = 0;
  for (int i = 0; i < 4; ++i) counter = counter << 8 | (*head)[kCounterAt + i];
  return counter;
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
