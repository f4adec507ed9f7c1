#include "gamefiles/DefinitionWriter.h"

#include "core/Text.h"
#include "gamefiles/Banner.h"
#include "gamefiles/Lines.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace wheelwright {
namespace {

struct WrittenField {
  std::string IdeEntry::*value;
  std::string_view separator;
  bool tabBehindShortText;
};

constexpr std::array<WrittenField, 11> kWrittenFields = {{
    {&IdeEntry::ID, ",\t", false},
    {&IdeEntry::ModelName, ",\t", true},
    {&IdeEntry::TXDName, ",\t", true},
    {&IdeEntry::Typ, ",\t", false},
    {&IdeEntry::HandlingID, ",\t", true},
    {&IdeEntry::GameName, ",\t", true},
    {&IdeEntry::Anim, ",\t", true},
    {&IdeEntry::Klasse, ",\t", true},
    {&IdeEntry::Frequenz, ", \t", false},
    {&IdeEntry::Level, ", \t", false},
    {&IdeEntry::CompRules, ", \t", false},
}};

constexpr std::size_t kShortText = 7;

void AppendDefinitionLine(std::string& out, const IdeEntry& entry) {
  for (const WrittenField& field : kWrittenFields) {
    const std::string& value = entry.*field.value;
    out.append(value).append(field.separator);
    if (field.tabBehindShortText && value.size() < kShortText) out += '\t';
  }
  if (entry.Typ == "car") out.append(entry.Extra1).append(", \t").append(entry.Extra2);
  if (entry.Typ == "plane") out += entry.Extra1;
  out += kLineEnd;
}

class DefinitionWriter {
 public:
  explicit DefinitionWriter(const Table<IdeEntry>& ides) : ides_(ides) {
    AddLine(BannerLine('#'));
    AddLine(HomePageLine('#'));
  }

  void Take(std::string_view line) {
    if (line.find('#') != std::string_view::npos) {
      const bool ours = HoldsIgnoringCase(line, banner_) || HoldsIgnoringCase(line, homePage_);
      if (!ours) AddLine(line);
      return;
    }
    if (inSection_ && line.starts_with("end")) inSection_ = false;
    if (!inSection_) {
      AddLine(line);
    } else if (!tableWritten_) {
      for (const IdeEntry& entry : ides_.Walk()) AppendDefinitionLine(out_, entry);
      tableWritten_ = true;
    }
    if (!inSection_ && line.starts_with("cars")) inSection_ = true;
  }

  std::string Text() && { return std::move(out_); }

 private:
  void AddLine(std::string_view line) { out_.append(line).append(kLineEnd); }

  const Table<IdeEntry>& ides_;
  const std::string banner_ = FoldedCase(BannerBeginning('#'));
  const std::string homePage_ = FoldedCase(HomePageLine('#'));
  std::string out_;
  bool inSection_ = false;
  bool tableWritten_ = false;
};

}  // namespace

std::string RewriteDefinitionText(Session& session) {
  const std::string onDisk = session.files.Read(session.vars.CurrentFile);
  DefinitionWriter writer(session.vars.Ides);
  for (const std::string_view line : Lines(onDisk)) writer.Take(line);
  session.vars.Kopie_Ides = session.vars.Ides;
  return std::move(writer).Text();
}

}  // namespace wheelwright
