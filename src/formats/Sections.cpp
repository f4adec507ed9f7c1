#include "formats/Sections.h"

namespace wheelwright {

Banner::Banner(char mark)
    : beginning_(mark + std::string(" File created with Wheelwright V")),
      homePage_(mark + std::string(" Homepage: ") + kHomePage),
      foldedBeginning_(FoldedCase(beginning_)),
      foldedHomePage_(FoldedCase(homePage_)) {}

std::string Banner::Text() const {
  std::string text;
  AddLine(text, beginning_ + VersionText());
  AddLine(text, homePage_);
  return text;
}

bool Banner::IsIn(std::string_view line, std::size_t from) const {
  return HoldsIgnoringCase(line, foldedBeginning_, from) || HoldsIgnoringCase(line, foldedHomePage_, from);
}

std::string WithSectionRewritten(std::string_view text, const SectionRules& rules,
                                 const std::function<void(std::string& out)>& addTable) {
  const Banner banner('#');
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  if (rules.hasBanner) out += banner.Text();
  bool inSection = false;
  bool tableWritten = false;
  bool mayOpen = true;
  for (const std::string_view line : Lines(text)) {
    if (line.substr(0, rules.commentColumns).find('#') != std::string_view::npos) {
      if (!rules.hasBanner || !banner.IsIn(line)) AddLine(out, line);
      continue;
    }
    if (inSection && line.starts_with("end")) {
      inSection = false;
      mayOpen = !rules.onlyOnce;
    }
    if (!inSection) {
      AddLine(out, line);
    } else if (!tableWritten) {
      addTable(out);
      tableWritten = true;
    }
    if (mayOpen && line.starts_with(rules.opening)) inSection = true;
  }
  return out;
}

}  // namespace wheelwright
