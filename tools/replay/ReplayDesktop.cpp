#include "replay/ReplayDesktop.h"

#include "core/Failure.h"

namespace wheelwright::replay {

void ReplayDesktop::ShowInformation(const std::string& text) {
  lines_.Print({{"box", "information"}, {"text", text}});
}

void ReplayDesktop::ShowError(const std::string& text) { lines_.Print({{"box", "error"}, {"text", text}}); }

bool ReplayDesktop::AskQuestion(const std::string& text) { return Ask("question", text); }

bool ReplayDesktop::AskYesNo(const std::string& text) { return Ask("yesno", text); }

bool ReplayDesktop::Ask(const char* kind, const std::string& text) {
  const std::string answer = answers.TakeYesOrNo(text);
  lines_.Print({{"box", kind}, {"text", text}, {"answer", answer}});
  return answer == "yes";
}

void ReplayDesktop::ShowOpen(FileDialog& dialog) { ShowDialog("open", dialog); }

void ReplayDesktop::ShowSave(FileDialog& dialog) { ShowDialog("save", dialog); }

void ReplayDesktop::ShowDialog(const char* kind, FileDialog& dialog) {
  const Json answer = answers.TakeFile(dialog.title);
  lines_.Print({{"dialog", kind},
                {"title", dialog.title},
                {"filter", dialog.filter},
                {"index", dialog.filterIndex},
                {"file", dialog.file},
                {"flags", dialog.flags},
                {"answer", answer}});
  if (answer == "cancel") throw Failure(FailureNumber::CancelSelected);
  dialog.file = answer["file"].get<std::string>();
  dialog.filterIndex = answer.value("filter", dialog.filterIndex);
}

void ReplayDesktop::SetPointer(Pointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  lines_.Print({{"pointer", NameOf(pointer)}});
}

void ReplayDesktop::OpenWithShell(const std::string& file) { lines_.Print({{"shell", file}}); }

std::optional<PictureSize> ReplayDesktop::SizeOfPicture(const std::string& file) { return sizer_(file); }

const char* NameOf(Pointer pointer) { return pointer == Pointer::Hourglass ? "hourglass" : "normal"; }

}  // namespace wheelwright::replay
