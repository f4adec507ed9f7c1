#include "oracle/HandlingReference.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "oracle/PlainTexts.h"
#include "support/VehicleTokens.h"

namespace wheelwright::testing {
namespace {

constexpr std::size_t kHead = 14;

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

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
    read_.cars.assign(1, Car{});
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
    TakeText(searched, "created", read_.created);
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
    if (made_ > 0) read_.cars.emplace_back();
    read_.cars[made_] = PlainRecord(tokens, read_.problems);
    ++made_;
  }

  void Mark(std::size_t j, int kind) {
    std::size_t index = 0;
    while (index < read_.cars.size() && read_.cars[index].CarName != read_.names[j]) ++index;
    if (kind != 1) index = j;
    if (index >= read_.cars.size()) {
      read_.failure = 9;
      return;
    }
    read_.cars[index].LineKind = static_cast<std::int16_t>(kind);
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

std::string VehicleLinesPlainly(const PlainVehicles& vehicles) {
  std::string lines;
  for (const std::string& name : vehicles.names) {
    for (const Car& car : vehicles.cars) {
      if (car.CarName == name) lines += LineOf(car) + "\r\n";
    }
  }
  return lines;
}

std::string WritePlainly(const std::string& onDisk, const PlainVehicles& vehicles) {
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
      if (!vehiclesWritten) text += VehicleLinesPlainly(vehicles);
      vehiclesWritten = true;
    } else if (marked) {
      text += line + "\r\n";
    } else if (HoldsInAnyCase(comment, "Author:")) {
      text += "; Author: " + vehicles.author + "\r\n";
    } else if (HoldsInAnyCase(comment, "; Created")) {
      text += "; Created " + vehicles.created + "\r\n";
    } else if (!HoldsInAnyCase(comment, banner) && !HoldsInAnyCase(comment, homePage)) {
      text += line + "\r\n";
    }
  }
  return HoldsInAnyCase(text, ";the end") ? text : text + ";\r\n;the end";
}

}  // namespace wheelwright::testing
