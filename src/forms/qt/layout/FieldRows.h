// A page of rows: label, input and hint, one row below the other.
#pragma once

#include "forms/qt/mirrors/MirrorSet.h"

#include <QGridLayout>

namespace wheelwright {

// The columns of a page; where there is no hint, the value of the input stands there.
enum PageColumn { kLabelColumn, kInputColumn, kInfoColumn };

// The height of a row with any kind of input, so that rows keep the same distance on all pages.
int RowHeight(QWidget& page);

class FieldRows {
 public:
  FieldRows(QWidget& page, MirrorSet& mirrors);

  // Adds the next row's label; what follows belongs to this row.
  void StartRow(Label& label);
  // Several inputs of one row lie on the same spot; the program shows one of them.
  template <class Input>
  void AddInput(Input& input) {
    Place(mirrors_.Add(input, &page_).Widget());
  }
  // The hint describes the row's inputs, which come before.
  void AddInfo(Label& info);
  // Takes what space is left; the last call.
  void Finish();

 private:
  void Place(QWidget& input);

  QWidget& page_;
  MirrorSet& mirrors_;
  QGridLayout& grid_;
  int row_ = -1;
  LabelMirror* label_ = nullptr;
  std::vector<QWidget*> inputs_;
};

}  // namespace wheelwright
