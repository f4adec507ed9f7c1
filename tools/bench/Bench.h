// A session with one of the data files, through the hands of a person, to be timed.
#pragma once

#include "bench/DataFiles.h"
#include "forms/Wiring.h"

#include <filesystem>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

namespace wheelwright::bench {

// Takes what is written to it, and keeps nothing.
struct Nowhere : std::streambuf {
  int_type overflow(int_type character) override { return traits_type::not_eof(character); }
};

// `Screen` is one of the two screens of the replay: with real windows or without.
template <class Screen>
class Bench {
 public:
  // The file must be there; the folder is that of the language files.
  Bench(const DataFile& data, std::string path, const std::string& programFolder)
      : data_(data), path_(std::move(path)) {
    StartUp(screen_.stage.session, programFolder);
    Main().SetVisible(true);
  }

  void Open() {
    screen_.stage.desktop.answers.Add({{"file", path_}, {"filter", data_.filterIndex}});
    screen_.hands.Click(Main().cmdOpen);
  }

  void Save() { screen_.hands.Click(Main().cmdSave); }

  // A vehicle far from the one before it.
  void Select() {
    constexpr int kStride = 211;
    row_ = (row_ + kStride) % Main().cmbAutos.Count();
    screen_.hands.Choose(Main().cmbAutos, row_);
  }

  // A letter at the end of a name, or the deletion of the last one.
  void Keystroke() {
    TextBox& box = NameBox();
    if (std::exchange(longer_, !longer_)) {
      screen_.hands.EraseLast(box);
    } else {
      screen_.hands.Append(box, "x");
    }
  }

 private:
  FrmMain& Main() { return screen_.stage.session.main; }

  // The box in which a keystroke costs most: it renames the entry of the list.
  TextBox& NameBox() {
    if (&data_ == &kHandlingData) return Main().txtAutoname;
    if (&data_ == &kDefinitionData) return Main().txtHandlingID;
    return Main().txtColorName;
  }

  const DataFile& data_;
  std::string path_;
  Nowhere nowhere_;
  std::ostream result_{&nowhere_};
  Screen screen_{result_};
  int row_ = 0;
  bool longer_ = false;
};

}  // namespace wheelwright::bench
