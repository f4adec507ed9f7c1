// A field's text in eight bytes, so that a record's many fields lie close together: up to seven
// characters in place; longer texts, which are few, are strings of their own.
#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstring>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace wheelwright {

class FieldText;

// Any other text.
template <class Text>
concept OtherText = std::convertible_to<Text, std::string_view> && !std::same_as<Text, FieldText>;

class FieldText {
 public:
  FieldText() = default;
  // A copy of any text, and back: a field is read and set like a string.
  FieldText(std::string_view text) {
    if (text.size() > kMark) {
      PutElsewhere(text);
    } else {
      PutHere(text);
    }
  }
  template <OtherText Text>
  FieldText(const Text& text) : FieldText(std::string_view(text)) {}
  FieldText(const FieldText& other) : bytes_(other.bytes_) {
    if (IsElsewhere()) PutElsewhere(*other.Elsewhere());
  }
  FieldText(FieldText&& other) noexcept : bytes_(std::exchange(other.bytes_, kNoText)) {}
  FieldText& operator=(FieldText other) noexcept {
    std::swap(bytes_, other.bytes_);
    return *this;
  }
  ~FieldText() {
    if (IsElsewhere()) delete Elsewhere();
  }

  std::string_view View() const {
    if (IsElsewhere()) return *Elsewhere();
    return {bytes_.data(), static_cast<std::size_t>(bytes_[kMark] - 1)};
  }
  std::size_t size() const { return View().size(); }
  bool empty() const { return View().empty(); }
  operator std::string_view() const { return View(); }
  operator std::string() const { return std::string(View()); }

  friend bool operator==(const FieldText& left, const FieldText& right) {
    return left.View() == right.View();
  }
  template <OtherText Text>
  friend bool operator==(const FieldText& left, const Text& right) {
    return left.View() == std::string_view(right);
  }
  friend std::string operator+(const FieldText& left, const FieldText& right) {
    return std::string(left.View()).append(right.View());
  }
  template <OtherText Text>
  friend std::string operator+(const FieldText& left, const Text& right) {
    return std::string(left.View()).append(right);
  }
  template <OtherText Text>
  friend std::string operator+(const Text& left, const FieldText& right) {
    return std::string(left).append(right.View());
  }
  friend std::ostream& operator<<(std::ostream& out, const FieldText& text) { return out << text.View(); }

 private:
  // The last byte is the length and one, or the top byte of an address, which is 0.
  static_assert(std::endian::native == std::endian::little);
  static constexpr std::size_t kMark = 7;
  static constexpr std::array<char, 8> kNoText = {0, 0, 0, 0, 0, 0, 0, 1};

  bool IsElsewhere() const { return bytes_[kMark] == 0; }
  std::string* Elsewhere() const {
    std::string* text = nullptr;
    std::memcpy(&text, bytes_.data(), sizeof(void*));
    return text;
  }
  void PutElsewhere(std::string_view text);
  // In pieces of a fixed size that may overlap, since a copy of any size would be a call.
  void PutHere(std::string_view text) {
    char* const here = bytes_.data();
    const std::size_t size = text.size();
    if (size >= 4) {
      std::memcpy(here, text.data(), 4);
      std::memcpy(here + size - 4, text.data() + size - 4, 4);
    } else if (size >= 2) {
      std::memcpy(here, text.data(), 2);
      std::memcpy(here + size - 2, text.data() + size - 2, 2);
    } else if (size == 1) {
      *here = text.front();
    }
    bytes_[kMark] = static_cast<char>(size + 1);
  }

  alignas(void*) std::array<char, 8> bytes_ = kNoText;
};

}  // namespace wheelwright
