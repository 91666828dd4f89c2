#include "store/left_journal.h"

#include <fstream>
#include <optional>

#include "base/text.h"
#include "store/cipher_key.h"

namespace survey {
namespace {

// A journal begins with a mark and numbers of four bytes, the highest first; behind them, from the
// second sector on, lie pages as they were: number, page, checksum.
constexpr std::string_view kMark{"\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8};
enum Place { kSeed = 12, kPages = 16, kSectorBytes = 20, kPageBytes = 24 };
constexpr std::size_t kHeadBytes = 28;
constexpr std::size_t kNumberBytes = 4;
constexpr int kChecksumStep = 200;  // of so many bytes of a page one counts
constexpr std::uint32_t kSmallestSector = 32;
constexpr std::uint32_t kLargestSector = 65536;

std::uint32_t NumberAt(std::string_view bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < kNumberBytes; ++i) {
    number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  }
  return number;
}

std::uint32_t Checksum(std::uint32_t seed, std::string_view page) {
  for (int at = static_cast<int>(page.size()) - kChecksumStep; at > 0; at -= kChecksumStep) {
    seed += static_cast<unsigned char>(page[static_cast<std::size_t>(at)]);
  }
  return seed;
}

// The first page as it was before, where the journal holds it whole.
std::optional<std::string> FirstPage(std::ifstream& journal, std::string_view head) {
  const std::uint32_t sector = NumberAt(head, kSectorBytes);
  if (sector < kSmallestSector || sector > kLargestSector) return std::nullopt;
  const std::size_t page_bytes = kDatabasePageBytes;
  std::string record(kNumberBytes + page_bytes + kNumberBytes, '\0');
  journal.seekg(sector);
  while (journal.read(record.data(), static_cast<std::streamsize>(record.size()))) {
    const std::string_view page = std::string_view(record).substr(kNumberBytes, page_bytes);
    if (Checksum(NumberAt(head, kSeed), page) != NumberAt(record, kNumberBytes + page_bytes)) break;
    if (NumberAt(record, 0) == 1) return std::string(page);
  }
  return std::nullopt;
}

// A file of another template begins with another salt; and each save raises a count in the first
// page by one, which other programs leave as it is.
bool IsAnotherState(std::string_view before, const JournalPartner& partner) {
  if (before.substr(0, kSaltBytes) != partner.first_page.substr(0, kSaltBytes)) return true;
  const auto then = SaveCount(before, partner.raw_key);
  const auto now = SaveCount(partner.first_page, partner.raw_key);
  // A page torn by a power cut tells nothing; the journal is there to mend it.
  return then && now && *now != *then && *now != NextSaveCount(*then);
}

}  // namespace

bool IsJournalOfAnother(const std::string& journal, const JournalPartner& partner) {
  std::ifstream file(ToPath(journal), std::ios::binary);
  std::string head(kHeadBytes, '\0');
  if (!file.read(head.data(), kHeadBytes) || !head.starts_with(kMark)) return false;
  if (NumberAt(head, kPageBytes) != kDatabasePageBytes) return true;
  // As long as its journal lies there a file only grows.
  if (partner.pages < NumberAt(head, kPages)) return true;
  const std::optional<std::string> before = FirstPage(file, head);
  return before && IsAnotherState(*before, partner);
}

}  // namespace survey
