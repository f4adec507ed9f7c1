#include "fuzz/FuzzInput.h"

#include <cstdlib>

namespace wheelwright::fuzz {
namespace {

constexpr std::string_view kDivider = "\n==\n";

std::string Without(std::string text, std::string_view bytes) {
  std::erase_if(text, [&](char byte) { return bytes.find(byte) != std::string_view::npos; });
  return text;
}

}  // namespace

FuzzInput::FuzzInput(const std::uint8_t* data, std::size_t size)
    : rest_(reinterpret_cast<const char*>(data), size) {}

std::string FuzzInput::Take() {
  const std::size_t end = rest_.find(kDivider);
  const std::string text(rest_.substr(0, end));
  rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + kDivider.size());
  return text;
}

std::string FuzzInput::TakeTyped() { return Without(Take(), "\r\n"); }

std::vector<std::string> PartsOf(const std::string& text, char mark) {
  std::vector<std::string> parts(1);
  for (const char byte : Without(text, "\r")) {
    if (byte == mark) {
      parts.emplace_back();
    } else {
      parts.back() += byte;
    }
  }
  return parts;
}

std::vector<std::vector<std::string>> RowsOf(const std::string& text) {
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : PartsOf(text, '\n')) rows.push_back(PartsOf(line, '|'));
  return rows;
}

std::string FieldOr(const std::vector<std::string>& row, std::size_t index, const char* other) {
  return index < row.size() ? row[index] : other;
}

std::int16_t NumberOf(const std::string& text) {
  const auto number = static_cast<std::uint16_t>(std::strtoul(text.c_str(), nullptr, 10));
  return static_cast<std::int16_t>(number);
}

}  // namespace wheelwright::fuzz
