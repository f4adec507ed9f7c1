// Takes lines and texts apart. The first line of the input says how: "comma", "space", "handling",
// "number", "index", "letters" or "text"; any other first byte chooses one of them too.
#include "fuzz/FuzzInput.h"
#include "oracle/TextLaws.h"

namespace wheelwright {

using namespace testing;

void fuzz::Try(FuzzInput input) {
  constexpr std::string_view kFirstLetters = "cshnilt";
  const std::string how = input.Take();
  const char first = how.empty() ? 'c' : how.front();
  const std::size_t letter = kFirstLetters.find(first);
  const std::size_t any = static_cast<unsigned char>(first) % kFirstLetters.size();
  const char chosen = kFirstLetters[letter == std::string_view::npos ? any : letter];
  if (chosen == 'i') {
    const std::vector<std::string> names = input.TakeLines();
    return RequireNameLaws(names, input.TakeLines());
  }
  const std::string text = input.Take();
  switch (chosen) {
    case 'c':
      return RequireCommaLaws(text, input.Take());
    case 's':
      return RequireSpaceLaws(text);
    case 'h':
      return RequireTokenLaws(text);
    case 'n':
      return RequireNumberLaws(text);
    case 'l':
      return RequireLetterLaws(text);
    default:
      return RequireTextLaws(text, input.Take());
  }
}

}  // namespace wheelwright
