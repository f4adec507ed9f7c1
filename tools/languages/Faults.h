// What is wrong with a language file, told so that its translator knows what to do.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace wheelwright::languages {

struct Fault {
  std::optional<std::size_t> entry;  // none where the file as a whole is meant
  std::string text;                  // UTF-8

  bool operator==(const Fault&) const = default;
};

// The texts between the line ends, one for each entry.
std::vector<std::string> EntriesOf(const std::string& bytes);

// Of a file with the wrong form or number of lines only that is told, since the position of a line
// is its meaning.
std::vector<Fault> FaultsOf(const std::string& bytes);

// What is wrong with the name (UTF-8, without folder): it is what a person chooses.
std::vector<Fault> FaultsOfName(const std::string& name);

}  // namespace wheelwright::languages
