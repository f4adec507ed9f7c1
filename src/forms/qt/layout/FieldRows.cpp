#include "forms/qt/layout/FieldRows.h"

#include "forms/qt/widgets/Inputs.h"

namespace wheelwright {

// A pick list is the highest input.
int RowHeight(QWidget& page) { return PickBox(&page).sizeHint().height(); }

FieldRows::FieldRows(QWidget& page, MirrorSet& mirrors)
    : page_(page), mirrors_(mirrors), grid_(*new QGridLayout(&page)) {
  const int gap = page.fontMetrics().height();
  // In characters. Most labels are shorter, so that the inputs stay in place from page to page.
  constexpr int kLabelWidth = 23;
  constexpr int kInputWidth = 24;
  constexpr int kInputShare = 3;
  constexpr int kInfoShare = 2;
  grid_.setContentsMargins(gap, gap, gap, gap);
  grid_.setHorizontalSpacing(gap);
  grid_.setVerticalSpacing(gap / 2);
  grid_.setColumnMinimumWidth(kLabelColumn, kLabelWidth * page.fontMetrics().averageCharWidth());
  grid_.setColumnMinimumWidth(kInputColumn, kInputWidth * page.fontMetrics().averageCharWidth());
  grid_.setColumnStretch(kInputColumn, kInputShare);
  grid_.setColumnStretch(kInfoColumn, kInfoShare);
}

void FieldRows::StartRow(Label& label) {
  ++row_;
  inputs_.clear();
  label_ = &mirrors_.Add(label, &page_);
  grid_.addWidget(&label_->Widget(), row_, kLabelColumn);
}

void FieldRows::Place(QWidget& input) {
  inputs_.push_back(&input);
  label_->Name(input);
  grid_.addWidget(&input, row_, kInputColumn);
}

void FieldRows::AddInfo(Label& info) {
  LabelMirror& mirror = mirrors_.Add(info, &page_);
  for (QWidget* input : inputs_) mirror.Describe(*input);
  grid_.addWidget(&mirror.Widget(), row_, kInfoColumn);
}

void FieldRows::Finish() {
  for (int row = 0; row <= row_; ++row) grid_.setRowMinimumHeight(row, RowHeight(page_));
  grid_.setRowStretch(row_ + 1, 1);
}

}  // namespace wheelwright
