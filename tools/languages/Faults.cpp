#include "languages/Faults.h"

#include "core/CodePage.h"
#include "core/Text.h"
#include "languages/FormFaults.h"
#include "languages/KeyFaults.h"
#include "languages/TextFaults.h"

#include <algorithm>
#include <utility>

namespace wheelwright::languages {

std::vector<std::string> EntriesOf(const std::string& bytes) {
  std::vector<std::string> entries;
  std::size_t begin = 0;
  while (begin < bytes.size()) {
    const std::size_t end = std::min(bytes.find(kLineEnd, begin), bytes.size());
    entries.push_back(bytes.substr(begin, end - begin));
    begin = end + kLineEnd.size();
  }
  return entries;
}

std::vector<Fault> FaultsOf(const std::string& bytes) {
  std::vector<Fault> faults = FormFaults(bytes);
  if (!faults.empty()) return faults;
  const std::vector<std::string> entries = EntriesOf(bytes);
  faults = TextFaults(entries);
  for (Fault& fault : KeyFaults(entries)) faults.push_back(std::move(fault));
  return faults;
}

std::vector<Fault> FaultsOfName(const std::string& name) {
  std::vector<Fault> faults;
  if (!name.ends_with(".lng")) {
    faults.push_back({{}, "the name must end in .lng, or the program doesn't find the file"});
  }
  if (ToUnicode(FromUnicode(name)) != name) {
    faults.push_back({{}, "the name has a letter that Windows-1252 lacks; the program couldn't show it"});
  }
  return faults;
}

}  // namespace wheelwright::languages
