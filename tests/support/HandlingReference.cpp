#include "support/HandlingReference.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "support/VehicleTokens.h"

namespace wheelwright::testing {
namespace {

constexpr std::size_t kHead = 14;

std::string CutBlanks(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

bool Holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

bool HoldsInAnyCase(const std::string& text, const std::string& part) {
  return Holds(FoldedCase(text), FoldedCase(part));
}

std::string NameOf(const Tokens& tokens) { return tokens.empty() ? "0.0" : tokens[0]; }

std::string ParsedToken(const Tokens& tokens, std::size_t index, LineProblems& problems) {
  const TokenRule& rule = kTokenRules[index];
  if (index >= tokens.size()) return rule.missing;
  const std::string& token = tokens[index];
  const bool isBad = (rule.check == TokenCheck::MustNotBeNumeric && IsNumeric(token)) ||
                     (rule.check == TokenCheck::MustBeNumeric && !IsNumeric(token));
  if (isBad) problems.push_back(BadToken(NameOf(tokens), static_cast<int>(index)));
  return token;
}

class PlainReader {
 public:
  PlainHandling Read(const std::string& text) {
    const std::vector<std::string> lines = PlainLines(text);
    for (const std::string& line : lines) FirstPass(line);
    read_.hasOddNames = !read_.problems.empty();
    read_.problems.clear();
    read_.records.assign(1, Car{});
    for (const std::string& line : lines) {
      if (read_.failure == 0) SecondPass(line.substr(0, line.find(';')));
    }
    return read_;
  }

 private:
  void FirstPass(const std::string& line) {
    const std::string head = line.substr(0, kHead);
    const bool marked = head.find_first_of(";%$!") != std::string::npos;
    if (line.size() > kHead && !marked) {
      AddName(ParsedToken(PlainTokens(CutBlanks(head)), 0, read_.problems));
      return;
    }
    const auto semicolon = head.find(';');
    const std::string searched = line.substr(semicolon == std::string::npos ? 0 : semicolon);
    TakeText(searched, "author:", read_.author);
    TakeText(searched, "created", read_.date);
  }

  static void TakeText(const std::string& searched, const std::string& word, std::string& field) {
    const auto at = FoldedCase(searched).find(word);
    if (at == std::string::npos) return;
    const auto begin = at + word.size() + 1;
    field = begin < searched.size() ? CutBlanks(searched.substr(begin)) : "";
  }

  void AddName(const std::string& name) {
    auto place = read_.names.begin();
    while (place != read_.names.end() && FoldedCase(*place) <= FoldedCase(name)) ++place;
    read_.names.insert(place, name);
  }

  void SecondPass(const std::string& line) {
    int kind = 0;
    if (Holds(line, "%")) kind = 1;
    if (Holds(line, "!")) kind = 2;
    if (Holds(line, "$")) kind = 3;
    for (std::size_t j = 0; j < read_.names.size(); ++j) {
      const std::string& name = read_.names[j];
      if (line.substr(0, name.size()) == name) MakeRecord(PlainTokens(line));
      if (kind != 0 && HoldsInAnyCase(line, name)) Mark(j, kind);
      if (read_.failure != 0) return;
    }
  }

  void MakeRecord(const Tokens& tokens) {
    if (made_ > 0) read_.records.emplace_back();
    read_.records[made_] = PlainRecord(tokens, read_.problems);
    ++made_;
  }

  void Mark(std::size_t j, int kind) {
    std::size_t index = 0;
    while (index < read_.records.size() && read_.records[index].CarName != read_.names[j]) ++index;
    if (kind != 1) index = j;
    if (index >= read_.records.size()) {
      read_.failure = 9;
      return;
    }
    read_.records[index].LineKind = static_cast<std::int16_t>(kind);
  }

  PlainHandling read_;
  std::size_t made_ = 0;
};

std::string LineOf(const Car& car) {
  Tokens tokens = TokensOf(car);
  while (tokens[0].size() < 14) tokens[0] += ' ';
  while (tokens[1].size() < 7) tokens[1].insert(0, 1, ' ');
  while (tokens[25].size() < 6) tokens[25].insert(0, 1, ' ');
  return Joined(tokens);
}

}  // namespace

std::vector<std::string> PlainLines(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      line += text[i];
      continue;
    }
    lines.push_back(line);
    line.clear();
    if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

Tokens PlainTokens(std::string line) {
  for (char& byte : line) {
    if (byte == '\t') byte = ' ';
  }
  for (auto at = line.find("  "); at != std::string::npos; at = line.find("  ")) line.erase(at, 1);
  line = CutBlanks(line);
  Tokens tokens;
  while (!line.empty()) {
    const std::string token = line.substr(0, line.find(' '));
    tokens.push_back(token);
    line = CutBlanks(line.substr(token.size()));
  }
  return tokens;
}

Car PlainRecord(const std::vector<std::string>& tokens, LineProblems& problems) {
  if (tokens.size() != 33) {
    problems.push_back(WrongCount(NameOf(tokens), static_cast<int>(tokens.size())));
  }
  Tokens parsed;
  for (std::size_t index = 0; index < 33; ++index) {
    parsed.push_back(ParsedToken(tokens, index, problems));
  }
  return CarOf(parsed);
}

PlainHandling ReadPlainly(const std::string& text) { return PlainReader().Read(text); }

std::string WritePlainly(const std::string& onDisk, const std::vector<std::string>& names,
                         const std::vector<Car>& cars, const std::string& author,
                         const std::string& date) {
  const std::string banner = "; File created with Wheelwright V";
  const std::string homePage = "; Homepage: https://wheelwright.example/";
  std::string text = banner + "1.0.0\r\n" + homePage + "\r\n";
  bool vehiclesWritten = false;
  for (const std::string& line : PlainLines(onDisk)) {
    const std::string head = line.substr(0, kHead);
    const auto semicolon = head.find(';');
    const std::string comment = semicolon == std::string::npos ? "" : line.substr(semicolon);
    const bool marked = head.find_first_of("%!$") != std::string::npos;
    if (comment.empty() && !marked) {
      for (const std::string& name : names) {
        for (const Car& car : cars) {
          if (!vehiclesWritten && car.CarName == name) text += LineOf(car) + "\r\n";
        }
      }
      vehiclesWritten = true;
    } else if (marked) {
      text += line + "\r\n";
    } else if (HoldsInAnyCase(comment, "Author:")) {
      text += "; Author: " + author + "\r\n";
    } else if (HoldsInAnyCase(comment, "; Created")) {
      text += "; Created " + date + "\r\n";
    } else if (!HoldsInAnyCase(comment, banner) && !HoldsInAnyCase(comment, homePage)) {
      text += line + "\r\n";
    }
  }
  return HoldsInAnyCase(text, ";the end") ? text : text + ";\r\n;the end";
}

}  // namespace wheelwright::testing
