#ifndef STORE_LEFT_JOURNAL_H_
#define STORE_LEFT_JOURNAL_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace survey {

// The database that lies beside a journal.
struct JournalPartner {
  std::uint64_t pages = 0;
  std::string_view first_page;  // as it lies in the file
  std::string_view raw_key;     // as CipherKeys gives it
};

// The engine plays a journal back into whatever file bears its name. True when the journal at
// `journal` was surely begun for another file, or for another state of it, than `partner`; false
// when it may be the partner's, cannot be read, or is none.
bool IsJournalOfAnother(const std::string& journal, const JournalPartner& partner);

}  // namespace survey

#endif  // STORE_LEFT_JOURNAL_H_
