#include "forms/qt/mirrors/ListMirrors.h"
#include "forms/qt/widgets/ShownText.h"

#include <algorithm>
#include <array>

#include <QAbstractTableModel>
#include <QHeaderView>

namespace wheelwright {
namespace {

constexpr std::array<int, ReportList::kColumns> kColumnWidths = {100, 160, 303};

// A cell as it is read on screen. The second column holds captions of fields, whose marks go.
QString CellText(const ReportList::Row& row, std::size_t column) {
  constexpr std::size_t kCaptionColumn = 1;
  const std::string& text = row.at(column);
  return column == kCaptionColumn ? WithoutMarks(ShownCaption(text)) : Shown(text);
}

// The rows of a list in report form, read straight from the plain list.
class ReportModel : public QAbstractTableModel {
 public:
  ReportModel(const ReportList& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : known_; }

  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(ReportList::kColumns);
  }

  QVariant data(const QModelIndex& index, int role) const override {
    // An index of nothing has the row -1, which lies behind all others.
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || row >= list_.Rows().size()) return {};
    return CellText(list_.Rows()[row], static_cast<std::size_t>(index.column()));
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
    return WithoutMarks(ShownCaption(list_.Columns().at(static_cast<std::size_t>(section))));
  }

  // To be called after rows have joined at the end or the list has been cleared.
  void RowsChanged() {
    const int count = static_cast<int>(list_.Rows().size());
    if (count > known_) {
      beginInsertRows({}, known_, count - 1);
      known_ = count;
      endInsertRows();
    } else {
      beginResetModel();
      known_ = count;
      endResetModel();
    }
  }

  void HeadersChanged() { Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

 private:
  const ReportList& list_;
  // The rows that the views know of.
  int known_ = 0;
};

// The last column gives way to a vertical scroll bar, so that no horizontal one is needed.
class ReportView : public QTreeView {
 public:
  ReportView(const ReportList& list, QWidget* parent)
      : QTreeView(parent), model_(*new ReportModel(list, this)) {
    setModel(&model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    header()->setStretchLastSection(false);
    for (std::size_t column = 0; column < kColumnWidths.size(); ++column) {
      header()->resizeSection(static_cast<int>(column), kColumnWidths[column]);
    }
  }

  void Follow(Aspect aspect) {
    if (aspect == Aspect::Rows) model_.RowsChanged();
    if (aspect != Aspect::Content) return;
    model_.HeadersChanged();
    WidenForHeaders();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTreeView::resizeEvent(event);
    FitLast();
  }

 private:
  // A large font needs more than the design.
  void WidenForHeaders() {
    for (int column = 0; column < header()->count(); ++column) {
      const int needed = header()->sectionSizeHint(column);
      if (header()->sectionSize(column) < needed) header()->resizeSection(column, needed);
    }
    FitLast();
  }

  void FitLast() {
    const int last = header()->count() - 1;
    const int room = viewport()->width() - header()->sectionPosition(last);
    header()->resizeSection(last, std::min(room, kColumnWidths.back()));
  }

  ReportModel& model_;
};

}  // namespace

ReportListMirror::ReportListMirror(ReportList& list, EventEdge& edge, QWidget* parent)
    : MirrorOf(list, edge, *new ReportView(list, parent)) {
  FollowAll();
}

void ReportListMirror::Follow(Aspect aspect) { static_cast<ReportView&>(widget_).Follow(aspect); }

}  // namespace wheelwright
