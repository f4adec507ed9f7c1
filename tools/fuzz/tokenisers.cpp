// Takes lines and texts apart. The first line of the input says how: "comma", "space", "handling",
// "number", "index", "letters" or "text"; any other first byte chooses one of them too.
#include "fuzz/FuzzInput.h"
#include "fuzz/LineLaws.h"
#include "fuzz/NameLaws.h"
#include "fuzz/NumberLaws.h"
#include "fuzz/TextLaws.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace wheelwright::fuzz {
namespace {

constexpr std::string_view kFirstLetters = "cshnilt";

void TakeApart(FuzzInput input) {
  const std::string how = input.Take();
  const char first = how.empty() ? 'c' : how.front();
  const std::size_t letter = kFirstLetters.find(first);
  const std::size_t any = static_cast<unsigned char>(first) % kFirstLetters.size();
  const std::string text = input.Take();
  const std::string other = input.Take();
  switch (kFirstLetters[letter == std::string_view::npos ? any : letter]) {
    case 'c':
      return RequireCommaLaws(text, other);
    case 's':
      return RequireSpaceLaws(text);
    case 'h':
      return RequireHandlingLaws(text);
    case 'n':
      return RequireNumberLaws(text);
    case 'i':
      return RequireNameLaws(PartsOf(text, '\n'), other);
    case 'l':
      return RequireLetterLaws(text);
    default:
      return RequireTextLaws(text, other);
  }
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::TakeApart(wheelwright::fuzz::FuzzInput(data, size));
  return 0;
}
