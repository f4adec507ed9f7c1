#include "soak/Finding.h"

namespace wheelwright::soak {
namespace {

std::string WithPlaceholder(std::string text, const std::string& path) {
  const std::string placeholder = "@DIR@";
  for (auto at = text.find(path); at != std::string::npos; at = text.find(path, at + placeholder.size())) {
    text.replace(at, path.size(), placeholder);
  }
  return text;
}

}  // namespace

std::string WriteFinding(const std::string& directory, const Recording& recording, const Folder& folder) {
  std::string script;
  for (const std::string& line : recording.script) script += line + "\n";
  Files files;
  files["script.jsonl"] = WithPlaceholder(script, folder.Path());
  files["result.jsonl"] = WithPlaceholder(recording.result, folder.Path());
  files["complaint.txt"] = recording.complaint + "\n";
  for (const auto& [name, bytes] : recording.before) files["before/" + name] = bytes;
  const std::string path = directory + "/" + std::to_string(recording.seed);
  WriteFiles(path, files);
  return path;
}

}  // namespace wheelwright::soak
