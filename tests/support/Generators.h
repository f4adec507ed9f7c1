// Texts for the laws.
#pragma once

#include <rapidcheck.h>
#include <string>

namespace wheelwright::testing {

// Texts of any bytes, the zero among them.
inline rc::Gen<std::string> AnyBytes() {
  const auto byte =
      rc::gen::map(rc::gen::inRange(0, 256), [](int number) { return static_cast<char>(number); });
  return rc::gen::container<std::string>(byte);
}

// Texts of few different characters, so that equal and nearly equal ones come up often.
inline rc::Gen<std::string> TextOf(const std::string& characters) {
  return rc::gen::container<std::string>(rc::gen::elementOf(characters));
}

// The text of a file, said with its bytes when the law fails.
inline std::string Told(std::string text) {
  RC_LOG() << "the file: " << rc::toString(text) << std::endl;
  return text;
}

}  // namespace wheelwright::testing
