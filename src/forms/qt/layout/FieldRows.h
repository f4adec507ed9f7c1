// A page of rows: label, input and hint, one row below the other.
#pragma once

#include "forms/qt/mirrors/MirrorSet.h"
#include "screen/Fields.h"

#include <algorithm>
#include <vector>

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

// Builds the rows of a tab, from top to bottom.
template <class Record, std::size_t Count>
void BuildRows(FrmMain& main, const std::array<FieldRow<Record>, Count>& fields, int tab,
               QWidget& page, MirrorSet& mirrors) {
  std::vector<const FieldRow<Record>*> ofTab;
  for (const FieldRow<Record>& field : fields) {
    if (field.tab == tab) ofTab.push_back(&field);
  }
  std::sort(ofTab.begin(), ofTab.end(),
            [](const auto* left, const auto* right) { return left->tabRow < right->tabRow; });
  FieldRows rows(page, mirrors);
  for (const FieldRow<Record>* field : ofTab) {
    auto& [label, hint] = LabelsOf(main, *field);
    rows.StartRow(label);
    std::visit([&](auto input) { rows.AddInput(main.*input); }, field->input);
    if (InputOf<TextBox>(main, *field) == &main.txtExtra1) rows.AddInput(main.cmbExtra1);
    if (hint) rows.AddInfo(*hint);
  }
  rows.Finish();
}

}  // namespace wheelwright
