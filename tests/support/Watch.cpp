#include "support/Watch.h"

namespace wheelwright::testing {
namespace {

void NoteEnabling(TestSession& test, const Control& control, Aspect aspect) {
  if (aspect != Aspect::State) return;
  test.desktop.shown.push_back(control.Name() + (control.IsEnabled() ? " on" : " off"));
}

void NoteShowing(TestSession& test, const Control& control, Aspect aspect) {
  if (aspect != Aspect::State) return;
  test.desktop.shown.push_back(control.Name() + (control.IsVisible() ? " shown" : " hidden"));
}

void NoteRows(TestSession& test, const RowList& list, Aspect aspect) {
  if (aspect == Aspect::Rows) {
    test.desktop.shown.push_back(list.Name() + ": " + std::to_string(list.Count()) + " rows");
  }
  if (aspect == Aspect::Choice) {
    test.desktop.shown.push_back(list.Name() + ": row " + std::to_string(list.Row()));
  }
}

}  // namespace

void WatchEnabling(TestSession& test, Control& control) {
  control.notice = [&](Aspect aspect) { NoteEnabling(test, control, aspect); };
}

void WatchShowing(TestSession& test, Control& control) {
  control.notice = [&](Aspect aspect) { NoteShowing(test, control, aspect); };
}

void WatchRows(TestSession& test, RowList& list) {
  list.notice = [&](Aspect aspect) { NoteRows(test, list, aspect); };
}

void WatchText(TestSession& test, TextBox& box) {
  box.notice = [&](Aspect) { test.desktop.shown.push_back(box.Name() + ": " + box.Text()); };
}

void WatchTitle(TestSession& test) {
  test.main.notice = [&] { test.desktop.shown.push_back("title: " + test.main.Title()); };
}

}  // namespace wheelwright::testing
