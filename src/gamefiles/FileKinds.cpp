#include "gamefiles/FileKinds.h"

#include <string_view>

namespace wheelwright {
namespace {

std::string LabelOf(const Session& session, const FileKind& kind) {
  return Message(session, kind.langName) + " (*." + kind.ending + ")";
}

}  // namespace

const FileKind* KindOfFile(const std::string& name, int filterIndex) {
  for (const FileKind& kind : kFileKinds) {
    const bool ends = name.ends_with(kind.ending) || name.ends_with(kind.endingOfBackups);
    if (ends && filterIndex == kind.filterIndex) return &kind;
  }
  return nullptr;
}

std::string FilterOfAllKinds(const Session& session) {
  std::string filter;
  for (const FileKind& kind : kFileKinds) {
    filter += LabelOf(session, kind) + "|*." + kind.ending + ";*." + kind.endingOfBackups + "|";
  }
  return filter;
}

std::string FilterOfKind(const Session& session, const FileKind& kind) {
  return LabelOf(session, kind) + "|*." + kind.ending + "|";
}

}  // namespace wheelwright
