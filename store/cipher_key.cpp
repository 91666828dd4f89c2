#include "store/cipher_key.h"

#include <openssl/evp.h>

#include "base/run_time_error.h"

namespace survey {
namespace {

// The derivation of file format 3. Every handed-in file was made with it: never change it.
constexpr int kIterations = 64000;
constexpr int kKeyBytes = 32;

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

}  // namespace

const std::string& CipherKeys::RawKey(std::string_view password, const Salt& salt) {
  if (raw_key_.empty() || salt != salt_ || password != password_) {
    raw_key_ = DerivedKey(password, salt);
    password_ = password;
    salt_ = salt;
  }
  return raw_key_;
}

}  // namespace survey
