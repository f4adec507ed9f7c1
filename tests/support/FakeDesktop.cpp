#include "support/FakeDesktop.h"

#include "core/Failure.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {

void FakeDesktop::SetPointer(Pointer itsPointer) {
  if (itsPointer == pointer_) return;
  pointer_ = itsPointer;
  shown.emplace_back(pointer_ == Pointer::Hourglass ? "hourglass" : "normal");
}

std::optional<PictureSize> FakeDesktop::SizeOfPicture(const std::string& file) {
  const auto found = pictures.find(file);
  if (found == pictures.end()) return std::nullopt;
  return found->second;
}

bool FakeDesktop::Ask(const std::string& what) {
  shown.push_back(what);
  if (answers.empty()) {
    ADD_FAILURE() << "no answer is prepared for " << what;
    return false;
  }
  const bool yes = answers.front();
  answers.pop_front();
  return yes;
}

void FakeDesktop::Choose(const char* kind, FileDialog& dialog) {
  shown.emplace_back(kind);
  dialogs.push_back(dialog);
  if (choices.empty()) {
    ADD_FAILURE() << "no choice is prepared for the dialog";
    throw Failure(FailureNumber::CancelSelected);
  }
  const std::optional<FileChoice> choice = choices.front();
  choices.pop_front();
  if (!choice) throw Failure(FailureNumber::CancelSelected);
  dialog.file = choice->file;
  if (choice->filterIndex) dialog.filterIndex = *choice->filterIndex;
}

}  // namespace wheelwright::testing
